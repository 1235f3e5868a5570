#pragma once

#include <sys/resource.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <random>

#include "support/program.h"

namespace support {

inline const std::string kNoNotes(12, '0');

/// What the window should show, reckoned with strings of twelve digits, one for each note.
struct Oracle {
  std::vector<std::pair<std::string, std::string>> library;  ///< names, notes
  bool named = true;  ///< the opening came as far as the note names
  std::string ticked = kNoNotes;
  int root = 3;
  bool other = false;
  bool in_list = false;

  std::vector<std::string> exact;
  std::vector<std::string> containing;
  std::vector<std::string> notes;  ///< of each row of the lower list
  int chosen_exact = -1;
  int chosen = -1;
  std::string stars = kNoNotes;
  std::string value = " ";
  std::string scale = " ";
  std::size_t told = 0;  ///< failures, since the last act

  static std::string Number(const std::string& notes) {
    return notes.substr(std::min<std::size_t>(notes.find('1'), 11));
  }
  std::vector<std::string> Captions() const {
    std::vector<std::string> names = {"A",       "A# / Bb", "B", "C",       "C# / Db", "D",
                                      "D# / Eb", "E",       "F", "F# / Gb", "G",       "G# / Ab"};
    std::rotate(names.begin(), names.begin() + (named ? root : 3), names.end());
    return names;
  }

  // What a hand does.
  void Tick(int position) {
    ticked.begin()[position] ^= 1;  // '0' or '1'
    Compare();
  }
  void TickOther() { TurnOver(other); }
  void TickInListOnly() { TurnOver(in_list); }
  void ChooseRoot(int row) {
    if (row == root) return;
    root = row;
    named ? Compare() : Fail();
  }
  void ChooseExactRow(int row) { chosen_exact = row; }
  void ChooseRow(int row) {
    chosen = row;
    stars = notes.begin()[row];
    scale = Number(stars);
  }
  void TakeChoiceBack() {
    chosen = -1;
    stars = kNoNotes;
  }

  /// A note's name was asked for that is not there.
  void Fail() { ++told; }
  void TurnOver(bool& option) {
    option = !option;
    Compare();
  }
  void Compare() {
    exact = containing = notes = {};
    chosen_exact = -1;
    TakeChoiceBack();
    value = Number(ticked);
    const std::vector<std::string> captions = Captions();
    for (std::size_t i = 0; i < 12; ++i) {
      if (i > 0 && (!other || (in_list && ticked[i] == '0'))) continue;
      const std::string from_here = ticked.substr(i) + ticked.substr(0, i);
      for (const auto& [name, mask] : library) {
        if (!std::ranges::equal(mask, from_here, std::greater_equal())) continue;
        if (i > 0 && !named) return Fail();
        const std::string row = "Bank|" + name + "|" + captions[i];
        if (mask == from_here) {
          exact.push_back(row);
        } else {
          containing.push_back(row + "|" + std::to_string(std::stoi(mask, nullptr, 2)));
          notes.push_back(mask);
        }
      }
    }
  }
};

/// A user without aim, and the program before it. Play opens the program again and again, on
/// libraries of every kind, does a hundred things each time, and holds all that the window has
/// against the oracle after each. MONKEY_EVENTS and MONKEY_SEED in the environment say how often
/// and from where.
template <class Hand>
class Monkey : ProgramOn<typename Hand::Toolkit> {
 public:
  static void Play(long events) {
    constexpr long kSession = 100;
    events = FromEnvironment("MONKEY_EVENTS", events);
    const long seed = FromEnvironment("MONKEY_SEED", std::random_device()() / 2);
    SCOPED_TRACE("again with MONKEY_SEED=" + std::to_string(seed) +
                 " MONKEY_EVENTS=" + std::to_string(events));
    std::mt19937 random(static_cast<unsigned>(seed));
    [[maybe_unused]] long early = 0;
    for (long done = 0; done < events && !testing::Test::HasFailure(); done += kSession) {
      Monkey(random).PlaySession(std::min(kSession, events - done));
      if (done == 0) early = PeakKilobytes();
    }
#ifndef __SANITIZE_ADDRESS__  // which holds freed memory for a while, to see late uses of it
    if (events < 1000 * kSession) return;
    EXPECT_LT(PeakKilobytes(), early + 16 * 1024) << "memory grows with use";
#endif
  }

