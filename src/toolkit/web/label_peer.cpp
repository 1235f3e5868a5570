#include "toolkit/web/label_peer.h"

namespace toolkit::web {

using namespace framework;

LabelPeer::LabelPeer(const Ref<Label>& label, const Element& content)
    : ControlPeer(label, content, "span"), label_(label) {}

void LabelPeer::RemarkOn(ControlPeer& other) {
  remarks_on_ = &other;
  TellRemark();
}

void LabelPeer::TellRemark() {
  if (remarks_on_ == nullptr) return;
  const String& spoken = label_->_Spoken().View().empty() ? label_->Text() : label_->_Spoken();
  remarks_on_->Remark(label_->Visible() ? std::string(spoken) : std::string());
}

const char* LabelPeer::Class() const {
  return label_->TextAlign() == Label::kCentre ? "label centred" : "label";
}

void LabelPeer::Show(Change what) {
  if (what == Change::Visible || what == Change::Text) TellRemark();
  if (what == Change::Text) {
    Outer().Text(label_->Text());
    // A sign that is told by a word is a picture to a screen reader.
    Outer().AttributeOrNone("role", label_->_Spoken().View().empty() ? "" : "img");
    Outer().AttributeOrNone("aria-label", label_->_Spoken());
  }
  if (what != Change::Look) return;
  const Color color = label_->TextColor();
  if (Same(color, Color{})) return Outer().Style("color", "");
  Outer().Style("color", "rgb(" + std::to_string(color.first) + "," + std::to_string(color.green) +
                             "," + std::to_string(color.third) + ")");
}

}  // namespace toolkit::web
