#pragma once

#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <random>
#include <set>

#include "support/program.h"

namespace support {

/// What the window should show, reckoned with sets of semitones.
struct Oracle {
  using Notes = std::set<int>;

  std::vector<std::pair<std::string, Notes>> library;
  bool named = true;  ///< the opening came as far as the note names
  Notes ticked;
  int root = 3;
  bool other = false;
  bool in_list = false;

  std::vector<std::string> exact;
  std::vector<std::string> containing;
  std::vector<Notes> shown;  ///< the scale of each row of the lower list
  int chosen = -1;           ///< of the lower list
  int chosen_exact = -1;
  std::vector<std::string> captions = CaptionsFrom(3);
  std::string value = " ";
  std::string scale = " ";

  static std::vector<std::string> CaptionsFrom(int root) {
    std::vector<std::string> names = {"A",       "A# / Bb", "B", "C",       "C# / Db", "D",
                                      "D# / Eb", "E",       "F", "F# / Gb", "G",       "G# / Ab"};
    std::rotate(names.begin(), names.begin() + root, names.end());
    return names;
  }
  /// The notes as digits, without those before the first 1.
  static std::string Digits(const Notes& notes) {
    std::string digits;
    for (int i = 0; i < 12; ++i) {
      if (notes.contains(i) || !digits.empty()) digits += notes.contains(i) ? '1' : '0';
    }
    return digits.empty() ? "0" : digits;
  }

  void Choose(int new_root) {
    if (new_root == root) return;
    root = new_root;
    if (!named) return;  // the first caption fails, and the pass is not reached
    captions = CaptionsFrom(root);
    Compare();
  }
  void ChooseRow(int row) {
    chosen = row;
    if (row >= 0) scale = Digits(shown[static_cast<std::size_t>(row)]);
  }
  Notes Stars() const { return chosen < 0 ? Notes() : shown[static_cast<std::size_t>(chosen)]; }

  void Compare() {
    exact.clear();
    containing.clear();
    shown.clear();
    chosen = chosen_exact = -1;
    value = Digits(ticked);
    for (int position = 0; position < 12; ++position) {
      if (position > 0 && (!other || (in_list && !ticked.contains(position)))) continue;
      Notes from_here;
      for (const int note : ticked) from_here.insert((note - position + 12) % 12);
      for (const auto& [name, notes] : library) {
        const bool all =
            std::includes(notes.begin(), notes.end(), from_here.begin(), from_here.end());
        if (all && position > 0 && !named) return;  // fails at the first name
        const std::string row = name + "|" + captions[static_cast<std::size_t>(position)];
        if (notes == from_here) {
          exact.push_back(row);
        } else if (all) {
          containing.push_back(row + "|" + std::to_string(std::stoi(Digits(notes), nullptr, 2)));
          shown.push_back(notes);
        }
      }
    }
  }
};

/// A user without aim. It opens the program again and again, on libraries of every kind, does a
/// thousand things each time, and holds all that the window has against the oracle after each.
/// MONKEY_EVENTS and MONKEY_SEED in the environment say how often and from where.
template <class Hand>
class Monkey {
 public:
  static void Play(long events) {
    events = FromEnvironment("MONKEY_EVENTS", events);
    const auto seed = static_cast<unsigned>(
        FromEnvironment("MONKEY_SEED", static_cast<long>(std::random_device()())));
    const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
    SCOPED_TRACE("again with: MONKEY_SEED=" + std::to_string(seed) +
                 " MONKEY_EVENTS=" + std::to_string(events) +
                 " PROGRAM --gtest_filter=" + test->test_suite_name() + "." + test->name());
    Monkey monkey(seed);
    long early = 0;
    for (long done = 0; done < events && !testing::Test::HasFailure(); done += kSession) {
      monkey.PlaySession(std::min(kSession, events - done));
      if (done == 0) early = ResidentKilobytes();
    }
    constexpr long kLong = 100'000;
    constexpr long kMargin = 16 * 1024;
    if (kFreedIsHeld || events < kLong) return;
    std::cout << "resident: " << early << " KiB early, " << ResidentKilobytes() << " KiB late\n";
    EXPECT_LT(ResidentKilobytes(), early + kMargin) << "memory grows with use";
  }

 private:
  static constexpr long kSession = 1000;
#ifdef __SANITIZE_ADDRESS__
  static constexpr bool kFreedIsHeld = true;  ///< for a while, to see late uses of it
#else
  static constexpr bool kFreedIsHeld = false;
#endif

  class Session : public ProgramOn<typename Hand::Toolkit> {
   public:
    void TestBody() override {}
    using ProgramOn<typename Hand::Toolkit>::Captions;
    using ProgramOn<typename Hand::Toolkit>::Containing;
    using ProgramOn<typename Hand::Toolkit>::Exact;
    using ProgramOn<typename Hand::Toolkit>::Open;
    using ProgramOn<typename Hand::Toolkit>::Stars;
    using ProgramOn<typename Hand::Toolkit>::Start;
    using ProgramOn<typename Hand::Toolkit>::folder_;
    using ProgramOn<typename Hand::Toolkit>::toolkit_;
    using ProgramOn<typename Hand::Toolkit>::window_;
  };

