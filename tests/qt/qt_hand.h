#pragma once

#include <QApplication>
#include <QBitmap>
#include <QCheckBox>
#include <QComboBox>
#include <QMainWindow>
#include <QTableView>
#include <QTest>
#include <functional>

#include "support/program.h"
#include "toolkit/qt/qt_toolkit.h"

namespace support {

/// QtToolkit under a name of its own, so that a fixture can make one.
class QtTestToolkit final : public toolkit::qt::QtToolkit {
 public:
  QtTestToolkit() : QtToolkit("Orrel Pitchsieve", "orrel-pitchsieve") {}
  void Initialise() override {
    QtToolkit::Initialise();
    before_the_window();
  }
  std::function<void()> before_the_window = [] {};
};

/// The native window of the program.
inline QMainWindow& Native() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (auto* const window = qobject_cast<QMainWindow*>(widget)) return *window;
  }
  throw std::runtime_error("no window stands on the screen");
}

template <class Widget = QWidget>
Widget& Find(const std::string& name) {
  auto* const widget = Native().findChild<Widget*>(QString::fromStdString(name));
  if (widget == nullptr) throw std::runtime_error("no widget " + name);
  return *widget;
}

/// The lower list, or another.
inline QTableView& List(const std::string& name = "lbContaining") { return Find<QTableView>(name); }

/// The place of a list's cell in its viewport, which is scrolled there, once the list shows its
/// rows.
inline QRect Place(int row, int column, QTableView& list = List()) {
  QApplication::processEvents();
  const QModelIndex cell = list.model()->index(row, column);
  list.scrollTo(cell);
  return list.visualRect(cell);
}

/// Where a picture differs from its first pixel.
inline QRect Ink(const QImage& picture) {
  const QImage mask = picture.createMaskFromColor(picture.pixel(0, 0), Qt::MaskInColor);
  return QRegion(QBitmap::fromImage(mask)).boundingRect();
}

/// How many points of a picture have a colour.
inline int Count(const QImage& picture, const QColor& color) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == color;
  }
  return count;
}

/// How often a widget is painted.
class CountOfPaintings final : public QObject {
 public:
  explicit CountOfPaintings(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint;
    return false;
  }
  int count = 0;
};

/// The user's hand on the mouse and the keys of the real widgets.
class QtHand {
 public:
  using Toolkit = QtTestToolkit;
  static constexpr bool kShowsFailures = true;  ///< in a box that waits for the user

  explicit QtHand(window::wdwMainClass&) {
    Native().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Native()));
  }

  /// Even positions by mouse, odd ones by key.
  void Tick(int position) {
    QWidget& box = Find("cbScale" + std::to_string(position));
    if (position % 2 == 0) return Click(box, QPoint(8, box.height() / 2));
    Press(box, Qt::Key_Space);
  }
  void TickOther() { Click(Find("cbOther"), QPoint(8, 8)); }
  void TickInListOnly() { Press(Find("cbRinL"), Qt::Key_Space); }
  void ChooseRoot(int row) {
    auto& popup = Find<QComboBox>("pmRoot");
    popup.setFocus();
    const Qt::Key key = popup.currentIndex() < row ? Qt::Key_Down : Qt::Key_Up;
    while (popup.currentIndex() != row) Press(popup, key);
  }
  void ChooseRow(int row) { ClickRow("lbContaining", row); }
  void ChooseExactRow(int row) { ClickRow("lbExact", row); }
  void TakeChoiceBack() { Press(Find("lbContaining"), Qt::Key_Escape); }
  /// The desktop turns dark, or light again.
  void ChangeAppearance() {
    dark_ = !dark_;
    QApplication::setPalette(dark_ ? QPalette(Qt::black) : QPalette());
    QApplication::processEvents();
  }

  static void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers with = {}) {
    QTest::keyClick(&widget, key, with);
    QApplication::processEvents();
  }
  static void Click(QWidget& widget, const QPoint& place, Qt::KeyboardModifiers with = {}) {
    QTest::mouseClick(&widget, Qt::LeftButton, with, place);
    QApplication::processEvents();
  }
  static void ClickRow(const char* list, int row, Qt::KeyboardModifiers with = {}) {
    Click(*List(list).viewport(), Place(row, 1, List(list)).center(), with);
  }

  /// The screen shows what the controls hold.
  void ExpectMirrored(const window::wdwMainClass& window) const {
    for (int i = 0; i < 12; ++i) {
      const auto& box = Find<QCheckBox>("cbScale" + std::to_string(i));
      EXPECT_EQ(box.isChecked(), window.cbScale(i)->Value());
      EXPECT_EQ(box.text().toStdString(), std::string(window.cbScale(i)->Caption()));
      EXPECT_EQ(Find("lbStar" + std::to_string(i)).isVisible(), window.lbStar(i)->Visible());
    }
    EXPECT_EQ(Find<QComboBox>("pmRoot").currentIndex(), window.pmRoot()->ListIndex());
    for (const auto& list : {window.lbExact(), window.lbContaining()}) {
      const QTableView& view = List(std::string(list->Name()));
      const QAbstractItemModel& model = *view.model();
      ASSERT_EQ(model.rowCount(), list->LastIndex() + 1);
      for (int cell = 0; cell < model.rowCount() * 3; ++cell) {
        EXPECT_EQ(model.index(cell / 3, cell % 3).data().toString().toStdString(),
                  std::string(list->Cell(cell / 3, cell % 3)));
      }
      const QModelIndexList chosen = view.selectionModel()->selectedRows();
      EXPECT_EQ(chosen.isEmpty() ? -1 : chosen.front().row(), list->ListIndex());
    }
  }

 private:
  bool dark_ = false;
};

/// The program on the screen, and the user before it.
class OnScreen : public ProgramOn<QtTestToolkit> {
 protected:
  void Open(std::string_view library = kFourScales) {
    ProgramOn::Open(library);
    hand_ = std::make_unique<QtHand>(*window_);
  }

  std::unique_ptr<QtHand> hand_;
};

}  // namespace support
