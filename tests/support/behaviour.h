#pragma once

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

  std::unique_ptr<Hand> hand_;
};

TYPED_TEST_SUITE_P(Behaviour);

TYPED_TEST_P(Behaviour, AnswersEveryInputAtOnce) {
  this->Open();
  for (const int i : {0, 4, 7}) this->hand_->Tick(i);
  EXPECT_THAT(this->Exact(), testing::ElementsAre("Bank|Triad|C"));
  EXPECT_THAT(this->Containing(), testing::ElementsAre("Bank|Major|C|2773"));
  this->hand_->ChooseRoot(2);
  EXPECT_THAT(this->Exact(), testing::ElementsAre("Bank|Triad|B"));
  EXPECT_EQ(Text(this->window_->lbValue()->Text()), "100010010000") << "the ticks stay";
  this->hand_->TickOther();
  EXPECT_THAT(this->Containing(), testing::SizeIs(6));
  this->hand_->TickInListOnly();
  EXPECT_THAT(this->Containing(),
              testing::ElementsAre("Bank|Major|B|2773", "Bank|Minor|D# / Eb|2906",
                                   "Bank|Major|F# / Gb|2773"));

  this->hand_->ChooseRow(1);
  EXPECT_EQ(this->Stars(), "101101011010");
  this->hand_->ChooseRow(2);
  EXPECT_EQ(this->Stars(), "101011010101") << "as the library has it";
  this->hand_->TakeChoiceBack();
  EXPECT_EQ(this->Stars(), "000000000000");
  EXPECT_EQ(Text(this->window_->lbScale()->Text()), "101011010101") << "stays";
}

REGISTER_TYPED_TEST_SUITE_P(Behaviour, AnswersEveryInputAtOnce);

}  // namespace support
