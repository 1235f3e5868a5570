#include "toolkit/web/row_view.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace toolkit::web {

RowView::RowView(Element& list, std::string list_id, CellText text)
    : list_(list),
      list_id_(std::move(list_id)),
      text_(std::move(text)),
      measure_(list, "div"),
      space_(list, "div"),
      body_(list, "div") {
  measure_.Attribute("class", "row measure");
  measure_.Attribute("role", "presentation");
  space_.Attribute("role", "presentation");
  body_.Attribute("class", "rows");
  body_.Attribute("role", "rowgroup");
}

void RowView::SetColumns(int columns) {
  if (columns != columns_) made_.clear();  // a row is made with its cells
  columns_ = columns;
}

void RowView::Reset(std::int64_t rows, std::int64_t chosen) {
  // To measure has the page laid out on the spot, which a list without rows can do without.
  if (rows > 0) {
    row_height_ = std::max(measure_.Get("offsetHeight"), 1.0);
    view_height_ = list_.Get("clientHeight");
  }
  rows_ = rows;
  chosen_ = chosen;
  list_.Attribute("aria-rowcount", rows);
  space_.Pixels("height", static_cast<std::int64_t>(ScrolledHeight()));
  top_ = 0;
  if (scrolled_ != 0) ScrollTo(0);
  // What is made is filled anew, and what is too much goes.
  std::map<std::int64_t, Row> old = std::exchange(made_, {});
  std::int64_t row = 0;
  for (auto& [number, made] : old) {
    if (row >= rows_) break;
    Fill(row, made);
    made_.emplace(row, std::move(made));
    ++row;
  }
  Choose(chosen);
}

void RowView::Choose(std::int64_t row) {
  const std::int64_t before = std::exchange(chosen_, row);
  if (row >= 0) {
    const double top = static_cast<double>(row) * row_height_;
    if (top < top_) ScrollTo(top);
    if (top + row_height_ > top_ + view_height_) ScrollTo(top + row_height_ - view_height_);
  }
  MakeSeen();
  for (const std::int64_t number : {before, row}) {
    const auto found = made_.find(number);
    if (found != made_.end()) Mark(number, found->second);
  }
}

void RowView::Scrolled() {
  const double scrolled = list_.Get("scrollTop");
  const double moved = scrolled - std::exchange(scrolled_, scrolled);
  const double range = ScrolledHeight() - view_height_;
  if (ScrolledHeight() == Height()) {
    top_ = scrolled;
  } else if (std::abs(moved) > view_height_) {
    top_ = scrolled / range * (Height() - view_height_);
  } else {
    top_ += moved;  // a turn of the wheel goes as far as in a shorter list
    if (scrolled <= 0 || scrolled >= range) ScrollTo(top_);  // and on where there is more
  }
  MakeSeen();
}

std::int64_t RowView::PageRows() const {
  return std::max<std::int64_t>(1, static_cast<std::int64_t>(view_height_ / row_height_));
}

double RowView::ScrolledHeight() const {
  // No browser lays out more than 11 million on a screen of three pixels to the point.
  constexpr double kMost = 6'000'000;
  return std::min(Height(), kMost);
}

void RowView::ScrollTo(double top) {
  top_ = std::clamp(top, 0.0, std::max(0.0, Height() - view_height_));
  const double range = Height() - view_height_;
  list_.Set("scrollTop", range > 0 ? top_ / range * (ScrolledHeight() - view_height_) : 0);
  scrolled_ = list_.Get("scrollTop");
}

void RowView::MakeSeen() {
  const std::int64_t spare = PageRows() / 2 + 1;
  const auto seen = static_cast<std::int64_t>(std::max(0.0, top_) / row_height_);
  const std::int64_t begin = std::max<std::int64_t>(0, seen - spare);
  const std::int64_t end = std::min(rows_, seen + PageRows() + 1 + spare);

  std::vector<Row> free;
  for (auto it = made_.begin(); it != made_.end();) {
    const bool stays = it->first >= begin && it->first < end;
    if (!stays) free.push_back(std::move(it->second));
    it = stays ? std::next(it) : made_.erase(it);
  }
  for (std::int64_t row = begin; row < end; ++row) {
    if (made_.contains(row)) continue;
    Row made = free.empty() ? MakeRow() : std::move(free.back());
    if (!free.empty()) free.pop_back();
    Fill(row, made);
    const auto after = made_.upper_bound(row);
    made.element.PutBefore(after == made_.end() ? nullptr : &after->second.element);
    made_.emplace_hint(after, row, std::move(made));
  }
  body_.Pixels("top", static_cast<std::int64_t>(scrolled_ - top_) +
                          begin * static_cast<std::int64_t>(row_height_));
  if (made_.contains(chosen_)) {
    list_.Attribute("aria-activedescendant", list_id_ + "-row-" + std::to_string(chosen_));
  } else {
    list_.AttributeOrNone("aria-activedescendant", "");
  }
}

RowView::Row RowView::MakeRow() {
  Row made{Element(body_, "div"), {}};
  made.element.Attribute("class", "row");
  made.element.Attribute("role", "row");
  for (int column = 0; column < columns_; ++column) {
    made.cells.emplace_back(made.element, "span").Attribute("role", "gridcell");
  }
  return made;
}

void RowView::Fill(std::int64_t row, Row& made) {
  made.element.Attribute("id", list_id_ + "-row-" + std::to_string(row));
  made.element.Attribute("aria-rowindex", row + 1);
  Mark(row, made);
  for (int column = 0; column < columns_; ++column) {
    Element& cell = made.cells[static_cast<std::size_t>(column)];
    cell.Text(text_(row, column));
    cell.AttributeOrNone("title", "");  // a tip for what stood there
  }
}

void RowView::Mark(std::int64_t row, Row& made) const {
  made.element.Attribute("aria-selected", row == chosen_ ? "true" : "false");
}

}  // namespace toolkit::web
