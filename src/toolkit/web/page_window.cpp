#include "toolkit/web/page_window.h"

#include <algorithm>
#include <set>
#include <string>

#include "framework/controls/reading.h"
#include "framework/values/cast.h"
#include "toolkit/web/label_peer.h"

namespace toolkit::web {

using namespace framework;

PageWindow::PageWindow(const Ref<framework::Window>& window)
    : window_(*window),
      desk_(Element::Of("desk")),
      frame_(desk_, "div"),
      content_(frame_, "div"),
      tally_(desk_, "p") {
  Element::Of("title").Text(window_.Title());
  Element::Of("heading").Text(window_.Title());
  frame_.Attribute("class", "frame");
  frame_.Style("--width", std::to_string(window_.Width()));
  frame_.Style("--height", std::to_string(window_.Height()));
  content_.Attribute("class", "window");
  tally_.Attribute("id", "tally");
  tally_.Attribute("role", "status");
  for (const Ref<Control>& control : window_._Controls()) {
    peers_.push_back(MakePeer(RuntimeCheckCast<RectControl>(control), content_));
  }
  Arrange();
}

void PageWindow::Added(const Ref<RectControl>& control) {
  peers_.push_back(MakePeer(control, content_));
  Arrange();
}

void PageWindow::Refresh() {
  bool rows_changed = false;
  for (const auto& peer : peers_) rows_changed |= peer->Refresh();
  if (rows_changed) tally_.Text(_Tally(window_));
}

ControlPeer& PageWindow::PeerOf(const RectControl& control) const {
  const auto found = std::find_if(peers_.begin(), peers_.end(),
                                  [&](const auto& peer) { return &peer->Control() == &control; });
  return **found;
}

void PageWindow::Arrange() {
  // What was put last stands behind all that was put before: labels of no control come first.
  std::set<const RectControl*> put;
  const auto put_last = [&](const RectControl& control) {
    if (put.insert(&control).second) PeerOf(control).Outer().PutBefore(nullptr);
  };
  for (const Ref<RectControl>& control : _TabOrder(window_)) {
    if (const Ref<Label> title = _TitleOf(*control)) {
      PeerOf(*control).Title(PeerOf(*title).Id());
      put_last(*title);
    }
    for (const auto& peer : peers_) {
      auto* const label = dynamic_cast<LabelPeer*>(peer.get());
      if (label == nullptr || _RemarkedBy(label->Mirrored()).Get() != control.Get()) continue;
      label->RemarkOn(PeerOf(*control));
      put_last(label->Control());
    }
    put_last(*control);
  }
}

}  // namespace toolkit::web
