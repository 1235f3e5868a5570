#include "toolkit/qt/listbox_peer.h"

#include <QItemSelectionModel>

#include "toolkit/qt/guarded.h"

namespace toolkit::qt {

using namespace framework;

ListboxPeer::ListboxPeer(const Ref<Listbox>& list, QWidget* content)
    : ControlPeer(list, new ListView(content)),
      list_(list),
      widget_(static_cast<ListView*>(&Widget())),
      model_(new ListModel(list, widget_)) {
  widget_->setModel(model_);
  Connect(widget_->selectionModel(), &QItemSelectionModel::selectionChanged, Context(),
          [this] { TakeSelection(); });
}

void ListboxPeer::Title(const QString& title, ControlPeer&) { widget_->setAccessibleName(title); }

void ListboxPeer::Show(Change what) {
  if (what == Change::Rows) RefreshLater();
  if (what == Change::ListIndex && !refresh_pending_) ShowSelection();
  if (what == Change::Look || what == Change::Visible) ShareColumns();
}

void ListboxPeer::ShareColumns() {
  const std::vector<int> shares = list_->_ColumnShares();
  model_->SetColumns(static_cast<int>(shares.size()));
  widget_->SetColumnShares(shares);
  if (!refresh_pending_) ShowSelection();
}

void ListboxPeer::RefreshLater() {
  if (refresh_pending_) return;
  RunLater(Context(), [this] { Refresh(); });
  refresh_pending_ = true;
}

void ListboxPeer::Refresh() {
  refresh_pending_ = false;
  model_->TakeOver();
  widget_->doItemsLayout();  // or the view would do it behind its painting, and paint again
  widget_->scrollToTop();
  ShowSelection();
}

void ListboxPeer::ShowSelection() {
  const auto row = static_cast<int>(list_->ListIndex());
  if (row < 0) return widget_->clearSelection();
  widget_->selectRow(row);
}

void ListboxPeer::TakeSelection() {
  // What the list has itself asked to be shown is chosen already, and chooses nothing anew.
  if (refresh_pending_) return;
  const QModelIndexList rows = widget_->selectionModel()->selectedRows();
  list_->Select(rows.isEmpty() ? -1 : rows.front().row());
}

}  // namespace toolkit::qt
