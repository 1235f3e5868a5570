#include "window/layout.h"
#include "window/main_window.h"

// The making of the 35 controls, and the accessors that find them again. Each is made in the same
// steps: allocate, construct, file, apply its block, attach its handlers. The order is fixed: no
// control comes before the one that its block names as its container.

namespace window {

using namespace framework;

namespace {

/// Makes a control outside every set, as far as its block.
template <class C>
void Create(framework::Window& window, std::string_view name) {
  const auto control = window.__New<C>();
  control->Constructor();
  window._AddControl(name, control);
  _SetProperties(*RuntimeCheckCast<C>(window._ControlByName(name)), layout::Of(name));
}

/// Makes a member of a set, as far as its block.
template <class Member, class C>
void CreateMember(framework::Window& window, std::string_view name, std::int64_t index) {
  const auto control = window.__New<Member>();
  control->Constructor(index);
  window._AddControl(name, control);
  _SetProperties(*RuntimeCheckCast<C>(window._ControlByNameIndex(name, index)),
                 layout::Of(name, index));
}

}  // namespace

void wdwMainClass::CreateControls() {
  _CreateControls0();
  _CreateControls1();
}

void wdwMainClass::_CreateControls0() {
  const Ref<wdwMainClass> self(this);
  Create<Listbox>(*this, "lbContaining");
  RuntimeAddEventHandler(
      lbContaining(), Listbox::kChange,
      RuntimeCreateDelegate<&wdwMainClass::lbContaining_Change>(self, "( Listbox )"));
  for (const int index : {0, 1, 2, 4, 6, 8, 10}) _CreateNoteBox(index);
  _CreateStar(9);
  for (const int index : {3, 5, 7, 9, 11}) _CreateNoteBox(index);
  Create<Label>(*this, "lbValue");
  Create<Listbox>(*this, "lbExact");
  Create<Label>(*this, "Label1");
  Create<Label>(*this, "Label2");
  Create<Label>(*this, "Label3");
  Create<PopupMenu>(*this, "pmRoot");
  RuntimeAddEventHandler(
      pmRoot(), PopupMenu::kChange,
      RuntimeCreateDelegate<&wdwMainClass::pmRoot_Change>(self, "( PopupMenu )"));
  Create<Label>(*this, "Label4");
  for (const int index : {0, 1, 2, 5, 3, 6, 4, 7, 10}) _CreateStar(index);
}

void wdwMainClass::_CreateControls1() {
  const Ref<wdwMainClass> self(this);
  for (const int index : {8, 11}) _CreateStar(index);
  Create<Label>(*this, "lbScale");
  Create<CheckBox>(*this, "cbOther");
  RuntimeAddEventHandler(
      cbOther(), CheckBox::kAction,
      RuntimeCreateDelegate<&wdwMainClass::cbOther_Action>(self, "( CheckBox )"));
  Create<CheckBox>(*this, "cbRinL");
  RuntimeAddEventHandler(cbRinL(), CheckBox::kAction,
                         RuntimeCreateDelegate<&wdwMainClass::cbRinL_Action>(self, "( CheckBox )"));
}

void wdwMainClass::_CreateNoteBox(std::int64_t index) {
  CreateMember<cbScaleClass, CheckBox>(*this, "cbScale", index);
  _WireNoteBox(cbScale(index));
}

void wdwMainClass::_CreateStar(std::int64_t index) {
  CreateMember<lbStarClass, Label>(*this, "lbStar", index);
  lbStar(index)->_Spoken("In the chosen scale.");
  _WireStar(lbStar(index));
}

void wdwMainClass::_WireNoteBox(const Ref<CheckBox>& box) {
  const Ref<wdwMainClass> self(this);
  RuntimeAddEventHandler(
      box, CheckBox::kAction,
      RuntimeCreateDelegate<&wdwMainClass::cbScale_Action>(self, "( CheckBox )"));
  RuntimeAddEventHandler(box, CheckBox::kOpen,
                         RuntimeCreateDelegate<&wdwMainClass::cbScale_Open>(self, "( CheckBox )"));
}

void wdwMainClass::_WireStar(const Ref<Label>& star) {
  RuntimeAddEventHandler(
      star, Label::kOpen,
      RuntimeCreateDelegate<&wdwMainClass::lbStar_Open>(Ref<wdwMainClass>(this), "( Label )"));
}

Ref<Listbox> wdwMainClass::lbContaining() const {
  return RuntimeCheckCast<Listbox>(_ControlByName("lbContaining"));
}

Ref<CheckBox> wdwMainClass::cbScale(std::int64_t index) const {
  return RuntimeCheckCast<CheckBox>(_ControlByNameIndex("cbScale", index));
}

Ref<Label> wdwMainClass::lbStar(std::int64_t index) const {
  return RuntimeCheckCast<Label>(_ControlByNameIndex("lbStar", index));
}

Ref<Label> wdwMainClass::lbValue() const {
  return RuntimeCheckCast<Label>(_ControlByName("lbValue"));
}

Ref<Listbox> wdwMainClass::lbExact() const {
  return RuntimeCheckCast<Listbox>(_ControlByName("lbExact"));
}

Ref<Label> wdwMainClass::Label1() const {
  return RuntimeCheckCast<Label>(_ControlByName("Label1"));
}

Ref<Label> wdwMainClass::Label2() const {
  return RuntimeCheckCast<Label>(_ControlByName("Label2"));
}

Ref<Label> wdwMainClass::Label3() const {
  return RuntimeCheckCast<Label>(_ControlByName("Label3"));
}

Ref<PopupMenu> wdwMainClass::pmRoot() const {
  return RuntimeCheckCast<PopupMenu>(_ControlByName("pmRoot"));
}

Ref<Label> wdwMainClass::Label4() const {
  return RuntimeCheckCast<Label>(_ControlByName("Label4"));
}

Ref<Label> wdwMainClass::lbScale() const {
  return RuntimeCheckCast<Label>(_ControlByName("lbScale"));
}

Ref<CheckBox> wdwMainClass::cbOther() const {
  return RuntimeCheckCast<CheckBox>(_ControlByName("cbOther"));
}

Ref<CheckBox> wdwMainClass::cbRinL() const {
  return RuntimeCheckCast<CheckBox>(_ControlByName("cbRinL"));
}

}  // namespace window
