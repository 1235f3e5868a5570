#include <thread>

#include "framework/controls/reading.h"
#include "framework/events/msg_box.h"
#include "support/monkey.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using namespace support;
using testing::ElementsAre;

/// The user's hand on a window that has no screen.
class MemoryHand {
 public:
  using Toolkit = toolkit::memory::MemoryToolkit;
  static constexpr bool kShowsFailures = false;

  explicit MemoryHand(window::wdwMainClass& window) : window_(window) {}
  void Tick(int position) { window_.cbScale(position)->Toggle(); }
  void TickOther() { window_.cbOther()->Toggle(); }
  void TickInListOnly() { window_.cbRinL()->Toggle(); }
  void ChooseRoot(int row) { window_.pmRoot()->Choose(row); }
  void ChooseRow(int row) { window_.lbContaining()->Select(row); }
  void ChooseExactRow(int row) { window_.lbExact()->Select(row); }
  void TakeChoiceBack() { window_.lbContaining()->Select(-1); }
  void ChangeAppearance() {}

 private:
  window::wdwMainClass& window_;
};

TEST(RandomClicks, AgreeWithAnOracleOfAnotherMake) { Monkey<MemoryHand>::Play(3000); }

using Handlers = ProgramOn<toolkit::memory::MemoryToolkit>;

TEST_F(Handlers, TickAloneHidesStarsThatNoRowShowsBehindAllElse) {
  Open();
  window_->lbStar(3)->Visible(true);
  window_->cbOther()->Toggle();
  window_->cbRinL()->Toggle();
  window_->pmRoot()->Choose(0);
  EXPECT_EQ(Stars(), "000100000000");
  toolkit_.ClearLog();
  window_->cbScale(7)->Toggle();
  EXPECT_THAT(toolkit_.Lines(), testing::Contains("lbContaining.Rows"));
  EXPECT_EQ(toolkit_.Lines().back(), "lbStar(3).Visible");
}

TEST_F(Handlers, AnswerAChordWithItsScalesAndSayHowManyThereAre) {
  Open();
  for (const int position : {0, 4, 7}) window_->cbScale(position)->Toggle();
  EXPECT_THAT(Exact(), ElementsAre("Bank|Triad|C"));
  EXPECT_THAT(Containing(), ElementsAre("Bank|Major|C|2773"));
  window_->pmRoot()->Choose(2);
  EXPECT_THAT(Exact(), ElementsAre("Bank|Triad|B"));
  window_->cbOther()->Toggle();
  window_->cbRinL()->Toggle();
  EXPECT_THAT(Containing(), ElementsAre("Bank|Major|B|2773", "Bank|Minor|D# / Eb|2906",
                                        "Bank|Major|F# / Gb|2773"));
  window_->lbContaining()->Select(1);
  EXPECT_EQ(Stars(), "101101011010");

  EXPECT_EQ(_Tally(*window_).View(), "Exact Match 1, Containing All Notes 3");
  window_->lbContaining()->Visible(false);
  EXPECT_EQ(_Tally(*window_).View(), "Exact Match 1");
  window_->Label2()->Visible(false);
  EXPECT_EQ(_Tally(*window_).View(), "") << "without a title";
}

TEST_F(Handlers, OperationsOnTheUserInterfaceAreRefusedOffTheMainThread) {
  Open();
  const auto quit = window_->FileQuit();
  const std::function<void()> operations[] = {
      [&] { window_->lbExact()->AddRow({"a"}); },
      [&] { window_->lbExact()->AddRow(Array<String>()); },
      [&] { window_->lbExact()->Cell(0, 9, "a"); },
      [&] { window_->lbExact()->DeleteAllRows(); },
      [&] { window_->lbExact()->ListIndex(); },
      [&] { window_->lbExact()->LastIndex(); },
      [&] { window_->cbScale(0)->Value(); },
      [&] { window_->cbScale(0)->Value(true); },
      [&] { window_->cbScale(0)->Index(0); },
      [&] { window_->cbScale(0)->Window(); },
      [&] { window_->cbScale(0)->Caption("a"); },
      [&] { window_->lbStar(0)->Text("a"); },
      [&] { window_->lbStar(0)->Visible(true); },
      [&] { window_->lbStar(0)->Parent(nullptr); },
      [&] { window_->pmRoot()->ListIndex(); },
      [&] { window_->MenuBar(); },
      [&] { window_->MenuBar(nullptr); },
      [&] { window_->_AddControl("a", nullptr); },
      [&] { RuntimeNewObject<framework::Window>()->Constructor(); },
      [&] { quit->Constructor(); },
      [&] { quit->Text("a"); },
      [&] { quit->Append(nullptr); },
      [&] { quit->_Lookup("a"); },
      [&] { quit->_DisableEntirely(); },
      [&] { quit->_SelfEnable(); },
      [&] { getAppObject()->MenuBar(nullptr); },
      [&] { MsgBox("a"); },
  };
  std::thread([&] {
    for (const auto& operation : operations) {
      toolkit_.ClearLog();
      Application::_CallFunctionWithExceptionHandling(operation);
      EXPECT_THAT(toolkit_.Lines(),
                  ElementsAre(testing::StartsWith(
                      "failure ThreadAccessingUIException: A thread has attempted to manipulate a "
                      "user interface element.")))
          << "number " << &operation - operations;
    }
  }).join();
}

}  // namespace
