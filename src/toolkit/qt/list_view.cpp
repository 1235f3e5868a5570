#include "toolkit/qt/list_view.h"

#include <QAccessible>
#include <QEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QtMath>
#include <algorithm>

#include "toolkit/qt/condensed.h"
#include "toolkit/qt/outline.h"
#include "toolkit/qt/tool_tip.h"

namespace toolkit::qt {

namespace {

/// Draws cells without the focus frame of a single cell: a row is what is chosen here, and the list
/// shows by itself that it has the focus. A text too wide for its column is condensed.
class RowDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// On one line, of which alone the row has the height.
  QString displayText(const QVariant& value, const QLocale& locale) const override {
    QString text = QStyledItemDelegate::displayText(value, locale);  // has one kind of line break
    return text.replace(QChar(QChar::LineSeparator), QLatin1Char(' '));
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus;
    if (Fits(*option)) return;
    option->font = Condensed(option->font, RoomIn(*option), [&](const QFont& font) {
      option->fontMetrics = QFontMetrics(font);
      return option->fontMetrics.horizontalAdvance(option->text);
    });
  }
  /// A text that is cut all the same is told whole, in place of the help of the list.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    if (!index.isValid()) return false;
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString whole = index.data(Qt::ToolTipRole).toString();
    if (Fits(cell) && cell.text == displayText(whole, cell.locale)) return false;
    QToolTip::showText(event->globalPos(), ToolTipWithin(*view->screen(), whole), view->viewport(),
                       cell.rect);
    return true;
  }

 private:
  static bool Fits(const QStyleOptionViewItem& cell) {
    return cell.fontMetrics.horizontalAdvance(cell.text) <= RoomIn(cell);
  }
  static int RoomIn(const QStyleOptionViewItem& cell) {
    const QStyle& style = *cell.widget->style();
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
    return cell.rect.width() - 2 * margin - 1;  // widths are rounded
  }
};

}  // namespace

ListView::ListView(QWidget* parent) : QTableView(parent) {
  setItemDelegate(new RowDelegate(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setWordWrap(false);
  horizontalHeader()->hide();
  horizontalHeader()->setMinimumSectionSize(0);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(0);
}

void ListView::SetColumnShares(std::vector<int> shares) {
  shares_ = std::move(shares);
  ShareWidth();
  viewport()->update();
}

QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  // In a table, Home and End alone would stay in the row.
  if (action == MoveHome) return model()->index(0, 0);
  if (action == MoveEnd) return model()->index(model()->rowCount() - 1, 0);
  return QTableView::moveCursor(action, modifiers);
}

void ListView::keyPressEvent(QKeyEvent* event) {
  const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (event->key() == Qt::Key_Escape && selectionModel()->hasSelection()) {
    TakeSelectionBack();
  } else if (arrow && !selectionModel()->hasSelection()) {
    // The first arrow chooses the row that stands under the focus, not the one after it.
    selectRow(std::max(currentIndex().row(), 0));
  } else {
    QTableView::keyPressEvent(event);
  }
}

void ListView::mousePressEvent(QMouseEvent* event) {
  if (!indexAt(event->position().toPoint()).isValid()) TakeSelectionBack();
  QTableView::mousePressEvent(event);
}

void ListView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(viewport());
  DrawOutline(painter, viewport()->rect(), palette().color(QPalette::Highlight));
}

void ListView::resizeEvent(QResizeEvent* event) {
  ShareWidth();
  QTableView::resizeEvent(event);
}

void ListView::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  viewport()->update();  // or the frame of the focus would scroll as well
}

void ListView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  // Whole points for the sum of ascent and descent; QFontMetrics rounds each, and loses ink.
  verticalHeader()->setDefaultSectionSize(qCeil(QFontMetricsF(font()).height()));
}

void ListView::focusInEvent(QFocusEvent* event) {
  // A view would move to its first row, unchosen, and the key that then chooses it moves nothing:
  // a screen reader would be told of no row.
  if (!currentIndex().isValid()) setCurrentIndex({});
  QTableView::focusInEvent(event);
}

void ListView::TakeSelectionBack() {
  setCurrentIndex({});
  if (!hasFocus()) return;
  // A screen reader goes back to the list, or it would be silent when the same row is chosen again.
  QAccessibleEvent left(this, QAccessible::Focus);
  QAccessible::updateAccessibility(&left);
}

void ListView::ShareWidth() {
  // The columns are shared out beside the scroll bar's place, also while there is none: they do not
  // move when it comes, and those of two lists of one width stand in line. The last one has what is
  // left.
  const QSignalBlocker quiet(horizontalHeader());  // or the view would paint once more, later
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  const int room = width() - 2 * frameWidth() - bar;
  const int last = static_cast<int>(shares_.size()) - 1;
  int end = 0;
  for (int column = 0; column <= last; ++column) {
    const int share = room * shares_[static_cast<std::size_t>(column)] / 1000;
    setColumnHidden(column, share == 0);
    setColumnWidth(column, column < last ? share : viewport()->width() - end);
    end += share;
  }
}

}  // namespace toolkit::qt
