#pragma once

#include <initializer_list>
#include <span>
#include <vector>

#include "framework/controls/control.h"
#include "framework/values/array.h"

namespace framework {

/// A list of rows of texts, one of which the user may choose. The rows live here alone; a peer
/// reads them in place.
class Listbox : public RectControl {
 public:
  static constexpr std::int64_t kChange = 23;  ///< event: another row is chosen, or none any more

  const ClassInfo& _Class() const override { return kClass; }
  static const ClassInfo kClass;

  Property<std::int64_t> _ScrollOffset{*this, Change::Look};
  Property<std::int64_t> _ScrollWidth{*this, Change::Look};
  Property<bool> Border{*this, Change::Look};
  /// Columns of each row. Raises InvalidArgumentException for less than 1, and for another number
  /// once there are rows.
  std::int64_t ColumnCount() const { return column_count_; }
  void ColumnCount(std::int64_t value);
  /// The widths of the columns, joined by commas, as shares of the list's: "35%,65%".
  Property<String> ColumnWidths{*this, Change::Look};
  /// The same in parts of 1000, column by column as far as the last one that has a width. A column
  /// with 0, one that ColumnWidths leaves out too, is not seen.
  std::vector<int> _ColumnShares() const;
  Property<std::int64_t> DefaultRowHeight{*this, Change::Look};  ///< -1: the platform's
  Property<std::int64_t> GridLinesHorizontal{*this, Change::Look};
  Property<std::int64_t> GridLinesVertical{*this, Change::Look};
  Property<bool> HasHeading{*this, Change::Look};
  Property<std::int64_t> HeadingIndex{*this, Change::Look};
  Property<String> InitialValue{*this, Change::Look};
  Property<bool> ScrollBarHorizontal{*this, Change::Look};
  Property<bool> ScrollBarVertical{*this, Change::Look};
  Property<bool> ShowDropIndicator{*this, Change::Look};
  Property<bool> UseFocusRing{*this, Change::Look};
  Property<bool> AutoHideScrollbars{*this, Change::Look};
  Property<bool> ColumnsResizable{*this, Change::Look};
  Property<bool> EnableDrag{*this, Change::Look};
  Property<bool> EnableDragReorder{*this, Change::Look};
  Property<bool> Hierarchical{*this, Change::Look};
  Property<bool> RequiresSelection{*this, Change::Look};
  Property<std::int64_t> SelectionType{*this, Change::Look};

  /// Appends one row; value n goes to column n, and an array without a value gives an empty row.
  /// Raises NilObjectException for a nil array, and OutOfBoundsException at the first value that
  /// has no column, with the row and the cells before it in place.
  void AddRow(const Array<String>& values);
  /// The same, with the values one by one.
  void AddRow(std::initializer_list<String> values);

  /// The text last stored in the cell. Both forms raise OutOfBoundsException outside the list.
  const String& Cell(std::int64_t row, std::int64_t column) const;
  void Cell(std::int64_t row, std::int64_t column, String text);

  /// Removes every row. If one was chosen, Change is raised, with ListIndex -1.
  void DeleteAllRows();
  /// The number of the row added last; -1 when there is none.
  std::int64_t LastIndex() const;
  /// The chosen row, from 0; -1 when none is.
  std::int64_t ListIndex() const;

  /// The user's input: chooses a row, or none with -1, then raises Change. What is chosen already
  /// raises nothing. A row that is not there makes the event fail.
  void Select(std::int64_t row);

 private:
  void Append(std::span<const String> values);
  /// Of a cell in cells_, behind the guard.
  std::size_t Place(std::int64_t row, std::int64_t column) const;

  std::int64_t column_count_ = 1;
  std::vector<String> cells_;  ///< row by row, column_count_ cells each
  std::int64_t list_index_ = -1;
};

}  // namespace framework
