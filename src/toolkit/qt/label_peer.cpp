#include "toolkit/qt/label_peer.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <optional>

#include "toolkit/qt/text.h"

namespace toolkit::qt {

using namespace framework;

namespace {

/// A label whose text may be of a larger size than its frame: then it is the ink of a centred text
/// that is centred, so that a glyph which sits high in its line, such as an asterisk, shows whole.
class InkLabel final : public QLabel {
 public:
  using QLabel::QLabel;

  /// The height in the frame at which the ink's middle stands, as far as the frame holds it; half
  /// the frame's own until this is called.
  void StandAt(double height) {
    middle_ = height;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    const bool centred = (alignment() & Qt::AlignHCenter) != 0;
    if (!centred || fontMetrics().height() <= height()) return QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    QPainterPath outline;
    outline.addText({}, font(), text());
    const QRectF ink = outline.boundingRect();
    const double half = ink.height() / 2;
    const double level = std::min(middle_.value_or(height() / 2.0), height() - half);
    const QPointF middle(width() / 2.0, std::max(level, half));
    painter.drawText(middle - ink.center(), text());
  }

 private:
  std::optional<double> middle_;
};

}  // namespace

LabelPeer::LabelPeer(const Ref<Label>& label, QWidget* content)
    : ControlPeer(label, new InkLabel(content)),
      label_(label),
      widget_(static_cast<QLabel*>(&Widget())) {
  widget_->setTextFormat(Qt::PlainText);
}

void LabelPeer::RemarkOn(ControlPeer& other) {
  remarks_on_ = &other;
  const RectControl& box = other.Control();
  static_cast<InkLabel*>(widget_)->StandAt(static_cast<double>(box.Top() - label_->Top()) +
                                           static_cast<double>(box.Height()) / 2);
  TellRemark();
}

void LabelPeer::TellRemark() {
  if (remarks_on_ == nullptr) return;
  remarks_on_->Remark(label_->Visible() ? widget_->accessibleName() : QString());
}

void LabelPeer::Show(Change what) {
  if (what == Change::Visible) TellRemark();
  if (what != Change::Text && what != Change::Look) return;
  widget_->setText(Shown(label_->Text()));
  const String& spoken = label_->_Spoken();
  widget_->setAccessibleName(Shown(spoken.View().empty() ? label_->Text() : spoken));
  TellRemark();
  const bool centred = label_->TextAlign() == Label::kCentre;
  widget_->setAlignment((centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
  const Color color = label_->TextColor();
  if (Same(color, Color{})) return;
  QPalette palette = widget_->palette();
  palette.setColor(QPalette::WindowText, QColor(color.first, color.green, color.third));
  widget_->setPalette(palette);
}

int LabelPeer::WantedWidth() const {
  return label_->TextAlign() == Label::kLeft ? widget_->sizeHint().width() : 0;
}

}  // namespace toolkit::qt
