#pragma once

#include <QMainWindow>
#include <memory>
#include <vector>

#include "framework/controls/window.h"
#include "toolkit/qt/control_peer.h"

namespace toolkit::qt {

/// A QMainWindow for a Window, with the peers of its controls. The content area lies below the menu
/// bar; its size is the window's Width and Height.
class NativeWindow final : public QMainWindow, public framework::WindowPeer {
 public:
  explicit NativeWindow(const framework::Ref<framework::Window>& window);

  void Added(const framework::Ref<framework::RectControl>& control) override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  ControlPeer& PeerOf(const framework::Ref<framework::RectControl>& control) const;
  /// Gives each control its title, and each label that is a remark the control that it is on.
  void TieControls();
  void OrderTabs();

  framework::Window& window_;  ///< which owns this peer
  QWidget* content_;
  std::vector<std::unique_ptr<ControlPeer>> peers_;
};

}  // namespace toolkit::qt
