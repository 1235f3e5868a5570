#include "toolkit/qt/settings_portal.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include "toolkit/qt/guarded.h"

namespace toolkit::qt {

namespace {

constexpr QLatin1String kService("org.freedesktop.portal.Desktop");
constexpr QLatin1String kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1String kInterface("org.freedesktop.portal.Settings");
constexpr QLatin1String kSpace("org.freedesktop.appearance");
constexpr QLatin1String kScheme("color-scheme");
constexpr QLatin1String kAccent("accent-color");

constexpr uint kPreferDark = 1;

/// Three numbers from 0 to 1; anything else is no colour.
std::optional<QColor> ColorFrom(const QVariant& value) {
  if (value.userType() != qMetaTypeId<QDBusArgument>()) return std::nullopt;
  const auto argument = value.value<QDBusArgument>();
  if (argument.currentSignature() != QLatin1String("(ddd)")) return std::nullopt;
  double red = 0;
  double green = 0;
  double blue = 0;
  argument.beginStructure();
  argument >> red >> green >> blue;
  argument.endStructure();
  for (const double part : {red, green, blue}) {
    if (!(part >= 0 && part <= 1)) return std::nullopt;
  }
  return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green),
                          static_cast<float>(blue));
}

}  // namespace

SettingsPortal::SettingsPortal(QObject* parent) : QObject(parent) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  // Of any sender: to hear one by its name only, Qt would ask the bus who that is, and wait.
  bus.connect(QString(), kPath, kInterface, QStringLiteral("SettingChanged"), this,
              SLOT(SettingChanged(QDBusMessage)));
  auto* const watcher =
      new QDBusServiceWatcher(kService, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
  Connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString&, const QString&, const QString& owner) {
            owner_ = owner;
            if (!owner.isEmpty()) AskForAll();
          });
  AskForAll();
}

void SettingsPortal::AskForAll() {
  Ask(kScheme);
  Ask(kAccent);
}

void SettingsPortal::Ask(const QString& key) {
  QDBusMessage call =
      QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
  call << kSpace << key;
  auto* const watcher =
      new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
  Connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, key, watcher] {
    watcher->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    // A refusal of the bus itself comes by the name that it goes by, not by one of a connection.
    const QString sender = reply.reply().service();
    if (owner_.isEmpty() && sender.startsWith(QLatin1Char(':'))) owner_ = sender;
    if (reply.isError()) return;
    // The portal wraps what it reads in a variant of its own.
    const QVariant value = reply.value().variant();
    const bool wrapped = value.userType() == qMetaTypeId<QDBusVariant>();
    Take(key, wrapped ? value.value<QDBusVariant>().variant() : value);
  });
}

void SettingsPortal::SettingChanged(const QDBusMessage& message) {
  framework::_RunEvent([&] {
    if (message.service() != owner_ || message.signature() != QLatin1String("ssv")) return;
    const QVariantList parts = message.arguments();
    if (parts[0].toString() != kSpace) return;
    Take(parts[1].toString(), parts[2].value<QDBusVariant>().variant());
  });
}

void SettingsPortal::Take(const QString& key, const QVariant& value) {
  const auto before = std::pair(dark_, accent_);
  if (key == kScheme) dark_ = value.userType() == QMetaType::UInt && value.toUInt() == kPreferDark;
  if (key == kAccent) accent_ = ColorFrom(value);
  if (before != std::pair(dark_, accent_)) emit Changed();
}

}  // namespace toolkit::qt
