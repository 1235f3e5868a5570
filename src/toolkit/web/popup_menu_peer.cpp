#include "toolkit/web/popup_menu_peer.h"

namespace toolkit::web {

using framework::Change;

PopupMenuPeer::PopupMenuPeer(const framework::Ref<framework::PopupMenu>& menu,
                             const Element& content)
    : ControlPeer(menu, content, "select"), menu_(menu) {
  Outer().Attribute("autocomplete", "off");  // or a browser would choose as at an earlier visit
  Outer().On("change",
             [this] { menu_->Choose(static_cast<std::int64_t>(Outer().Get("selectedIndex"))); });
}

void PopupMenuPeer::Show(Change what) {
  if (what == Change::Rows) {
    options_.clear();
    const auto rows = menu_->Rows();
    for (std::int64_t i = 0; i <= rows.LastIndex(); ++i) {
      options_.emplace_back(Outer(), "option").Text(rows[i]);
    }
  }
  if (what == Change::Rows || what == Change::ListIndex) {
    Outer().Set("selectedIndex", static_cast<double>(menu_->ListIndex()));
  }
}

}  // namespace toolkit::web
