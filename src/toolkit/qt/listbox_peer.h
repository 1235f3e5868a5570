#pragma once

#include "framework/controls/listbox.h"
#include "toolkit/qt/control_peer.h"
#include "toolkit/qt/list_model.h"
#include "toolkit/qt/list_view.h"

namespace toolkit::qt {

/// A ListView for a Listbox. However many rows an event adds, the view is refreshed once, behind
/// it.
class ListboxPeer final : public ControlPeer {
 public:
  ListboxPeer(const framework::Ref<framework::Listbox>& list, QWidget* content);

  void Title(const QString& title, ControlPeer& label) override;

 protected:
  void Show(framework::Change what) override;

 private:
  void ShareColumns();
  void RefreshLater();
  void Refresh();
  void ShowSelection();
  void TakeSelection();

  framework::Ref<framework::Listbox> list_;
  ListView* widget_;
  ListModel* model_;
  bool refresh_pending_ = false;
};

}  // namespace toolkit::qt
