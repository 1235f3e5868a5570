#pragma once

#include "framework/text.h"
#include "support/program.h"

namespace support {

/// How the window answers the user, whatever toolkit stands between. Hand is the user's: it has the
/// toolkit, and does what a user does with the controls.
template <class Hand>
class Behaviour : public ProgramOn<typename Hand::Toolkit> {
 protected:
  void Open(std::string_view library = kFourScales) {
    ProgramOn<typename Hand::Toolkit>::Open(library);
    hand_ = std::make_unique<Hand>(this->toolkit_, *this->window_);
  }
  ~Behaviour() override { hand_ = nullptr; }

  std::unique_ptr<Hand> hand_;
};

TYPED_TEST_SUITE_P(Behaviour);

TYPED_TEST_P(Behaviour, OpensWithNothingCompared) {
  this->Open();
  EXPECT_THAT(this->Captions(),
              testing::ElementsAre("C", "C# / Db", "D", "D# / Eb", "E", "F", "F# / Gb", "G",
                                   "G# / Ab", "A", "A# / Bb", "B"));
  EXPECT_THAT(this->Exact(), testing::IsEmpty());
  EXPECT_THAT(this->Containing(), testing::IsEmpty());
  EXPECT_THAT(this->Stars(), testing::IsEmpty());
  EXPECT_EQ(Text(this->window_->lbValue()->Text()), " ");
  EXPECT_EQ(Text(this->window_->lbScale()->Text()), " ");
}

TYPED_TEST_P(Behaviour, TicksSearchAtOnce) {
  this->Open();
  for (const int i : {0, 4, 7}) this->hand_->Tick(i);
  EXPECT_THAT(this->Exact(), testing::ElementsAre("Triad|C"));
  EXPECT_THAT(this->Containing(), testing::ElementsAre("Major|C|2773"));
  this->hand_->Tick(4);
  EXPECT_THAT(this->Exact(), testing::IsEmpty());
  EXPECT_THAT(this->Containing(),
              testing::ElementsAre("Major|C|2773", "Minor|C|2906", "Triad|C|2192"));
}

TYPED_TEST_P(Behaviour, RootRenamesTheBoxesAndLeavesTheTicks) {
  this->Open();
  for (const int i : {0, 4, 7}) this->hand_->Tick(i);
  this->hand_->ChooseRoot(9);
  EXPECT_THAT(this->Captions(), testing::ElementsAre("F# / Gb", "G", "G# / Ab", "A", "A# / Bb", "B",
                                                     "C", "C# / Db", "D", "D# / Eb", "E", "F"));
  EXPECT_THAT(this->Exact(), testing::ElementsAre("Triad|F# / Gb"));
  EXPECT_EQ(Text(this->window_->lbValue()->Text()), "100010010000");
}

TYPED_TEST_P(Behaviour, OptionsWidenAndNarrow) {
  this->Open();
  for (const int i : {0, 4, 7}) this->hand_->Tick(i);
  this->hand_->TickInListOnly();
  EXPECT_THAT(this->Containing(), testing::SizeIs(1)) << "means nothing by itself";
  this->hand_->TickOther();
  EXPECT_THAT(this->Containing(),
              testing::ElementsAre("Major|C|2773", "Minor|E|2906", "Major|G|2773"));
  this->hand_->TickInListOnly();
  EXPECT_THAT(this->Containing(), testing::SizeIs(6));
}

TYPED_TEST_P(Behaviour, RowShowsItsScaleAsTheLibraryHasIt) {
  this->Open();
  for (const int i : {0, 4, 7}) this->hand_->Tick(i);
  this->hand_->TickOther();
  this->hand_->ChooseRow(0);
  EXPECT_THAT(this->Stars(), testing::ElementsAre(0, 2, 4, 5, 7, 9, 11));
  EXPECT_EQ(Text(this->window_->lbScale()->Text()), "101011010101");
  this->hand_->ChooseRow(1);
  EXPECT_THAT(this->Stars(), testing::ElementsAre(0, 2, 3, 5, 7, 8, 10)) << "the former's are gone";
  this->hand_->ChooseRow(4);
  EXPECT_THAT(this->Stars(), testing::ElementsAre(0, 2, 4, 5, 7, 9, 11)) << "Major, also on G";
  this->hand_->ChooseExactRow(0);
  EXPECT_THAT(this->Stars(), testing::SizeIs(7)) << "the upper list reveals nothing";
  this->hand_->TakeChoiceBack();
  EXPECT_THAT(this->Stars(), testing::IsEmpty());
  EXPECT_EQ(Text(this->window_->lbScale()->Text()), "101011010101") << "stays";
}

TYPED_TEST_P(Behaviour, EveryInputTakesTheStarsAwayWithTheRows) {
  this->Open();
  const std::pair<const char*, std::function<void()>> inputs[] = {
      {"a tick", [this] { this->hand_->Tick(0); }},
      {"a root", [this] { this->hand_->ChooseRoot(5); }},
      {"other roots", [this] { this->hand_->TickOther(); }},
      {"in list only", [this] { this->hand_->TickInListOnly(); }},
  };
  this->hand_->Tick(7);
  for (const auto& [name, input] : inputs) {
    this->hand_->ChooseRow(1);
    EXPECT_THAT(this->Stars(), testing::SizeIs(7)) << name;
    input();
    EXPECT_THAT(this->Stars(), testing::IsEmpty()) << name;
    EXPECT_EQ(this->window_->lbContaining()->ListIndex(), -1) << name;
  }
}

REGISTER_TYPED_TEST_SUITE_P(Behaviour, OpensWithNothingCompared, TicksSearchAtOnce,
                            RootRenamesTheBoxesAndLeavesTheTicks, OptionsWidenAndNarrow,
                            RowShowsItsScaleAsTheLibraryHasIt,
                            EveryInputTakesTheStarsAwayWithTheRows);

}  // namespace support
