#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QTableView>
#include <QTest>

#include "toolkit/qt/native_window.h"
#include "toolkit/qt/qt_toolkit.h"
#include "window/main_window.h"

namespace support {

/// QtToolkit under a name of its own, so that a fixture can make one.
class QtTestToolkit final : public toolkit::qt::QtToolkit {
 public:
  QtTestToolkit() : QtToolkit("Orrel Pitchsieve", "orrel-pitchsieve") {}
};

/// The native window of the program.
inline toolkit::qt::NativeWindow& Native() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (auto* const window = dynamic_cast<toolkit::qt::NativeWindow*>(widget)) return *window;
  }
  throw std::runtime_error("no window stands on the screen");
}

template <class Widget = QWidget>
Widget& Find(const char* name) {
  auto* const widget = Native().findChild<Widget*>(QLatin1String(name));
  if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
  return *widget;
}

/// The user's hand on the mouse and the keys of the real widgets.
class QtHand {
 public:
  using Toolkit = QtTestToolkit;
  static constexpr bool kShowsFailures = true;  ///< in a box that waits for the user

  QtHand(Toolkit&, window::wdwMainClass&) {
    Native().activateWindow();
    if (!QTest::qWaitForWindowActive(&Native())) throw std::runtime_error("no active window");
  }

  /// Even positions by mouse, odd ones by key.
  void Tick(int position) {
    Press(Find<QCheckBox>(("cbScale" + std::to_string(position)).c_str()), position % 2 == 0);
  }
  void TickOther() { Press(Find<QCheckBox>("cbOther"), true); }
  void TickInListOnly() { Press(Find<QCheckBox>("cbRinL"), false); }
  void ChooseRoot(int row) {
    auto& popup = Find<QComboBox>("pmRoot");
    popup.setFocus();
    while (popup.currentIndex() != row) {
      QTest::keyClick(&popup, popup.currentIndex() < row ? Qt::Key_Down : Qt::Key_Up);
    }
    QApplication::processEvents();
  }
  void ChooseRow(int row) { Click(Find<QTableView>("lbContaining"), row); }
  void ChooseExactRow(int row) { Click(Find<QTableView>("lbExact"), row); }
  void TakeChoiceBack() {
    QTest::keyClick(&Find("lbContaining"), Qt::Key_Escape);
    QApplication::processEvents();
  }
  /// The desktop turns dark, or light again.
  void ChangeAppearance() {
    dark_ = !dark_;
    QApplication::setPalette(dark_ ? QPalette(Qt::black) : QPalette());
    QApplication::processEvents();
  }

  /// The screen shows what the controls hold.
  void ExpectMirrored(const window::wdwMainClass& window) const {
    for (int i = 0; i < 12; ++i) {
      const std::string number = std::to_string(i);
      const auto& box = Find<QCheckBox>(("cbScale" + number).c_str());
      EXPECT_EQ(box.isChecked(), window.cbScale(i)->Value());
      EXPECT_EQ(box.text().toStdString(), std::string(window.cbScale(i)->Caption()));
      EXPECT_EQ(Find(("lbStar" + number).c_str()).isVisible(), window.lbStar(i)->Visible());
    }
    EXPECT_EQ(Find<QComboBox>("pmRoot").currentIndex(), window.pmRoot()->ListIndex());
    ExpectMirrored(Find<QTableView>("lbExact"), *window.lbExact());
    ExpectMirrored(Find<QTableView>("lbContaining"), *window.lbContaining());
  }

 private:
  static void ExpectMirrored(const QTableView& view, const framework::Listbox& list) {
    const QAbstractItemModel& model = *view.model();
    ASSERT_EQ(model.rowCount(), list.LastIndex() + 1);
    for (int row = 0; row < model.rowCount(); ++row) {
      for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(model.index(row, column).data().toString().toStdString(),
                  std::string(list.Cell(row, column)));
      }
    }
    const QModelIndexList chosen = view.selectionModel()->selectedRows();
    EXPECT_EQ(chosen.isEmpty() ? -1 : chosen.front().row(), list.ListIndex());
  }
  static void Press(QCheckBox& box, bool by_mouse) {
    if (by_mouse) {
      QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    } else {
      QTest::keyClick(&box, Qt::Key_Space);
    }
    QApplication::processEvents();
  }
  static void Click(QTableView& list, int row) {
    list.scrollTo(list.model()->index(row, 1));
    const QRect cell = list.visualRect(list.model()->index(row, 1));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, cell.center());
    QApplication::processEvents();
  }

  bool dark_ = false;
};

}  // namespace support
