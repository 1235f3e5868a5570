#include "toolkit/qt/native_window.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <algorithm>

#include "framework/controls/reading.h"
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
  TieControls();
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
  TieControls();
  OrderTabs();
}

void NativeWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  window_.Close();
}

ControlPeer& NativeWindow::PeerOf(const Ref<RectControl>& control) const {
  const auto found =
      std::ranges::find(peers_, control.Get(), [](const auto& peer) { return &peer->Control(); });
  return **found;
}

void NativeWindow::TieControls() {
  for (const auto& peer : peers_) {
    RectControl& control = peer->Control();
    if (const Ref<Label> title = _TitleOf(control)) {
      peer->Title(Shown(title->Text()), PeerOf(title));
    }
    const auto* const label = dynamic_cast<const Label*>(&control);
    if (label == nullptr) continue;
    if (const Ref<RectControl> other = _RemarkedBy(*label)) {
      static_cast<LabelPeer&>(*peer).RemarkOn(PeerOf(other));
    }
  }
}

void NativeWindow::OrderTabs() {
  const auto order = _TabOrder(window_);
  for (std::size_t i = 1; i < order.size(); ++i) {
    setTabOrder(&PeerOf(order[i - 1]).Widget(), &PeerOf(order[i]).Widget());
  }
  if (!order.empty() && focusWidget() == nullptr) PeerOf(order.front()).Widget().setFocus();
}

}  // namespace toolkit::qt
