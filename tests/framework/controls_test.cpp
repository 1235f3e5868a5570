#include "framework/controls/check_box.h"
#include "framework/controls/label.h"
#include "framework/controls/listbox.h"
#include "framework/controls/popup_menu.h"
#include "framework/controls/window.h"
#include "framework/events/timer.h"
#include "support/running.h"

namespace {

using namespace framework;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A window whose handlers note in the log that they were called.
struct Bench final : framework::Window {
  explicit Bench(toolkit::memory::MemoryToolkit& toolkit) : log(toolkit) {}
  void Changed(const Ref<Listbox>&) { log.Log("changed"); }
  void Ticked(const Ref<CheckBox>&) { log.Log("ticked"); }
  void Event_Open() override {
    if (late) late->Constructor();
  }
  toolkit::memory::MemoryToolkit& log;
  Ref<CheckBox> late;  ///< finished by the window's Open
};

class Controls : public support::Running {
 protected:
  Controls() {
    box_->Name("box");
    box_->Index(3);
    list_->Name("list");
    bench_->_AddControl("list", list_);
    bench_->_AddControl("box", box_);
    RuntimeAddEventHandler(list_, Listbox::kChange,
                           RuntimeCreateDelegate<&Bench::Changed>(bench_, "( Listbox )"));
    RuntimeAddEventHandler(box_, CheckBox::kAction, ticked_);
  }

  void Show() {
    bench_->Visible(true);
    bench_->Constructor();
    toolkit_.ClearLog();
  }

  Ref<Bench> bench_ = RuntimeNewObject<Bench>(toolkit_);
  Ref<Listbox> list_ = bench_->__New<Listbox>();
  Ref<CheckBox> box_ = bench_->__New<CheckBox>();
  Ref<Delegate> ticked_ = RuntimeCreateDelegate<&Bench::Ticked>(bench_, "( CheckBox )");
};

TEST_F(Controls, TellThePeerOfARealChangeAlone) {
  Show();
  for (const char* const caption : {"C", "C", "c"}) box_->Caption(caption);
  box_->Visible(false);
  box_->Value(true);
  box_->State(CheckedStates::Checked);
  for (const int columns : {1, 2, 1}) list_->ColumnCount(columns);
  list_->AddRow({"a"});
  for (const char* const text : {"a", "A", "A"}) list_->Cell(0, 0, text);
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("box(3).Caption", "box(3).Caption", "box(3).Value",
                                            "list.Look", "list.Look", "list.Rows", "list.Rows"));
}

TEST_F(Controls, ShareTheWidthAsFarAsTheLastColumnThatHasOne) {
  list_->ColumnCount(4);
  list_->ColumnWidths("35%,0%,15.5%");
  EXPECT_THAT(list_->_ColumnShares(), ElementsAre(350, 0, 155));
  list_->ColumnWidths("-1,1e300,0,1,1");
  EXPECT_THAT(list_->_ColumnShares(), ElementsAre(0, 1000, 0, 10)) << "as many as it has";
  list_->ColumnWidths("");
  EXPECT_THAT(list_->_ColumnShares(), IsEmpty());
}

TEST_F(Controls, RaiseEventsForTheUserAndForAChosenRowThatGoes) {
  Show();
  list_->AddRow({"a"});
  list_->DeleteAllRows();
  box_->Toggle();
  list_->AddRow({"a"});
  for (int twice = 0; twice < 2; ++twice) list_->Select(0);
  for (int twice = 0; twice < 2; ++twice) list_->DeleteAllRows();
  EXPECT_THAT(toolkit_.Lines(),
              ElementsAre("list.Rows", "list.Rows", "box(3).Value", "ticked", "list.Rows",
                          "list.ListIndex", "changed", "list.Rows", "list.ListIndex", "changed"));
}

TEST_F(Controls, GetTheirOpenOnceAlsoWhenTheWindowsOpenMakesThem) {
  bench_->late = bench_->__New<CheckBox>();
  for (const auto& box : {box_, bench_->late}) RuntimeAddEventHandler(box, Control::kOpen, ticked_);
  bench_->Constructor();
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("ticked", "ticked"));
}

TEST_F(Controls, OutliveTheirWindow) {
  bench_ = nullptr;
  box_->Toggle();
  EXPECT_THAT(toolkit_.Lines(), IsEmpty());
  EXPECT_FALSE(box_->Window());
}

TEST_F(Controls, AreFoundByNameAndIndexAlsoAsParents) {
  EXPECT_EQ(bench_->_ControlByName("LIST"), list_);
  EXPECT_FALSE(bench_->_ControlByName("box")) << "it is the member of a set";
  list_->InitialParent("box$3");
  EXPECT_EQ(list_->Parent(), box_);
  list_->InitialParent("");
  EXPECT_FALSE(list_->Parent());
  const auto first = bench_->__New<CheckBox>();
  first->Index(0);
  bench_->_AddControl("box", first);
  for (const char* const wrong :
       {"box$4", "box", "box$", "$3", "box$3x", "list$-2147483648", "box$99999999999999999999"}) {
    EXPECT_THROW(list_->InitialParent(wrong), InvalidParentException) << wrong;
  }
  list_->InitialParent("box$0");
  EXPECT_EQ(list_->Parent(), first);
  first->InitialParent("box$3");
  EXPECT_THROW(first->InitialParent("box$0"), InvalidParentException) << "it is itself";
  EXPECT_THROW(box_->InitialParent("box$0"), InvalidParentException) << "it lies in the box";
  EXPECT_EQ(first->InitialParent().View(), "box$3");
}

