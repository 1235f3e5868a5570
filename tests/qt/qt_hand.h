#pragma once

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

 private:
  static void Press(QCheckBox& box, bool by_mouse) {
    if (by_mouse) {
      QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    } else {
      QTest::keyClick(&box, Qt::Key_Space);
    }
    QApplication::processEvents();
  }
  static void Click(QTableView& list, int row) {
    const QRect cell = list.visualRect(list.model()->index(row, 1));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, cell.center());
    QApplication::processEvents();
  }
};

}  // namespace support
