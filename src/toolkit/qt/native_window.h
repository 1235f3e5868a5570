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
  /// Names each control that shows no caption after the label above it.
  void TitleControls();
  /// Makes each label that touches a control at its right a remark on it.
  void TieRemarks();
  void OrderTabs();

  framework::Window& window_;  ///< which owns this peer
  QWidget* content_;
  std::vector<std::unique_ptr<ControlPeer>> peers_;
};

}  // namespace toolkit::qt
