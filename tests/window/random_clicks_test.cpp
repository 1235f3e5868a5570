#include <map>
#include <random>
#include <set>

#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace support;

using Notes = std::set<int>;

const char* const kNames[] = {"A",       "A# / Bb", "B", "C",       "C# / Db", "D",
                              "D# / Eb", "E",       "F", "F# / Gb", "G",       "G# / Ab"};

/// What the window should show, reckoned with sets of semitones.
struct Oracle {
  std::vector<std::pair<std::string, Notes>> library;
  Notes ticked;
  int root = 3;
  bool other = false;
  bool in_list = false;
  Notes stars;
  std::vector<Notes> shown;  ///< the scale of each row of the lower list

  std::vector<std::string> exact;
  std::vector<std::string> containing;

  void Compare() {
    exact.clear();
    containing.clear();
    shown.clear();
    stars.clear();
    for (int position = 0; position < 12; ++position) {
      if (position > 0 && (!other || (in_list && !ticked.contains(position)))) continue;
      Notes from_here;
      for (const int note : ticked) from_here.insert((note - position + 12) % 12);
      for (const auto& [name, notes] : library) {
        const std::string row = name + "|" + kNames[(root + position) % 12];
        if (notes == from_here) {
          exact.push_back(row);
        } else if (std::includes(notes.begin(), notes.end(), from_here.begin(), from_here.end())) {
          int mask = 0;
          for (const int note : notes) mask += 1 << (11 - note);
          containing.push_back(row + "|" + std::to_string(mask));
          shown.push_back(notes);
        }
      }
    }
  }
};

class RandomClicks : public ProgramOn<toolkit::memory::MemoryToolkit> {};

TEST_F(RandomClicks, AgreeWithAnOracleOfAnotherMake) {
  const unsigned seed =
      testing::UnitTest::GetInstance()->random_seed() == 0
          ? std::random_device()()
          : static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed());
  SCOPED_TRACE("replay with --gtest_random_seed=" + std::to_string(seed));
  std::mt19937 random(seed);
  const auto pick = [&](int count) { return std::uniform_int_distribution(0, count - 1)(random); };

  Oracle oracle;
  std::string file = "a\nb";
  for (int i = 0; i < 60; ++i) {
    Notes notes;
    for (int note = 0; note < 12; ++note) {
      if (pick(2) == 0) notes.insert(note);
    }
    oracle.library.emplace_back("S" + std::to_string(i), notes);
    file += "\nBank,S" + std::to_string(i);
    for (int note = 0; note < 12; ++note) file += notes.contains(note) ? ",TRUE" : ",";
  }
  Open(file);

  for (int click = 0; click < 3000; ++click) {
    const int what = pick(10);
    if (what < 5) {
      const int position = pick(12);
      if (oracle.ticked.erase(position) == 0) oracle.ticked.insert(position);
      oracle.Compare();
      window_->cbScale(position)->Toggle();
    } else if (what == 5) {
      const int root = pick(12);
      if (root != oracle.root) {
        oracle.root = root;
        oracle.Compare();
      }
      window_->pmRoot()->Choose(root);
    } else if (what == 6) {
      oracle.other = !oracle.other;
      oracle.Compare();
      window_->cbOther()->Toggle();
    } else if (what == 7) {
      oracle.in_list = !oracle.in_list;
      oracle.Compare();
      window_->cbRinL()->Toggle();
    } else {
      const int row = pick(static_cast<int>(oracle.shown.size()) + 1) - 1;
      oracle.stars = row < 0 ? Notes() : oracle.shown[static_cast<std::size_t>(row)];
      window_->lbContaining()->Select(row);
    }
    ASSERT_EQ(Exact(), oracle.exact) << "click " << click;
    ASSERT_EQ(Containing(), oracle.containing) << "click " << click;
    ASSERT_EQ(Stars(), std::vector<int>(oracle.stars.begin(), oracle.stars.end()))
        << "click " << click;
    ASSERT_EQ(Captions().front(), kNames[oracle.root]);
  }
}

}  // namespace
