#include <gmock/gmock.h>

#include "framework/check_box.h"
#include "framework/failures.h"
#include "framework/label.h"
#include "framework/listbox.h"
#include "framework/menu.h"
#include "framework/popup_menu.h"
#include "framework/runtime.h"
#include "framework/window.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A window with one control of a kind, whose handlers note what they hear.
class Bench final : public framework::Window {
 public:
  Bench() { Visible(true); }

  void ListChanged(const Ref<Listbox>& list) { heard.push_back(list->ListIndex()); }
  void BoxTicked(const Ref<CheckBox>& box) { heard.push_back(box->Value() ? 1 : 0); }
  void Chosen(const Ref<PopupMenu>& menu) { heard.push_back(menu->ListIndex()); }
  void Opened(const Ref<Label>&) { heard.push_back(-100); }

  template <class C>
  Ref<C> Make(const char* name, std::int64_t index = Control::kNoIndex) {
    const auto control = __New<C>();
    control->Index(index);
    control->Name(name);
    control->Constructor();
    _AddControl(name, control);
    return control;
  }

  std::vector<std::int64_t> heard;
};

class Controls : public testing::Test {
 protected:
  Controls() {
    RuntimeInit();
    framework::RuntimePerformInitializers({});
    list_->ColumnCount(4);
    menu_->InitialValue("A\rB\rC");
    RuntimeAddEventHandler(list_, Listbox::kChange,
                           RuntimeCreateDelegate<&Bench::ListChanged>(bench_, "( Listbox )"));
    RuntimeAddEventHandler(box_, CheckBox::kAction,
                           RuntimeCreateDelegate<&Bench::BoxTicked>(bench_, "( CheckBox )"));
    RuntimeAddEventHandler(menu_, PopupMenu::kChange,
                           RuntimeCreateDelegate<&Bench::Chosen>(bench_, "( PopupMenu )"));
    RuntimeAddEventHandler(label_, Label::kOpen,
                           RuntimeCreateDelegate<&Bench::Opened>(bench_, "( Label )"));
  }
  ~Controls() override {
    RuntimePerformFinalizers();
    RuntimeExit();
  }

  void Show() {
    bench_->Constructor();
    bench_->heard.clear();
    toolkit_.ClearLog();
  }

  toolkit::memory::MemoryToolkit toolkit_;
  Ref<Bench> bench_ = RuntimeNewObject<Bench>();
  Ref<Listbox> list_ = bench_->Make<Listbox>("list");
  Ref<CheckBox> box_ = bench_->Make<CheckBox>("box");
  Ref<PopupMenu> menu_ = bench_->Make<PopupMenu>("menu");
  Ref<Label> label_ = bench_->Make<Label>("label", 3);
};

TEST_F(Controls, SetterTellsThePeerOfARealChangeAlone) {
  Show();
  box_->Caption("C");
  box_->Caption("C");
  box_->Caption("c");
  label_->Visible(false);
  box_->Value(true);
  box_->State(CheckedStates::Checked);
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("box.Caption", "box.Caption", "box.Value"));
  EXPECT_THAT(bench_->heard, IsEmpty()) << "no event without the user";
}

TEST_F(Controls, UsersInputRaisesTheEventBehindTheNewState) {
  box_->Toggle();
  menu_->Choose(2);
  menu_->Choose(2);
  box_->Toggle();
  EXPECT_THAT(bench_->heard, ElementsAre(1, 2, 0));
  EXPECT_THROW(menu_->Choose(3), OutOfBoundsException);
}

TEST_F(Controls, RowTakesAsManyValuesAsThereAre) {
  list_->AddRow(CreateArray<String>(-1));
  list_->AddRow({"a", "b", "c", "d"});
  EXPECT_EQ(std::string(list_->Cell(0, 0)), "");
  EXPECT_EQ(std::string(list_->Cell(1, 3)), "d");
  EXPECT_EQ(list_->LastIndex(), 1);
  EXPECT_THROW(list_->AddRow(Array<String>()), NilObjectException);
  EXPECT_THROW(list_->AddRow({"a", "b", "c", "d", "e"}), OutOfBoundsException);
  EXPECT_THROW(list_->Cell(3, 0), OutOfBoundsException);
  EXPECT_THROW(list_->Cell(0, 4), OutOfBoundsException);
}

TEST_F(Controls, EmptyingAListTakesTheChoiceWithIt) {
  list_->DeleteAllRows();
  list_->AddRow({"a"});
  list_->AddRow({"b"});
  list_->DeleteAllRows();
  EXPECT_THAT(bench_->heard, IsEmpty()) << "nothing was chosen";
  list_->AddRow({"a"});
  list_->AddRow({"b"});
  list_->Select(1);
  list_->Select(1);
  list_->DeleteAllRows();
  list_->Select(-1);
  EXPECT_THAT(bench_->heard, ElementsAre(1, -1));
  EXPECT_THROW(list_->Select(0), OutOfBoundsException);
}

