#pragma once

#include <QAbstractTableModel>

#include "framework/listbox.h"

namespace toolkit::qt {

/// The rows of a Listbox, read in place. It stands still while rows come and go, and takes the new
/// state over in one step.
class ListModel final : public QAbstractTableModel {
 public:
  ListModel(framework::Ref<framework::Listbox> list, QObject* parent)
      : QAbstractTableModel(parent), list_(std::move(list)) {}

  /// Takes over the list's rows as they are now.
  void TakeOver();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  framework::Ref<framework::Listbox> list_;
  int rows_ = 0;
};

}  // namespace toolkit::qt
