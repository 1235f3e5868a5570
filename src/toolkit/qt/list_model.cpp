#include "toolkit/qt/list_model.h"

#include "framework/events/run_loop.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {

void ListModel::TakeOver() {
  beginResetModel();
  rows_ = static_cast<int>(list_->LastIndex()) + 1;
  endResetModel();
}

void ListModel::SetColumns(int columns) {
  if (columns_ == columns) return;
  beginResetModel();
  columns_ = columns;
  endResetModel();
}

int ListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  const bool tip = role == Qt::ToolTipRole;
  if (role != Qt::DisplayRole && !tip) return {};
  return framework::_RunQuestion(QVariant(), [&]() -> QVariant {
    // Between a change and its taking over, the list may be shorter than what the view knows.
    if (index.row() > list_->LastIndex()) return {};
    // No column shows more, and no screen; laying out a megabyte would take seconds at each
    // painting.
    constexpr std::size_t kMostInACell = 1000;
    constexpr std::size_t kMostInATip = 20000;
    return Shown(list_->Cell(index.row(), index.column()), tip ? kMostInATip : kMostInACell);
  });
}

}  // namespace toolkit::qt
