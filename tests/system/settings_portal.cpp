// Plays the desktop's settings portal on the session bus. A line on standard input is one deed:
// "color-scheme 1" sets and tells a scheme, "accent-color 0.9 0.1 0.1" an accent, "nonsense" tells
// values of the wrong types, "mute" leaves the next questions without an answer.

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QMap>
#include <QSocketNotifier>
#include <iostream>
#include <sstream>
#include <string>

struct Rgb {
  double red, green, blue;
};
Q_DECLARE_METATYPE(Rgb)

static QDBusArgument& operator<<(QDBusArgument& argument, const Rgb& color) {
  argument.beginStructure();
  argument << color.red << color.green << color.blue;
  argument.endStructure();
  return argument;
}
static const QDBusArgument& operator>>(const QDBusArgument& argument, Rgb& color) {
  argument.beginStructure();
  argument >> color.red >> color.green >> color.blue;
  argument.endStructure();
  return argument;
}

class Portal final : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

 public:
  void Do(const std::string& line) {
    std::istringstream words(line);
    std::string deed;
    words >> deed;
    if (deed == "mute") {
      mute_ = true;
    } else if (deed == "nonsense") {
      Tell(QStringLiteral("color-scheme"), QStringLiteral("very dark"));
      Tell(QStringLiteral("accent-color"), QVariant::fromValue(Rgb{2, -1, 7}));
      Tell(QStringLiteral("accent-color"), 5);
    } else if (deed == "color-scheme") {
      uint scheme = 0;
      words >> scheme;
      Tell(QStringLiteral("color-scheme"), scheme);
    } else if (deed == "accent-color") {
      Rgb color{};
      words >> color.red >> color.green >> color.blue;
      Tell(QStringLiteral("accent-color"), QVariant::fromValue(color));
    }
  }

 public slots:
  QDBusVariant Read(const QString&, const QString& key) {
    if (mute_) setDelayedReply(true);
    if (!values_.contains(key)) {
      sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"), key);
      return {};
    }
    return QDBusVariant(QVariant::fromValue(QDBusVariant(values_[key])));
  }

 signals:
  void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);

 private:
  void Tell(const QString& key, const QVariant& value) {
    values_[key] = value;
    emit SettingChanged(QStringLiteral("org.freedesktop.appearance"), key, QDBusVariant(value));
  }

  QMap<QString, QVariant> values_;
  bool mute_ = false;
};

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  qDBusRegisterMetaType<Rgb>();
  qRegisterMetaType<QDBusVariant>();
  Portal portal;
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal,
                          QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) ||
      !bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"))) {
    return EXIT_FAILURE;
  }
  QSocketNotifier input(0, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &portal, [&portal] {
    std::string line;
    if (!std::getline(std::cin, line)) return QCoreApplication::quit();
    portal.Do(line);
    std::cout << "done" << std::endl;
  });
  std::cout << "ready" << std::endl;
  return QCoreApplication::exec();
}

#include "settings_portal.moc"
