#pragma once

#include <vector>

#include "framework/controls/popup_menu.h"
#include "toolkit/web/control_peer.h"

namespace toolkit::web {

/// A select element for a PopupMenu.
class PopupMenuPeer final : public ControlPeer {
 public:
  PopupMenuPeer(const framework::Ref<framework::PopupMenu>& menu, const Element& content);

 protected:
  const char* Class() const override { return "menu"; }
  void Show(framework::Change what) override;

 private:
  framework::Ref<framework::PopupMenu> menu_;
  std::vector<Element> options_;
};

}  // namespace toolkit::web
