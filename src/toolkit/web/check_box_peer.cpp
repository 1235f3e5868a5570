#include "toolkit/web/check_box_peer.h"

#include "framework/controls/reading.h"
#include "toolkit/web/event.h"

namespace toolkit::web {

using namespace framework;
using event::Key;

CheckBoxPeer::CheckBoxPeer(const Ref<CheckBox>& box, const Element& content)
    : ControlPeer(box, content, "label"),
      box_(box),
      input_(Outer(), "input"),
      caption_(Outer(), "span") {
  input_.Attribute("type", "checkbox");
  input_.Attribute("autocomplete", "off");  // or a browser would tick it as at an earlier visit
  input_.On("change", [this] {
    if ((input_.Get("checked") != 0) != box_->Value()) box_->Toggle();
  });
  input_.On("keydown", [this] {
    const Key key = event::PressedKey();
    if (key != Key::kUp && key != Key::kDown) return;
    event::Take();  // or the browser would scroll the page
    const auto next = _NextInSet(*box_, key == Key::kUp ? -1 : 1);
    if (next) Element::Of(IdOf(*next).c_str()).Focus();
  });
}

void CheckBoxPeer::Show(Change what) {
  if (what == Change::Caption) caption_.Text(box_->Caption());
  if (what == Change::Value) input_.Set("checked", box_->Value() ? 1 : 0);
}

}  // namespace toolkit::web
