#pragma once

#include <vector>

#include "framework/controls/listbox.h"
#include "toolkit/web/control_peer.h"
#include "toolkit/web/row_view.h"

namespace toolkit::web {

/// A grid of rows for a Listbox. However many rows an event adds, it is refreshed once, behind it.
class ListboxPeer final : public ControlPeer {
 public:
  ListboxPeer(const framework::Ref<framework::Listbox>& list, const Element& content);

  bool Refresh() override;

 protected:
  const char* Class() const override { return "list"; }
  void Show(framework::Change what) override;

 private:
  void ShareColumns();
  void Clicked();
  void KeyPressed();

  framework::Ref<framework::Listbox> list_;
  std::vector<int> columns_;  ///< those of the list's that are seen
  RowView rows_;
  bool rows_changed_ = false;
  std::int64_t pressed_ = -1;  ///< the row, or -1, where the last press began
  bool touched_ = false;       ///< that press is of a finger
};

}  // namespace toolkit::web
