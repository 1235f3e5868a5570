#pragma once

#include <QColor>
#include <QDBusMessage>
#include <QObject>
#include <optional>

namespace toolkit::qt {

/// The desktop's own settings of appearance, from the settings portal on the session bus. It asks
/// without waiting, and hears of each change from the portal alone; one that takes another's place
/// is asked anew. Without a bus or a portal, and as long as there is no answer, it holds what
/// a desktop without a preference would say; a value that makes no sense counts as no preference.
class SettingsPortal final : public QObject {
  Q_OBJECT

 public:
  explicit SettingsPortal(QObject* parent);

  /// Whether the desktop prefers dark.
  bool Dark() const { return dark_; }
  /// The desktop's accent colour; none when it has none.
  std::optional<QColor> Accent() const { return accent_; }

 signals:
  /// One of the two has changed.
  void Changed();

 private:
  Q_SLOT void SettingChanged(const QDBusMessage& message);
  void AskForAll();
  void Ask(const QString& key);
  void Take(const QString& key, const QVariant& value);

  QString owner_;  ///< the portal's own name on the bus; empty as long as it has not answered
  bool dark_ = false;
  std::optional<QColor> accent_;
};

}  // namespace toolkit::qt