  explicit Monkey(unsigned seed) : random_(seed) {}

  static long FromEnvironment(const char* name, long otherwise) {
    const char* const text = std::getenv(name);
    return text == nullptr ? otherwise : std::stol(text);
  }
  static long ResidentKilobytes() {
    std::ifstream statistics("/proc/self/statm");
    long pages = 0;
    statistics >> pages >> pages;
    return pages * 4;
  }
  int Pick(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }
  int PickRow(const std::vector<std::string>& rows) {
    return Pick(static_cast<int>(rows.size()) + 1) - 1;
  }

  void PlaySession(long events) {
    Session session;
    Oracle oracle;
    Open(session, oracle);
    Hand hand(session.toolkit_, *session.window_);
    for (long event = 0; event < events && !testing::Test::HasFailure(); ++event) {
      SCOPED_TRACE("event " + std::to_string(event) + ": " + Act(hand, oracle));
      Compare(session, oracle);
      if constexpr (requires { hand.ExpectMirrored(*session.window_); }) {
        hand.ExpectMirrored(*session.window_);
      }
      if constexpr (requires { session.toolkit_.ClearLog(); }) session.toolkit_.ClearLog();
    }
  }

  /// A library of up to sixty scales, or one with which something is wrong.
  void Open(Session& session, Oracle& oracle) {
    std::string file = "a\nb";
    for (int i = Pick(60); i > 0; --i) {
      Oracle::Notes notes;
      for (int note = 0; note < 12; ++note) {
        if (Pick(2) == 0) notes.insert(note);
      }
      oracle.library.emplace_back("S" + std::to_string(i), notes);
      file += "\nBank,S" + std::to_string(i);
      for (int note = 0; note < 12; ++note) file += notes.contains(note) ? ",TRUE" : ",";
    }
    const int fault = Hand::kShowsFailures ? 9 : Pick(10);
    if (fault >= 1 && fault <= 3) oracle.library.clear();
    oracle.named = fault > 1;
    switch (fault) {
      case 0:
        return session.Open(file + "\nBank,short");
      case 1:
        framework::SpecialFolder::_SetBundlePlatform(std::make_unique<TestBundle>(""));
        return session.Start();
      case 2:
        mkdir(session.folder_.Path(library::kFileName).c_str(), 0700);
        return session.Start();
      case 3:
        return session.Start();
      default:
        return session.Open(file);
    }
  }

  /// Does one thing, to the window and to the oracle. What it was.
  std::string Act(Hand& hand, Oracle& oracle) {
    const int what = Pick(12);
    if (what < 5) {
      const int position = Pick(12);
      if (oracle.ticked.erase(position) == 0) oracle.ticked.insert(position);
      oracle.Compare();
      hand.Tick(position);
      return "tick " + std::to_string(position);
    }
    if (what == 5) {
      const int root = Pick(12);
      oracle.Choose(root);
      hand.ChooseRoot(root);
      return "root " + std::to_string(root);
    }
    if (what == 6) {
      oracle.other = !oracle.other;
      oracle.Compare();
      hand.TickOther();
      return "other roots";
    }
    if (what == 7) {
      oracle.in_list = !oracle.in_list;
      oracle.Compare();
      hand.TickInListOnly();
      return "in list only";
    }
    if (what == 8) {
      if constexpr (requires { hand.ChangeAppearance(); }) hand.ChangeAppearance();
      const int row = PickRow(oracle.exact);
      if (row < 0) return "no row of the upper list";
      oracle.chosen_exact = row;
      hand.ChooseExactRow(row);
      return "row of the upper list " + std::to_string(row);
    }
    const int row = PickRow(oracle.containing);
    oracle.ChooseRow(row);
    if (row < 0) {
      hand.TakeChoiceBack();
    } else {
      hand.ChooseRow(row);
    }
    return "row " + std::to_string(row);
  }

  static void Compare(const Session& session, const Oracle& oracle) {
    const auto& window = *session.window_;
    const Oracle::Notes stars = oracle.Stars();
    EXPECT_EQ(session.Exact(), oracle.exact);
    EXPECT_EQ(session.Containing(), oracle.containing);
    EXPECT_EQ(session.Stars(), std::vector<int>(stars.begin(), stars.end()));
    EXPECT_EQ(session.Captions(), oracle.captions);
    EXPECT_EQ(Text(window.lbValue()->Text()), oracle.value);
    EXPECT_EQ(Text(window.lbScale()->Text()), oracle.scale);
    EXPECT_EQ(window.lbContaining()->ListIndex(), oracle.chosen);
    EXPECT_EQ(window.lbExact()->ListIndex(), oracle.chosen_exact);
    EXPECT_EQ(window.pmRoot()->ListIndex(), oracle.root);
  }

  std::mt19937 random_;
};

}  // namespace support
