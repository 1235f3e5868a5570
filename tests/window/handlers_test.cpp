#include "support/behaviour.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using namespace support;
using testing::ElementsAre;

/// The user's hand on a window that has no screen.
class MemoryHand {
 public:
  using Toolkit = toolkit::memory::MemoryToolkit;

  MemoryHand(Toolkit&, window::wdwMainClass& window) : window_(window) {}
  void Tick(int position) { window_.cbScale(position)->Toggle(); }
  void TickOther() { window_.cbOther()->Toggle(); }
  void TickInListOnly() { window_.cbRinL()->Toggle(); }
  void ChooseRoot(int row) { window_.pmRoot()->Choose(row); }
  void ChooseRow(int row) { window_.lbContaining()->Select(row); }
  void ChooseExactRow(int row) { window_.lbExact()->Select(row); }
  void TakeChoiceBack() { window_.lbContaining()->Select(-1); }

 private:
  window::wdwMainClass& window_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(InMemory, Behaviour, MemoryHand);

/// What of each handler shows in the order in which the toolkit was told.
class Handlers : public ProgramOn<toolkit::memory::MemoryToolkit> {
 protected:
  Handlers() {
    Open();
    for (const int i : {0, 4}) window_->cbScale(i)->Toggle();
    window_->lbContaining()->Select(0);
    toolkit_.ClearLog();
  }
};

TEST_F(Handlers, TickRebuildsTheListsAndHidesTheStarsBehindThat) {
  // Stars shown by hand, without a chosen row, are hidden by the handler itself.
  window_->lbContaining()->Select(-1);
  window_->lbStar(3)->Visible(true);
  toolkit_.ClearLog();
  window_->cbScale(7)->Toggle();
  EXPECT_THAT(toolkit_.Lines(),
              ElementsAre("cbScale(7).Value", "lbValue.Text", "lbContaining.Rows",
                          "lbContaining.Rows", "lbContaining.Rows", "lbContaining.Rows",
                          "lbContaining.Rows", "lbContaining.Rows", "lbExact.Rows", "lbExact.Rows",
                          "lbExact.Rows", "lbExact.Rows", "lbStar(3).Visible"));
}

TEST_F(Handlers, OptionsAndRootLeaveStarsThatNoRowShows) {
  window_->lbContaining()->Select(-1);
  for (const auto& input : {std::function<void()>([&] { window_->cbOther()->Toggle(); }),
                            std::function<void()>([&] { window_->cbRinL()->Toggle(); }),
                            std::function<void()>([&] { window_->pmRoot()->Choose(0); })}) {
    window_->lbStar(3)->Visible(true);
    input();
    EXPECT_THAT(Stars(), ElementsAre(3));
  }
}

TEST_F(Handlers, MenuEntriesAreMembersOfTheWindow) {
  EXPECT_EQ(Text(window_->FileQuit()->Text()), "&Quit");
  EXPECT_EQ(Text(window_->EditClear()->Text()), "&Delete");
  EXPECT_EQ(window_->EditMenu()->_Lookup("EditSelectAll"), window_->EditSelectAll());
  for (const auto& item :
       {window_->EditUndo(), window_->EditCut(), window_->EditCopy(), window_->EditPaste(),
        window_->EditSeparator1(), window_->EditSeparator2(), window_->FileMenu()}) {
    EXPECT_FALSE(dynamic_cast<QuitMenuItem*>(item.Get()));
  }
  window_->MenuBar(nullptr);
  EXPECT_THROW(window_->FileQuit(), NilObjectException);
}

}  // namespace
