#pragma once

#include <QObject>

namespace toolkit::qt {

/// As a filter on the application, keeps every mouse button but the main one from whatever is on
/// the screen; beside an open menu any button closes the menu. Left to itself, the toolkit lets the
/// others choose rows and entries too.
class MainButtonOnly final : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace toolkit::qt
