#include "toolkit/qt/list_model.h"

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
  // Between a change and its taking over, the list may be shorter than what the view knows.
  if (role != Qt::DisplayRole || index.row() > list_->LastIndex()) return {};
  // No column shows more; laying out a megabyte would take seconds at each painting.
  constexpr std::size_t kMost = 1000;
  return Shown(list_->Cell(index.row(), index.column()).View().substr(0, kMost));
}

}  // namespace toolkit::qt
