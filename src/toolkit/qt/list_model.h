#pragma once

#include <QAbstractTableModel>

#include "framework/controls/listbox.h"

namespace toolkit::qt {

/// The rows of a Listbox, read in place, as far as the last column that shows. It stands still
/// while rows come and go, and takes the new state over in one step.
class ListModel final : public QAbstractTableModel {
 public:
  ListModel(framework::Ref<framework::Listbox> list, QObject* parent)
      : QAbstractTableModel(parent), list_(std::move(list)) {}

  /// Takes over the list's rows as they are now.
  void TakeOver();
  void SetColumns(int columns);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  /// Nothing: the list has no headings, and a screen reader would read numbers out.
  QVariant headerData(int, Qt::Orientation, int) const override { return {}; }
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  framework::Ref<framework::Listbox> list_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace toolkit::qt
