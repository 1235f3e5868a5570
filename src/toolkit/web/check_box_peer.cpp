#include "toolkit/web/check_box_peer.h"

namespace toolkit::web {

using framework::Change;

CheckBoxPeer::CheckBoxPeer(const framework::Ref<framework::CheckBox>& box, const Element& content)
    : ControlPeer(box, content, "label"),
      box_(box),
      input_(Outer(), "input"),
      caption_(Outer(), "span") {
  Outer().Attribute("class", "box");
  input_.Attribute("type", "checkbox");
  input_.Attribute("autocomplete", "off");  // or a browser would tick it as at an earlier visit
  input_.On("change", [this] {
    if ((input_.Get("checked") != 0) != box_->Value()) box_->Toggle();
  });
}

void CheckBoxPeer::Show(Change what) {
  if (what == Change::Caption) caption_.Text(box_->Caption());
  if (what == Change::Value) input_.Set("checked", box_->Value() ? 1 : 0);
}

}  // namespace toolkit::web
