#include "toolkit/qt/check_box_peer.h"

#include <QKeyEvent>

#include "framework/controls/reading.h"
#include "toolkit/qt/guarded.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {

using framework::Change;

namespace {

/// From it the arrow keys go to the members of its control set, and not, as in Qt, to whatever is
/// next.
class Box final : public QCheckBox {
 public:
  Box(framework::CheckBox& box, QWidget* content) : QCheckBox(content), box_(box) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Up:
        return GoOn(-1, Qt::BacktabFocusReason);
      case Qt::Key_Down:
        return GoOn(1, Qt::TabFocusReason);
      case Qt::Key_Left:
      case Qt::Key_Right:
        return;
      default:
        QCheckBox::keyPressEvent(event);
    }
  }

 private:
  void GoOn(int step, Qt::FocusReason reason) {
    framework::_RunEvent([&] {
      const auto next = framework::_NextInSet(box_, step);
      if (next) parentWidget()->findChild<QWidget*>(ObjectName(*next))->setFocus(reason);
    });
  }

  framework::CheckBox& box_;  ///< which the peer holds
};

}  // namespace

CheckBoxPeer::CheckBoxPeer(const framework::Ref<framework::CheckBox>& box, QWidget* content)
    : ControlPeer(box, new Box(*box, content)),
      box_(box),
      widget_(static_cast<QCheckBox*>(&Widget())) {
  // A screen reader turns the tick over without a click.
  Connect(widget_, &QCheckBox::toggled, Context(), [this](bool ticked) {
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
