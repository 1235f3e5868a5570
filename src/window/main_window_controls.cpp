#include "window/layout.h"
#include "window/main_window.h"

// The making of the 35 controls, and the accessors that find them again. Each is made in the same
// steps: allocate, construct, file, apply its block, attach its handlers. The order is fixed: no
// control comes before the one that its block names as its container.

namespace window {

using namespace framework;

namespace {

/// Makes a control as far as its block: one outside every set, or the member of a set with that
/// index, which the window then finds as a Declared.
template <class C, class Declared = C, class... At>
void Create(framework::Window& window, std::string_view name, At... index) {
  const auto control = window.__New<C>();
  control->Constructor(index...);
  window._AddControl(name, control);
  const Ref<Control> filed = window._ControlByNameIndex(name, control->Index());
  _SetProperties(*RuntimeCheckCast<Declared>(filed), layout::Of(name, index...));
}

}  // namespace

void wdwMainClass::CreateControls() {
  _CreateControls0();
  _CreateControls1();
}

void wdwMainClass::_CreateControls0() {
  Create<Listbox>(*this, "lbContaining");
  _Wire<&wdwMainClass::lbContaining_Change>(lbContaining(), Listbox::kChange, "( Listbox )");
  for (const int index : {0, 1, 2, 4, 6, 8, 10}) _CreateNoteBox(index);
  _CreateStar(9);
  for (const int index : {3, 5, 7, 9, 11}) _CreateNoteBox(index);
  Create<Label>(*this, "lbValue");
  Create<Listbox>(*this, "lbExact");
  Create<Label>(*this, "Label1");
  Create<Label>(*this, "Label2");
  Create<Label>(*this, "Label3");
  Create<PopupMenu>(*this, "pmRoot");
  _Wire<&wdwMainClass::pmRoot_Change>(pmRoot(), PopupMenu::kChange, "( PopupMenu )");
  Create<Label>(*this, "Label4");
  for (const int index : {0, 1, 2, 5, 3, 6, 4, 7, 10}) _CreateStar(index);
}

void wdwMainClass::_CreateControls1() {
  for (const int index : {8, 11}) _CreateStar(index);
  Create<Label>(*this, "lbScale");
  Create<CheckBox>(*this, "cbOther");
  _Wire<&wdwMainClass::cbOther_Action>(cbOther(), CheckBox::kAction, "( CheckBox )");
  Create<CheckBox>(*this, "cbRinL");
  _Wire<&wdwMainClass::cbRinL_Action>(cbRinL(), CheckBox::kAction, "( CheckBox )");
}

void wdwMainClass::_CreateNoteBox(std::int64_t index) {
  Create<cbScaleClass, CheckBox>(*this, "cbScale", index);
  _Wire<&wdwMainClass::cbScale_Action>(cbScale(index), CheckBox::kAction, "( CheckBox )");
  _Wire<&wdwMainClass::cbScale_Open>(cbScale(index), CheckBox::kOpen, "( CheckBox )");
}

void wdwMainClass::_CreateStar(std::int64_t index) {
  Create<lbStarClass, Label>(*this, "lbStar", index);
  _Wire<&wdwMainClass::lbStar_Open>(lbStar(index), Label::kOpen, "( Label )");
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
