#include "toolkit/qt/main_button.h"

#include <QMouseEvent>

namespace toolkit::qt {

bool MainButtonOnly::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton;
    default:
      return false;
  }
}

}  // namespace toolkit::qt
