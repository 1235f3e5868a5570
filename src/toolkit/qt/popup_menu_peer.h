#pragma once

#include <QComboBox>

#include "framework/controls/popup_menu.h"
#include "toolkit/qt/control_peer.h"

namespace toolkit::qt {

/// A QComboBox for a PopupMenu.
class PopupMenuPeer final : public ControlPeer {
 public:
  PopupMenuPeer(const framework::Ref<framework::PopupMenu>& menu, QWidget* content);

  void Title(const QString& title, ControlPeer& label) override;

 protected:
  void Show(framework::Change what) override;
  int WantedWidth() const override;
  bool MayRunOn() const override { return false; }

 private:
  framework::Ref<framework::PopupMenu> menu_;
  QComboBox* widget_;
};

}  // namespace toolkit::qt