/// An entry that works, and says in its EnableMenu that it does not.
struct Reluctant final : MenuItem {
  bool HandlesAction() const override { return true; }
  void EnableMenu() override { Enabled(false); }
};

TEST_F(Controls, OfAMenuAreEnabledByRuleAndHaveTheLastWord) {
  const Ref<MenuItem> items[] = {
      RuntimeNewObject<framework::MenuBar>(), RuntimeNewObject<MenuItem>(),
      RuntimeNewObject<Reluctant>(),          RuntimeNewObject<MenuItem>(),
      RuntimeNewObject<QuitMenuItem>(),       RuntimeNewObject<QuitMenuItem>(),
  };
  const auto& [bar, title, reluctant, idle, quit, aside] = items;
  for (const auto& each : items) each->AutoEnable(each != aside);
  bar->Append(title);
  title->Append(reluctant);
  for (const auto& each : {idle, quit, aside}) reluctant->Append(each);
  const auto enabled = [&items] {
    std::string digits;
    for (const auto& each : items) digits += each->Enabled() ? '1' : '0';
    return digits;
  };
  bar->_DisableEntirely();
  EXPECT_EQ(enabled(), "100000");
  quit->Choose();
  EXPECT_THAT(toolkit_.Lines(), IsEmpty());
  bar->_SelfEnable();
  EXPECT_EQ(enabled(), "110010");
  quit->Choose();
  EXPECT_TRUE(QuitMenuAction(quit));
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("quit", "quit"));
}

TEST_F(Controls, TakeAColourAsItsBlockHasIt) {
  const auto label = bench_->__New<Label>();
  _SetProperties(*label, {reinterpret_cast<const unsigned char*>("\xFFTextColor \1\2\3\4"), 14});
  EXPECT_EQ(label->TextColor(), (Color{1, 2, 3, 4}));
}

TEST_F(Controls, RefuseWhatDoesNotFit) {
  EXPECT_THROW(RuntimeAddEventHandler(box_, 99, ticked_), FunctionNotFoundException);
  EXPECT_THROW(RuntimeAddEventHandler(list_, Listbox::kChange, ticked_), TypeMismatchException);
  EXPECT_THROW(RuntimeAddEventHandler(nullptr, CheckBox::kAction, ticked_), NilObjectException);
  EXPECT_THROW(list_->AddRow(Array<String>()), NilObjectException);
  EXPECT_THROW(bench_->_AddControl("nil", nullptr), NilObjectException);
  EXPECT_THROW(RuntimeCreateDelegate<&Bench::Ticked>(nullptr, "( CheckBox )"), NilObjectException);
  EXPECT_THROW(Timer::CallLater(0, nullptr), NilObjectException);
  EXPECT_EQ(list_->LastIndex(), -1);
  EXPECT_THROW(list_->ColumnCount(0), InvalidArgumentException);
  EXPECT_THAT(Reported([&] {
                list_->AddRow({"a", "one too many"});
              }),
              HasSubstr("Index 1 is outside an array whose last index is 0"));
  EXPECT_EQ(list_->Cell(0, 0).View(), "a");
  EXPECT_THROW(list_->ColumnCount(2), InvalidArgumentException);
  const auto popup = bench_->__New<PopupMenu>();
  EXPECT_EQ(popup->Rows().LastIndex(), -1);
  popup->InitialValue("a");
  const std::function<void()> outside[] = {
      [&] { popup->Choose(-1); }, [&] { popup->Choose(1); },   [&] { list_->Cell(-1, 0); },
      [&] { list_->Cell(1, 0); }, [&] { list_->Cell(0, -1); }, [&] { list_->Cell(0, 1); },
      [&] { list_->Select(-2); }, [&] { list_->Select(1); },
  };
  for (const auto& each : outside)
    EXPECT_THAT(Reported(each), HasSubstr("an array whose last index is 0"));
  const auto bar = RuntimeNewObject<framework::MenuBar>();
  const auto item = RuntimeNewObject<MenuItem>();
  bar->Append(item);
  EXPECT_THROW(RuntimeNewObject<framework::MenuBar>()->Append(item), MenuHasParentException);
  EXPECT_THROW(bar->Append(bar), MenuHasParentException);
  EXPECT_THROW(item->Append(bar), MenuHasParentException) << "it would stand below itself";
  EXPECT_FALSE(bar->_Lookup("none"));
}

}  // namespace
