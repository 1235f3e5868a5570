#include "framework/controls/listbox.h"

#include <algorithm>

#include "framework/events/run_loop.h"
#include "framework/values/failures.h"
#include "framework/values/text.h"

namespace framework {

namespace {

constexpr PropertyInfo kProperties[] = {
    Declare<&Listbox::_ScrollOffset>("_ScrollOffset"),
    Declare<&Listbox::_ScrollWidth>("_ScrollWidth"),
    Declare<&Listbox::Border>("Border"),
    Declare<Setter<Listbox, std::int64_t>{&Listbox::ColumnCount}>("ColumnCount"),
    Declare<&Listbox::ColumnWidths>("ColumnWidths"),
    Declare<&Listbox::DefaultRowHeight>("DefaultRowHeight"),
    Declare<&Listbox::GridLinesHorizontal>("GridLinesHorizontal"),
    Declare<&Listbox::GridLinesVertical>("GridLinesVertical"),
    Declare<&Listbox::HasHeading>("HasHeading"),
    Declare<&Listbox::HeadingIndex>("HeadingIndex"),
    Declare<&Listbox::InitialValue>("InitialValue"),
    Declare<&Listbox::ScrollBarHorizontal>("ScrollBarHorizontal"),
    Declare<&Listbox::ScrollBarVertical>("ScrollBarVertical"),
    Declare<&Listbox::ShowDropIndicator>("ShowDropIndicator"),
    Declare<&Listbox::UseFocusRing>("UseFocusRing"),
    Declare<&Listbox::AutoHideScrollbars>("AutoHideScrollbars"),
    Declare<&Listbox::ColumnsResizable>("ColumnsResizable"),
    Declare<&Listbox::EnableDrag>("EnableDrag"),
    Declare<&Listbox::EnableDragReorder>("EnableDragReorder"),
    Declare<&Listbox::Hierarchical>("Hierarchical"),
    Declare<&Listbox::RequiresSelection>("RequiresSelection"),
    Declare<&Listbox::SelectionType>("SelectionType"),
};

constexpr EventInfo kEvents[] = {{Listbox::kChange, "( Listbox )"}};

}  // namespace

constinit const ClassInfo Listbox::kClass{"Listbox", &RectControl::kClass, kProperties, kEvents};

void Listbox::ColumnCount(std::int64_t value) {
  if (value == column_count_) return;
  if (value < 1 || !cells_.empty()) {
    RuntimeRaiseException(
        InvalidArgumentException("A list has one column or more from its start."));
  }
  column_count_ = value;
  _Changed(Change::Look);
}

std::vector<int> Listbox::_ColumnShares() const {
  std::vector<int> shares;
  const auto widths = Split(ColumnWidths(), ",");
  for (const String& width : widths._Items()) {
    shares.push_back(static_cast<int>(std::clamp(Val(width) * 10, 0.0, 1000.0)));
  }
  shares.resize(static_cast<std::size_t>(column_count_));
  while (!shares.empty() && shares.back() == 0) shares.pop_back();
  return shares;
}

void Listbox::AddRow(const Array<String>& values) {
  _UITrap();
  Append(values._Items());
}

void Listbox::AddRow(std::initializer_list<String> values) {
  _UITrap();
  Append({values.begin(), values.size()});
}

void Listbox::Append(std::span<const String> values) {
  const auto columns = static_cast<std::size_t>(column_count_);
  cells_.resize(cells_.size() + columns);
  const auto fitting = values.first(std::min(values.size(), columns));
  std::copy(fitting.begin(), fitting.end(), cells_.end() - static_cast<std::ptrdiff_t>(columns));
  _Changed(Change::Rows);
  if (fitting.size() < values.size()) RaiseOutOfBoundsException(column_count_, column_count_ - 1);
}

const String& Listbox::Cell(std::int64_t row, std::int64_t column) const {
  return cells_[Place(row, column)];
}

void Listbox::Cell(std::int64_t row, std::int64_t column, String text) {
  String& cell = cells_[Place(row, column)];
  if (Same(cell, text)) return;
  cell = std::move(text);
  _Changed(Change::Rows);
}

void Listbox::DeleteAllRows() {
  _UITrap();
  if (cells_.empty()) return;
  cells_.clear();
  const bool chosen = list_index_ >= 0;
  list_index_ = -1;
  _Changed(Change::Rows);
  if (!chosen) return;
  _Changed(Change::ListIndex);
  _Raise(kChange);
}

std::int64_t Listbox::LastIndex() const {
  _UITrap();
  return static_cast<std::int64_t>(cells_.size()) / column_count_ - 1;
}

std::int64_t Listbox::ListIndex() const {
  _UITrap();
  return list_index_;
}

void Listbox::Select(std::int64_t row) {
  _RunEvent([this, row] {
    if (row < -1 || row > LastIndex()) RaiseOutOfBoundsException(row, LastIndex());
    if (row == list_index_) return;
    list_index_ = row;
    _Changed(Change::ListIndex);
    _Raise(kChange);
  });
}

std::size_t Listbox::Place(std::int64_t row, std::int64_t column) const {
  _UITrap();
  if (column < 0 || column >= column_count_) RaiseOutOfBoundsException(column, column_count_ - 1);
  if (row < 0 || row > LastIndex()) RaiseOutOfBoundsException(row, LastIndex());
  return static_cast<std::size_t>(row * column_count_ + column);
}

}  // namespace framework
