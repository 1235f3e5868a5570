#include "toolkit/qt/announce.h"

#include <QAccessible>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

namespace toolkit::qt {

void Announce(const QWidget& window, const QString& words) {
  // What screen readers speak at once is a new description of what has the focus. Qt sends that
  // signal without its text, so it is sent here, over the connection that Qt has opened; there is
  // none as long as nobody listens.
  const QDBusConnection bus(QStringLiteral("a11y"));
  QAccessibleInterface* const focus = QAccessible::queryAccessibleInterface(window.focusWidget());
  if (!bus.isConnected() || focus == nullptr) return;
  const QString path =
      QStringLiteral("/org/a11y/atspi/accessible/%1").arg(QAccessible::uniqueId(focus));
  QDBusMessage signal = QDBusMessage::createSignal(
      path, QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("PropertyChange"));
  signal << QStringLiteral("accessible-description") << 0 << 0
         << QVariant::fromValue(QDBusVariant(words)) << QVariantMap();
  bus.send(signal);
}

}  // namespace toolkit::qt
