#pragma once

#include <QTableView>
#include <vector>

namespace toolkit::qt {

/// A table that looks and feels like a plain list: rows only, no heading, no grid. Escape and a
/// click beside the rows take the selection back.
class ListView final : public QTableView {
 public:
  explicit ListView(QWidget* parent);

  /// Widths in parts of 1000 of the list's, less its frame and a scroll bar; a column without a
  /// width is not shown. The last one, which must have a width, reaches to the scroll bar or, while
  /// there is none, to the frame.
  void SetColumnShares(std::vector<int> shares);

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void TakeSelectionBack();
  void ShareWidth();

  std::vector<int> shares_;
};

}  // namespace toolkit::qt
