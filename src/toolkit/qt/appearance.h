#pragma once

#include <QObject>
#include <QPalette>

#include "toolkit/qt/settings_portal.h"

namespace toolkit::qt {

/// Keeps the program in the desktop's colours while it runs, and tells the notification centre of
/// each change of the palette, once: the desktop's scheme as it is found at the start is one, where
/// Qt had begun with another. The settings portal's word is followed where Qt's own palette does
/// not have it already; a palette of Qt's that is dark by itself is left as it is.
class Appearance final : public QObject {
 public:
  /// There must be an application, which is also the parent.
  explicit Appearance(QObject* application);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowDesktop();
  void TellOfChange();
  QPalette OwnOfQt() const;

  SettingsPortal portal_{this};
  const QPalette first_;         ///< Qt's own, at the start
  const bool style_began_dark_;  ///< what the style would have taken then
  QPalette told_;                ///< as the notification centre knows it
};

}  // namespace toolkit::qt