TEST_F(Controls, RegistryTellsMembersOfASetFromOthers) {
  EXPECT_EQ(bench_->_ControlByName("BOX"), box_);
  EXPECT_EQ(bench_->_ControlByNameIndex("label", 3), label_);
  EXPECT_FALSE(bench_->_ControlByName("label"));
  EXPECT_FALSE(bench_->_ControlByNameIndex("label", 2));
  EXPECT_EQ(box_->Window(), bench_);
}

TEST_F(Controls, HandlerMustFitTheEvent) {
  const auto handler = RuntimeCreateDelegate<&Bench::BoxTicked>(bench_, "( CheckBox )");
  EXPECT_THROW(RuntimeAddEventHandler(box_, 99, handler), FunctionNotFoundException);
  EXPECT_THROW(RuntimeAddEventHandler(label_, Label::kOpen, handler), TypeMismatchException);
  EXPECT_THROW(RuntimeAddEventHandler(nullptr, CheckBox::kAction, handler), NilObjectException);
}

TEST_F(Controls, OpenComesOnceWithTheWindowAndForAControlMadeLater) {
  bench_->Constructor();
  EXPECT_THAT(bench_->heard, ElementsAre(-100));
  const auto late = bench_->__New<Label>();
  RuntimeAddEventHandler(late, Label::kOpen,
                         RuntimeCreateDelegate<&Bench::Opened>(bench_, "( Label )"));
  bench_->_AddControl("late", late);
  late->Constructor();
  EXPECT_THAT(bench_->heard, ElementsAre(-100, -100));
}

TEST_F(Controls, InitialParentMustBeThere) {
  box_->InitialParent("label$3");
  EXPECT_EQ(box_->Parent(), label_);
  box_->InitialParent("");
  EXPECT_FALSE(box_->Parent());
  for (const char* const wrong : {"label$4", "label", "label$", "$3", "label$3x"}) {
    EXPECT_THROW(box_->InitialParent(wrong), InvalidParentException) << wrong;
  }
}

/// What a damaged block is refused with; what stood before the damage is set.
std::string Refused(Component& object, std::string_view bytes) {
  try {
    _SetProperties(object,
                   {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size() - 1});
  } catch (const UnsupportedFormatException& failure) {
    return std::string(failure.Message());
  }
  return "";
}

TEST_F(Controls, BlockIsReadToItsLengthAndDamageIsNamed) {
  using namespace std::literals;
  EXPECT_EQ(Refused(*box_, "\xFFHelpTag \0\0\0\0Caption \1\0\0\0C"s), "");
  EXPECT_EQ(std::string(box_->Caption()), "C");
  EXPECT_EQ(Refused(*label_, "\xFFmULTIline \1"s), "");
  EXPECT_TRUE(label_->MultiLine());
  EXPECT_THAT(Refused(*box_,
                      "\xFF"
                      "Caption \1\0\0\0DMultiline \1"s),
              AllOf(HasSubstr("CheckBox"), HasSubstr("\"Multiline\""), HasSubstr("offset 24")));
  EXPECT_EQ(std::string(box_->Caption()), "D");
  EXPECT_THAT(Refused(*box_,
                      "\xFF"
                      "Caption \2\0\0\0E"s),
              HasSubstr("past the end"));
  EXPECT_THAT(Refused(*box_, "\xFFLeft \1\0\0\0\0\0\0"s), HasSubstr("past the end"));
  EXPECT_THAT(Refused(*box_, "\xFFLeft"s), HasSubstr("without an end"));
}

TEST_F(Controls, MenuItemsAreFoundAndEnabledByTheirRule) {
  const auto bar = RuntimeNewObject<framework::MenuBar>();
  const auto title = RuntimeNewObject<MenuItem>();
  const auto quit = RuntimeNewObject<QuitMenuItem>();
  const auto idle = RuntimeNewObject<MenuItem>();
  title->Name("title");
  quit->Name("quit");
  for (const Ref<MenuItem>& item : {title, Ref<MenuItem>(quit), idle}) item->AutoEnable(true);
  bar->Append(title);
  title->Append(quit);
  title->Append(idle);
  EXPECT_THROW(bar->Append(quit), MenuHasParentException);
  EXPECT_EQ(bar->_Lookup("quit"), quit);
  EXPECT_FALSE(bar->Child("quit"));

  bar->_DisableEntirely();
  EXPECT_TRUE(bar->Enabled());
  quit->Choose();
  EXPECT_THAT(toolkit_.Lines(), IsEmpty()) << "a disabled item does nothing";
  bar->_SelfEnable();
  EXPECT_TRUE(title->Enabled());
  EXPECT_FALSE(idle->Enabled());
  quit->Choose();
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("quit"));
}

}  // namespace
