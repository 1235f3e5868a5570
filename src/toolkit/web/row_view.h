#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "toolkit/web/element.h"

namespace toolkit::web {

/// The rows of a list in a scrolling element, of which only those that are seen are made, and some
/// above and below them. All rows are of one height, which the style sheet gives.
class RowView {
 public:
  /// The text of a cell.
  using CellText = std::function<std::string_view(std::int64_t row, int column)>;

  /// A row's id is the list's, "-row-" and its number.
  RowView(Element& list, std::string list_id, CellText text);

  /// The columns that are seen; it shows with the next Reset.
  void SetColumns(int columns);
  /// Takes over that many new rows, from the top, with the chosen one, or -1, in view.
  void Reset(std::int64_t rows, std::int64_t chosen);
  /// Marks the chosen row, and brings it into view.
  void Choose(std::int64_t row);
  /// Makes the rows that scrolling has brought into view.
  void Scrolled();
  /// How many rows are seen whole at a time, at least 1.
  std::int64_t PageRows() const;

 private:
  struct Row {
    Element element;
    std::vector<Element> cells;
  };

  double Height() const { return static_cast<double>(rows_) * row_height_; }
  /// The height as far as a browser can have it.
  double ScrolledHeight() const;
  void ScrollTo(double top);
  void MakeSeen();
  Row MakeRow();
  void Fill(std::int64_t row, Row& made);
  void Mark(std::int64_t row, Row& made) const;

  Element& list_;
  std::string list_id_;
  CellText text_;
  Element measure_;  ///< a row that does not show, to be measured
  Element space_;    ///< as high as all rows
  Element body_;     ///< holds the rows that are made
  int columns_ = 0;
  std::int64_t rows_ = 0;
  std::int64_t chosen_ = -1;
  double row_height_ = 1;
  double view_height_ = 0;
  double top_ = 0;       ///< what of Height() is above the view
  double scrolled_ = 0;  ///< the element's own measure of the same
  std::map<std::int64_t, Row> made_;
};

}  // namespace toolkit::web
