#include <thread>

#include "support/behaviour.h"
#include "support/memory_hand.h"

namespace {

using namespace framework;
using namespace support;
using testing::ElementsAre;

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

TEST_F(Handlers, EveryOperationOnTheUserInterfaceIsRefusedOffTheMainThread) {
  const auto& window = *window_;
  const Listbox& list = *window.lbContaining();
  const auto box = window.cbScale(0);
  const auto star = window.lbStar(0);
  const auto popup = window.pmRoot();
  const auto item = window.FileQuit();
  const auto bar = window.MenuBar();
  const auto app = getAppObject();
  const std::function<void()> operations[] = {
      [&] { window.lbExact()->AddRow({"a"}); },
      [&] { list.Cell(0, 0); },
      [&] { window.lbExact()->Cell(0, 0, "a"); },
      [&] { window.lbExact()->DeleteAllRows(); },
      [&] { list.ListIndex(); },
      [&] { list.LastIndex(); },
      [&] { box->Value(); },
      [&] { box->Caption(); },
      [&] { box->Caption("a"); },
      [&] { window.lbValue()->Text("a"); },
      [&] { popup->ListIndex(); },
      [&] { star->Visible(true); },
      [&] { star->Parent(nullptr); },
      [&] { star->RectControl::Constructor(); },
      [&] { star->Index(1); },
      [&] { star->Window(); },
      [&] { window_->Constructor(); },
      [&] { window.MenuBar(); },
      [&] { window_->MenuBar(nullptr); },
      [&] { window_->_AddControl("a", box); },
      [&] { item->Constructor(); },
      [&] { item->Name("a"); },
      [&] { item->Text("a"); },
      [&] { item->KeyboardShortcut("a"); },
      [&] { item->AutoEnable(true); },
      [&] { item->Visible(true); },
      [&] { bar->Append(item); },
      [&] { bar->Child("a"); },
      [&] { bar->_Lookup("a"); },
      [&] { app->MenuBar(bar); },
  };
  std::size_t refused = 0;
  std::thread([&] {
    for (const auto& operation : operations) {
      try {
        operation();
      } catch (const ThreadAccessingUIException&) {
        ++refused;
        continue;
      }
      ADD_FAILURE() << "number " << &operation - operations << " was let through";
    }
  }).join();
  EXPECT_EQ(refused, std::size(operations));
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
