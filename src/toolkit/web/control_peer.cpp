#include "toolkit/web/control_peer.h"

#include "framework/values/cast.h"
#include "toolkit/web/check_box_peer.h"
#include "toolkit/web/label_peer.h"
#include "toolkit/web/listbox_peer.h"
#include "toolkit/web/popup_menu_peer.h"

namespace toolkit::web {

using namespace framework;

std::string IdOf(const framework::Control& control) {
  std::string id(control.Name());
  if (control.Index() != framework::Control::kNoIndex) {
    id.append("-").append(std::to_string(control.Index()));
  }
  return id;
}

ControlPeer::ControlPeer(const Ref<RectControl>& control, const Element& content, const char* tag)
    : control_(control), id_(IdOf(*control)), element_(content, tag) {
  element_.Attribute("id", id_);
  control_->_SetPeer(this);
}

ControlPeer::~ControlPeer() { control_->_SetPeer(nullptr); }

void ControlPeer::Build() {
  Place();
  Look();
  for (const Change what : {Change::Rows, Change::Caption, Change::Text, Change::Look,
                            Change::Value, Change::ListIndex, Change::Visible}) {
    Show(what);
  }
  element_.Show(control_->Visible());
  Refresh();
}

void ControlPeer::Changed(Change what) {
  if (what == Change::Frame) Place();
  if (what == Change::Look) Look();
  if (what == Change::Visible) element_.Show(control_->Visible());
  Show(what);
}

void ControlPeer::Remark(const std::string& remark) {
  remark_ = remark;
  Describe();
}

void ControlPeer::Place() {
  element_.Place(control_->Left(), control_->Top(), control_->Width(), control_->Height());
}

void ControlPeer::Look() {
  element_.AttributeOrNone("title", control_->HelpTag());
  Describe();
  Active().Set("disabled", control_->Enabled() ? 0 : 1);
  if (control_->TextSize() > 0)
    element_.Pixels("font-size", static_cast<std::int64_t>(control_->TextSize()));
  std::string classes = Class();
  if (control_->Bold()) classes += " bold";
  if (control_->Italic()) classes += " italic";
  if (control_->Underline()) classes += " underlined";
  element_.Attribute("class", classes);
}

void ControlPeer::Describe() {
  std::string text = remark_;
  if (!text.empty() && !control_->HelpTag().View().empty()) text.append(" ");
  Active().AttributeOrNone("aria-description", text.append(control_->HelpTag()));
}

std::unique_ptr<ControlPeer> MakePeer(const Ref<RectControl>& control, const Element& content) {
  std::unique_ptr<ControlPeer> peer;
  if (auto* const box = dynamic_cast<CheckBox*>(control.Get())) {
    peer = std::make_unique<CheckBoxPeer>(Ref<CheckBox>(box), content);
  } else if (auto* const label = dynamic_cast<Label*>(control.Get())) {
    peer = std::make_unique<LabelPeer>(Ref<Label>(label), content);
  } else if (auto* const list = dynamic_cast<Listbox*>(control.Get())) {
    peer = std::make_unique<ListboxPeer>(Ref<Listbox>(list), content);
  } else {
    peer = std::make_unique<PopupMenuPeer>(RuntimeCheckCast<PopupMenu>(control), content);
  }
  peer->Build();
  return peer;
}

}  // namespace toolkit::web
