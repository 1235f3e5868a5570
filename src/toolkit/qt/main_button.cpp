#include "toolkit/qt/main_button.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace toolkit::qt {

namespace {

bool IsBesideAnOpenMenu(const QMouseEvent& event) {
  const QWidget* const menu = QApplication::activePopupWidget();
  return menu != nullptr && !menu->geometry().contains(event.globalPosition().toPoint());
}

}  // namespace

bool MainButtonOnly::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick: {
      const auto& mouse = static_cast<const QMouseEvent&>(*event);
      return mouse.button() != Qt::LeftButton && !IsBesideAnOpenMenu(mouse);
    }
    default:
      return false;
  }
}

}  // namespace toolkit::qt
