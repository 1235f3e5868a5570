#pragma once

#include <QObject>
#include <QPalette>

#include "toolkit/qt/settings_portal.h"

namespace toolkit::qt {

/// Keeps the program in the desktop's colours while it runs, and tells the notification centre of
/// each change, once. Where Qt follows the desktop by itself it is left to do so; where it does
/// not, the desktop's settings portal says what to do.
class Appearance final : public QObject {
 public:
  /// There must be an application, which is also the parent.
  explicit Appearance(QObject* application);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowPortal();
  void TellOfChange();

  SettingsPortal portal_{this};
  QPalette told_;  ///< as the notification centre knows it
  bool telling_ = false;
};

}  // namespace toolkit::qt
