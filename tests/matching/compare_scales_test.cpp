#include "matching/compare_scales.h"

#include "framework/text.h"
#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A pass over controls that stand in no window.
class Pass : public testing::Test, public matching::SearchWindow {
 protected:
  Pass() {
    for (auto& box : boxes_) box = RuntimeNewObject<CheckBox>();
    boxes_[0]->Caption("C");
    root_->ListIndex(3);
    exact_->ColumnCount(3);
    containing_->ColumnCount(4);
    for (const char* const name : {"A", "A# / Bb", "B", "C", "C# / Db", "D", "D# / Eb", "E", "F",
                                   "F# / Gb", "G", "G# / Ab"}) {
      labels_.Append(name);
    }
    for (const std::string& line : {kMajor, kMinor, kWholeTone, kTriad}) Add(line);
  }

  void Add(const std::string& line) {
    const auto scale = RuntimeNewObject<pitch::TScale>();
    scale->Constructor(Split(line, ","));
    scales_.Append(scale);
  }
  void Compare(std::initializer_list<std::size_t> ticked) {
    for (const auto& box : boxes_) box->Value(false);
    for (const std::size_t i : ticked) boxes_[i]->Value(true);
    matching::CompareScales(*this);
  }
  void CompareAll() { Compare({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}); }

  Ref<CheckBox> cbScale(std::int64_t i) const override {
    return boxes_[static_cast<std::size_t>(i)];
  }
  Ref<CheckBox> cbOther() const override { return other_; }
  Ref<CheckBox> cbRinL() const override { return in_list_; }
  Ref<PopupMenu> pmRoot() const override { return root_; }
  Ref<Label> lbValue() const override { return value_; }
  Ref<Listbox> lbExact() const override { return exact_; }
  Ref<Listbox> lbContaining() const override { return containing_; }
  const Array<String>& Labels() const override { return labels_; }
  const pitch::Scales& Scale() const override { return scales_; }

  std::array<Ref<CheckBox>, 12> boxes_;
  Ref<CheckBox> other_ = RuntimeNewObject<CheckBox>();
  Ref<CheckBox> in_list_ = RuntimeNewObject<CheckBox>();
  Ref<PopupMenu> root_ = RuntimeNewObject<PopupMenu>();
  Ref<Label> value_ = RuntimeNewObject<Label>();
  Ref<Listbox> exact_ = RuntimeNewObject<Listbox>();
  Ref<Listbox> containing_ = RuntimeNewObject<Listbox>();
  Array<String> labels_ = CreateArray<String>(-1);
  pitch::Scales scales_ = CreateArray<Ref<pitch::TScale>>(-1);
};

TEST_F(Pass, UnderTheSelectedRoot) {
  Compare({0, 4, 7});
  EXPECT_EQ(Text(value_->Text()), "100010010000");
  EXPECT_THAT(Rows(*exact_), ElementsAre("Triad|C"));
  EXPECT_THAT(Rows(*containing_), ElementsAre("Major|C|2773"));
  EXPECT_EQ(Text(containing_->Cell(0, 0)), "Bank");
  Compare({4, 7});
  EXPECT_EQ(Text(value_->Text()), "10010000");
  EXPECT_THAT(Rows(*exact_), IsEmpty());
  EXPECT_THAT(Rows(*containing_), ElementsAre("Major|C|2773", "Triad|C|2192"));
}

TEST_F(Pass, WithNothingTickedShowsTheWholeLibrary) {
  Add(Line("Nothing", {}));
  Compare({});
  EXPECT_EQ(Text(value_->Text()), "0");
  EXPECT_THAT(Rows(*exact_), ElementsAre("Nothing|C"));
  EXPECT_THAT(Rows(*containing_), SizeIs(4));
}

TEST_F(Pass, WithEverythingTickedFindsOnlyAllTwelve) {
  Add(Line("Chromatic", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
  other_->Value(true);
  CompareAll();
  EXPECT_THAT(Rows(*containing_), IsEmpty());
  EXPECT_THAT(Rows(*exact_), SizeIs(12));
  EXPECT_EQ(Rows(*exact_).back(), "Chromatic|B");
}

TEST_F(Pass, OverOtherRootsKeepsTheLibrarysOwnMask) {
  other_->Value(true);
  Compare({0, 4, 7});
  EXPECT_THAT(Rows(*exact_), ElementsAre("Triad|C"));
  EXPECT_THAT(Rows(*containing_), ElementsAre("Major|C|2773", "Minor|D|2906", "Minor|E|2906",
                                              "Major|F|2773", "Major|G|2773", "Minor|A|2906"));
  in_list_->Value(true);
  Compare({0, 4, 7});
  EXPECT_THAT(Rows(*containing_), ElementsAre("Major|C|2773", "Minor|E|2906", "Major|G|2773"));
}

TEST_F(Pass, SearchesTheSelectedRootAlsoWhenItIsNotTicked) {
  other_->Value(true);
  Compare({4, 7});
  EXPECT_THAT(Rows(*containing_), ElementsAre("Major|C|2773", "Triad|C|2192", "Major|D|2773",
                                              "Minor|D|2906", "Minor|E|2906", "Major|F|2773",
                                              "Major|G|2773", "Minor|A|2906", "Minor|B|2906"));
  in_list_->Value(true);
  Compare({4, 7});
  EXPECT_THAT(Rows(*containing_),
              ElementsAre("Major|C|2773", "Triad|C|2192", "Minor|E|2906", "Major|G|2773"));
}

TEST_F(Pass, GivesARecordARowForEveryRootItMatchesOn) {
  other_->Value(true);
  Compare({0, 2, 4, 6, 8, 10});
  EXPECT_THAT(Rows(*exact_),
              ElementsAre("Whole Tone|C", "Whole Tone|D", "Whole Tone|E", "Whole Tone|F# / Gb",
                          "Whole Tone|G# / Ab", "Whole Tone|A# / Bb"));
  Compare({});
  EXPECT_THAT(Rows(*containing_), SizeIs(48));
  EXPECT_EQ(Rows(*containing_).back(), "Triad|B|2192");
  in_list_->Value(true);
  Compare({});
  EXPECT_THAT(Rows(*containing_), SizeIs(4)) << "no position passes";
}

TEST_F(Pass, NamesOtherRootsFromTheSelectedOneOn) {
  other_->Value(true);
  in_list_->Value(true);
  root_->ListIndex(11);
  boxes_[0]->Caption("G# / Ab");
  Compare({0, 1});
  EXPECT_THAT(Rows(*containing_), ElementsAre("Major|A|2773"));
  Compare({0, 2});
  EXPECT_THAT(Rows(*containing_),
              ElementsAre("Major|G# / Ab|2773", "Minor|G# / Ab|2906", "Whole Tone|G# / Ab|2730",
                          "Minor|A# / Bb|2906", "Whole Tone|A# / Bb|2730"));
}

TEST_F(Pass, WithoutNamesStopsAtTheFirstMatchElsewhere) {
  labels_ = CreateArray<String>(-1);
  other_->Value(true);
  EXPECT_THROW(Compare({0, 4, 7}), OutOfBoundsException);
  EXPECT_THAT(Rows(*containing_), ElementsAre("Major|C|2773"));
  CompareAll();
  EXPECT_THAT(Rows(*containing_), IsEmpty()) << "no match, no name asked for";
}

TEST_F(Pass, PassesOverALibraryThatIsNil) {
  scales_ = {};
  other_->Value(true);
  Compare({0});
  EXPECT_EQ(Text(value_->Text()), "100000000000");
  EXPECT_THAT(Rows(*containing_), IsEmpty());
}

}  // namespace
