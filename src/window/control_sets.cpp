#include "window/control_sets.h"

#include "window/layout.h"
#include "window/main_window.h"

namespace window {

using framework::Ref;

constinit const framework::ClassInfo cbScaleClass::kClass{
    "wdwMain.cbScale", &CheckBox::kClass, {}, {}};
constinit const framework::ClassInfo lbStarClass::kClass{"wdwMain.lbStar", &Label::kClass, {}, {}};

void cbScaleClass::Constructor() {
  _SetProperties(*this, layout::Of("cbScale", 0));
  const auto owner = framework::RuntimeCheckCast<wdwMainClass>(Window());
  const Ref<CheckBox> self(this);
  owner->_Wire<&wdwMainClass::cbScale_Action>(self, kAction, "( CheckBox )");
  owner->_Wire<&wdwMainClass::cbScale_Open>(self, kOpen, "( CheckBox )");
  Index(0);
  owner->_AddControl("cbScale", self);
  RectControl::Constructor();
}

void cbScaleClass::Constructor(std::int64_t index) {
  Index(index);
  RectControl::Constructor();
}

void lbStarClass::Constructor() {
  _SetProperties(*this, layout::Of("lbStar", 9));
  const auto owner = framework::RuntimeCheckCast<wdwMainClass>(Window());
  const Ref<Label> self(this);
  owner->_Wire<&wdwMainClass::lbStar_Open>(self, kOpen, "( Label )");
  Index(0);
  owner->_AddControl("lbStar", self);
  RectControl::Constructor();
}

void lbStarClass::Constructor(std::int64_t index) {
  Index(index);
  RectControl::Constructor();
}

}  // namespace window
