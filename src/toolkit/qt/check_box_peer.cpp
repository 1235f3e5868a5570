#include "toolkit/qt/check_box_peer.h"

#include "toolkit/qt/text.h"

namespace toolkit::qt {

using framework::Change;

CheckBoxPeer::CheckBoxPeer(const framework::Ref<framework::CheckBox>& box, QWidget* content)
    : ControlPeer(box, new QCheckBox(content)),
      box_(box),
      widget_(static_cast<QCheckBox*>(&Widget())) {
  // A screen reader turns the tick over without a click.
  QObject::connect(widget_, &QCheckBox::toggled, Context(), [this](bool ticked) {
    if (ticked == box_->Value()) return;
    box_->Toggle();
    TellOutcome({});
  });
}

void CheckBoxPeer::Show(Change what) {
  if (what == Change::Caption) widget_->setText(ShownPlain(box_->Caption()));
  if (what == Change::Value) widget_->setChecked(box_->Value());
}

}  // namespace toolkit::qt
