#include "toolkit/qt/control_peer.h"

#include <QAccessible>
#include <algorithm>

#include "framework/controls/reading.h"
#include "framework/controls/window.h"
#include "toolkit/qt/announce.h"
#include "toolkit/qt/check_box_peer.h"
#include "toolkit/qt/condensed.h"
#include "toolkit/qt/guarded.h"
#include "toolkit/qt/label_peer.h"
#include "toolkit/qt/listbox_peer.h"
#include "toolkit/qt/popup_menu_peer.h"
#include "toolkit/qt/text.h"
#include "toolkit/qt/tool_tip.h"

namespace toolkit::qt {

using namespace framework;

namespace {

QRect FrameOf(const RectControl& control) {
  return {static_cast<int>(control.Left()), static_cast<int>(control.Top()),
          static_cast<int>(control.Width()), static_cast<int>(control.Height())};
}

/// How far a text at the control's place can run to the right before it meets another control.
int RoomFor(const RectControl& control) {
  const QRect frame = FrameOf(control);
  constexpr int kGap = 4;
  const auto window = control.Window();
  int end = static_cast<int>(window->Width());
  for (const Ref<framework::Control>& other : window->_Controls()) {
    const QRect taken = FrameOf(*RuntimeCheckCast<RectControl>(other));
    const bool beside = taken.top() <= frame.bottom() && taken.bottom() >= frame.top();
    if (beside && taken.left() > frame.right()) end = std::min(end, taken.left());
  }
  return end - kGap - frame.left();
}

}  // namespace

QString ObjectName(const RectControl& control) {
  const QString name = Shown(control.Name());
  return control.Index() == Control::kNoIndex ? name : name + QString::number(control.Index());
}

ControlPeer::ControlPeer(const Ref<RectControl>& control, QWidget* widget)
    : control_(control), widget_(widget) {
  control_->_SetPeer(this);
}

ControlPeer::~ControlPeer() { control_->_SetPeer(nullptr); }

void ControlPeer::Build() {
  widget_->setObjectName(ObjectName(*control_));
  Look();
  for (const Change what : {Change::Rows, Change::Caption, Change::Text, Change::Value,
                            Change::ListIndex, Change::Visible}) {
    Show(what);
  }
  Place();
  widget_->setVisible(control_->Visible());
}

void ControlPeer::Changed(Change what) {
  if (what == Change::Look) Look();
  if (what == Change::Visible) widget_->setVisible(control_->Visible());
  Show(what);
  switch (what) {
    case Change::Frame:
    case Change::Look:
    case Change::Caption:
    case Change::Text:
      return Place();
    default:
      return;
  }
}

void ControlPeer::Title(const QString&, ControlPeer&) {}

void ControlPeer::Remark(const QString& remark) {
  remark_ = remark;
  Describe();
}

void ControlPeer::TellOutcome(const QString& news) {
  if (!QAccessible::isActive()) return;
  RunLater(Context(), [this, news] {
    QStringList words{news, Shown(_Tally(*control_->Window()))};
    words.removeAll(QString());
    Announce(*widget_->window(), words.join(QLatin1String(". ")));
  });
}

void ControlPeer::Place() {
  // The frame keeps its measures. A text that is wider, in this platform's font, runs on past it as
  // far as nothing is in the way, where it may, and is condensed to the room that there is.
  QRect place = FrameOf(*control_);
  int wanted = WantedWidth();
  if (wanted > place.width() || widget_->font().stretch() != QFont::AnyStretch) {
    const int room = MayRunOn() ? std::max(place.width(), RoomFor(*control_)) : place.width();
    widget_->setFont(Condensed(widget_->font(), room, [&](const QFont& font) {
      widget_->setFont(font);
      return wanted = WantedWidth();
    }));
    place.setWidth(std::max(place.width(), std::min(wanted, room)));
  }
  widget_->setGeometry(place);
}

void ControlPeer::Look() {
  widget_->setToolTip(ToolTip(Shown(control_->HelpTag())));
  Describe();
  widget_->setEnabled(control_->Enabled());
  QFont font = widget_->font();
  if (control_->TextSize() > 0) font.setPixelSize(static_cast<int>(control_->TextSize()));
  font.setBold(control_->Bold());
  font.setItalic(control_->Italic());
  font.setUnderline(control_->Underline());
  widget_->setFont(font);
}

void ControlPeer::Describe() {
  QStringList parts{remark_, Shown(control_->HelpTag())};
  parts.removeAll(QString());
  widget_->setAccessibleDescription(parts.join(QLatin1Char(' ')));
}

std::unique_ptr<ControlPeer> MakePeer(const Ref<RectControl>& control, QWidget* content) {
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

}  // namespace toolkit::qt
