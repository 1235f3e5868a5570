#include "toolkit/qt/native_window.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <algorithm>

#include "framework/controls/label.h"
#include "toolkit/qt/label_peer.h"
#include "toolkit/qt/menu_builder.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {

using namespace framework;

NativeWindow::NativeWindow(const Ref<framework::Window>& window)
    : window_(*window), content_(new QWidget(this)) {
  setWindowTitle(Shown(window_.Title()));
  setCentralWidget(content_);
  if (const Ref<framework::MenuBar> bar = window_.MenuBar(); bar && window_.MenuBarVisible()) {
    BuildMenuBar(*bar, *menuBar());
  }
  for (const Ref<Control>& control : window_._Controls()) {
    peers_.push_back(MakePeer(RuntimeCheckCast<RectControl>(control), content_));
  }
  TitleControls();
  TieRemarks();
  OrderTabs();

  const auto size = [&](std::int64_t width, std::int64_t height) {
    const bool inside = menuWidget() != nullptr && !menuBar()->isNativeMenuBar();
    const int above = inside ? menuWidget()->sizeHint().height() : 0;
    return QSize(static_cast<int>(width), static_cast<int>(height) + above);
  };
  setMinimumSize(size(window_.MinWidth(), window_.MinHeight()));
  setMaximumSize(size(window_.MaxWidth(), window_.MaxHeight()));
  resize(size(window_.Width(), window_.Height()));
}

void NativeWindow::Added(const Ref<RectControl>& control) {
  peers_.push_back(MakePeer(control, content_));
  TitleControls();
  TieRemarks();
  OrderTabs();
}

void NativeWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  window_.Close();
}

void NativeWindow::TitleControls() {
  for (const auto& peer : peers_) {
    const QRect frame = peer->Widget().geometry();
    ControlPeer* title = nullptr;
    for (const auto& candidate : peers_) {
      const QRect above = candidate->Widget().geometry();
      const auto* const label = dynamic_cast<const Label*>(&candidate->Control());
      if (label == nullptr || !label->Visible() || above.bottom() >= frame.top()) continue;
      if (above.left() > frame.right() || above.right() < frame.left()) continue;
      if (title == nullptr || above.top() > title->Widget().geometry().top()) {
        title = candidate.get();
      }
    }
    if (title == nullptr) continue;
    peer->Title(Shown(static_cast<const Label&>(title->Control()).Text()), *title);
  }
}

void NativeWindow::TieRemarks() {
  for (const auto& peer : peers_) {
    auto* const label = dynamic_cast<LabelPeer*>(peer.get());
    if (label == nullptr) continue;
    const QRect frame = label->Widget().geometry();
    for (const auto& other : peers_) {
      const QRect beside = other->Widget().geometry();
      const bool level =
          beside.top() <= frame.center().y() && beside.bottom() >= frame.center().y();
      if (level && beside.left() == frame.right() + 1) label->RemarkOn(*other);
    }
  }
}

void NativeWindow::OrderTabs() {
  std::vector<QWidget*> order;
  for (const auto& peer : peers_) {
    if (peer->Widget().focusPolicy() != Qt::NoFocus) order.push_back(&peer->Widget());
  }
  std::ranges::stable_sort(
      order, {}, [](const QWidget* widget) { return std::pair(widget->x(), widget->y()); });
  for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
  if (!order.empty() && focusWidget() == nullptr) order.front()->setFocus();
}

}  // namespace toolkit::qt