 private:
  explicit Monkey(std::mt19937& random) : random_(random) {}

  static long FromEnvironment(const char* name, long otherwise) {
    const char* const text = std::getenv(name);
    return text == nullptr ? otherwise : std::stol(text);
  }
  static long PeakKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
  }
  int Pick(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }
  int PickRow(const auto& rows) { return Pick(static_cast<int>(rows.size()) + 1) - 1; }

  void PlaySession(long events) {
    OpenOnAnyLibrary();
    Hand hand(*this->window_);
    for (long event = 0; event < events && !testing::Test::HasFailure(); ++event) {
      SCOPED_TRACE("event " + std::to_string(event) + ": " + (event == 0 ? "opening" : Act(hand)));
      const auto& window = *this->window_;
      EXPECT_EQ(this->Exact(), oracle_.exact);
      EXPECT_EQ(this->Containing(), oracle_.containing);
      EXPECT_EQ(this->Stars(), oracle_.stars);
      EXPECT_EQ(this->Captions(), oracle_.Captions());
      EXPECT_EQ(Text(window.lbValue()->Text()), oracle_.value);
      EXPECT_EQ(Text(window.lbScale()->Text()), oracle_.scale);
      EXPECT_EQ(window.lbContaining()->ListIndex(), oracle_.chosen);
      EXPECT_EQ(window.lbExact()->ListIndex(), oracle_.chosen_exact);
      EXPECT_EQ(window.pmRoot()->ListIndex(), oracle_.root);
      if constexpr (Hand::kShowsFailures) {
        hand.ExpectMirrored(window);
      } else {
        EXPECT_EQ(this->Told().size(), oracle_.told);
        this->toolkit_.ClearLog();
      }
    }
  }

  /// Up to thirty scales, empty ones and full ones among them; at times with a fault at the end.
  void OpenOnAnyLibrary() {
    std::string file = "a\nb";
    for (int i = Pick(30); i > 0; --i) {
      auto& [name, notes] = oracle_.library.emplace_back("S" + std::to_string(i), kNoNotes);
      const int quarters = Pick(5);
      for (char& note : notes) note = Pick(4) < quarters ? '1' : '0';
      file += "\n" + Line(name, notes);
    }
    oracle_.named = Hand::kShowsFailures || Pick(5) > 0;
    oracle_.told = oracle_.named ? 0 : 1;
    this->Open(oracle_.named ? file : file + "\nBank,short");
  }

  /// Does one thing, to the window and to the oracle. What it was.
  std::string Act(Hand& hand) {
    oracle_.told = 0;
    const int note = Pick(12);
    const int top = PickRow(oracle_.exact);
    const int row = PickRow(oracle_.containing);
    const auto both = [&](const std::string& act, const auto& operation) {
      operation(oracle_);
      operation(hand);
      return act + ", note " + std::to_string(note) + ", rows " + std::to_string(top) + " and " +
             std::to_string(row);
    };
    const int what = Pick(12);
    if (what < 5) return both("tick", [&](auto& it) { it.Tick(note); });
    if (what == 5) return both("root", [&](auto& it) { it.ChooseRoot(note); });
    if (what == 6) return both("other roots", [](auto& it) { it.TickOther(); });
    if (what == 7) return both("in list only", [](auto& it) { it.TickInListOnly(); });
    if (what == 8) hand.ChangeAppearance();
    if (what == 8 && top >= 0) return both("top row", [&](auto& it) { it.ChooseExactRow(top); });
    if (row < 0) return both("no row", [](auto& it) { it.TakeChoiceBack(); });
    return both("row", [&](auto& it) { it.ChooseRow(row); });
  }

  Oracle oracle_;
  std::mt19937& random_;
};

}  // namespace support
