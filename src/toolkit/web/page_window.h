#pragma once

#include <memory>
#include <vector>

#include "framework/controls/window.h"
#include "toolkit/web/control_peer.h"

namespace toolkit::web {

/// A window's place on the page, in the element with the id "desk", with the peers of its controls.
class PageWindow final : public framework::WindowPeer {
 public:
  explicit PageWindow(const framework::Ref<framework::Window>& window);

  void Added(const framework::Ref<framework::RectControl>& control) override;
  /// Shows what was left until the event is over.
  void Refresh();

 private:
  /// Ties titles and remarks to their controls, and brings the elements into their order, which is
  /// that of the Tab key, and of a screen reader.
  void Arrange();
  ControlPeer& PeerOf(const framework::RectControl& control) const;

  framework::Window& window_;  ///< which owns this peer
  Element desk_;
  Element frame_;
  Element content_;
  Element tally_;  ///< what a screen reader says of an event: how many rows the lists have
  std::vector<std::unique_ptr<ControlPeer>> peers_;
};

}  // namespace toolkit::web
