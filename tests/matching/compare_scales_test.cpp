#include "matching/compare_scales.h"

#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A pass over ticks and options that were set without the user, so that nothing else runs.
class Pass : public ProgramOn<toolkit::memory::MemoryToolkit> {
 protected:
  void Compare(std::initializer_list<int> ticked) {
    for (int i = 0; i < 12; ++i) window_->cbScale(i)->Value(false);
    for (const int i : ticked) window_->cbScale(i)->Value(true);
    matching::CompareScales(*window_);
  }
  void CompareAll() { Compare({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}); }
  void OnOtherRoots(bool in_list_only = false) {
    window_->cbOther()->Value(true);
    window_->cbRinL()->Value(in_list_only);
  }
};

TEST_F(Pass, UnderTheSelectedRoot) {
  Open();
  Compare({4, 7});
  EXPECT_EQ(Text(window_->lbValue()->Text()), "10010000");
  EXPECT_THAT(Exact(), IsEmpty());
  EXPECT_THAT(Containing(), ElementsAre("Major|C|2773", "Triad|C|2192"));
  EXPECT_EQ(Text(window_->lbContaining()->Cell(0, 0)), "Bank");
}

TEST_F(Pass, OfNothingAndOfEverything) {
  Open(kFourScales + "\n" + Line("Nothing", {}) + "\n" +
       Line("Chromatic", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
  Compare({});
  EXPECT_EQ(Text(window_->lbValue()->Text()), "0");
  EXPECT_THAT(Exact(), ElementsAre("Nothing|C"));
  EXPECT_THAT(Containing(), SizeIs(5));
  OnOtherRoots();
  Compare({});
  EXPECT_THAT(Containing(), SizeIs(60));
  CompareAll();
  EXPECT_THAT(Containing(), IsEmpty());
  EXPECT_THAT(Exact(), SizeIs(12));
  EXPECT_EQ(Exact().back(), "Chromatic|B");
  OnOtherRoots(true);
  Compare({});
  EXPECT_THAT(Containing(), SizeIs(5)) << "no position passes";
}

TEST_F(Pass, SearchesTheSelectedRootAlsoWhenItIsNotTicked) {
  Open();
  OnOtherRoots();
  Compare({4, 7});
  EXPECT_THAT(Containing(), ElementsAre("Major|C|2773", "Triad|C|2192", "Major|D|2773",
                                        "Minor|D|2906", "Minor|E|2906", "Major|F|2773",
                                        "Major|G|2773", "Minor|A|2906", "Minor|B|2906"));
  OnOtherRoots(true);
  Compare({4, 7});
  EXPECT_THAT(Containing(),
              ElementsAre("Major|C|2773", "Triad|C|2192", "Minor|E|2906", "Major|G|2773"));
}

TEST_F(Pass, GivesARecordARowForEveryRootItMatchesOn) {
  Open();
  OnOtherRoots();
  Compare({0, 2, 4, 6, 8, 10});
  EXPECT_THAT(Exact(),
              ElementsAre("Whole Tone|C", "Whole Tone|D", "Whole Tone|E", "Whole Tone|F# / Gb",
                          "Whole Tone|G# / Ab", "Whole Tone|A# / Bb"));
}

TEST_F(Pass, NamesOtherRootsFromTheSelectedOneOn) {
  Open();
  window_->pmRoot()->Choose(11);
  OnOtherRoots(true);
  Compare({0, 1});
  EXPECT_THAT(Containing(), ElementsAre("Major|A|2773"));
}

TEST_F(Pass, WithoutNamesStopsAtTheFirstMatchElsewhere) {
  Open();
  while (window_->Labels().LastIndex() >= 0) window_->Labels().Remove(0);
  OnOtherRoots();
  EXPECT_THROW(Compare({0, 4, 7}), OutOfBoundsException);
  EXPECT_THAT(Containing(), ElementsAre("Major|C|2773"));
  CompareAll();
  EXPECT_THAT(Containing(), IsEmpty()) << "no match, no name asked for";
}

}  // namespace
