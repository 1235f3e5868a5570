#pragma once

#include "framework/controls/control.h"
#include "framework/values/array.h"

namespace framework {

/// A choice of one row among fixed ones. Only the user's choice raises Change; writing a property
/// raises nothing.
class PopupMenu : public RectControl {
 public:
  static constexpr std::int64_t kChange = 15;  ///< event: the user has chosen another row

  const ClassInfo& _Class() const override { return kClass; }
  static const ClassInfo kClass;

  /// The rows' texts, joined by carriage returns; empty for no row.
  Property<String> InitialValue{*this, Change::Rows};
  /// The chosen row, from 0; -1 for none.
  Property<std::int64_t, Guard::UI> ListIndex{*this, Change::ListIndex, -1};

  /// The rows' texts, in order.
  Array<String> Rows() const;

  /// The user's input: chooses a row, then raises Change. The row that is chosen already raises
  /// nothing. One that is not there makes the event fail.
  void Choose(std::int64_t row);
};

}  // namespace framework
