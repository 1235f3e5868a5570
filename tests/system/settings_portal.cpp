// Plays the desktop's settings portal on the session bus. A line on standard input is one deed:
// "color-scheme 1" sets and tells a scheme, "accent-color 0.9 0.1 0.1" an accent, "nonsense" tells
// values of the wrong types, "mute" leaves the next questions without an answer.

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMap>
#include <QSocketNotifier>
#include <iostream>
#include <sstream>
#include <string>

const auto kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto kScheme = QStringLiteral("color-scheme");
const auto kAccent = QStringLiteral("accent-color");

static QVariant Color(double red, double green, double blue) {
  QDBusArgument color;
  color.beginStructure();
  color << red << green << blue;
  color.endStructure();
  return QVariant::fromValue(color);
}

class Portal final : public QDBusVirtualObject {
 public:
  QString introspect(const QString&) const override { return {}; }

  bool handleMessage(const QDBusMessage& question, const QDBusConnection& bus) override {
    if (question.member() != QLatin1String("Read")) return false;
    const QString key = question.arguments().value(1).toString();
    // What is read comes in a variant of its own.
    const QVariant answer = QVariant::fromValue(QDBusVariant(values_.value(key)));
    if (mute_) return true;
    return bus.send(values_.contains(key)
                        ? question.createReply(QVariant::fromValue(QDBusVariant(answer)))
                        : question.createErrorReply(QDBusError::InvalidArgs, key));
  }

  void Do(std::istringstream line) {
    std::string deed;
    line >> deed;
    mute_ = deed == "mute";
    if (deed == "nonsense") {
      Tell(kScheme, QStringLiteral("very dark"));
      Tell(kAccent, Color(2, -1, 7));
      Tell(kAccent, 5);
    } else if (uint scheme = 0; deed == "color-scheme" && line >> scheme) {
      Tell(kScheme, scheme);
    } else if (double r = 0, g = 0, b = 0; deed == "accent-color" && line >> r >> g >> b) {
      Tell(kAccent, Color(r, g, b));
    }
  }

 private:
  void Tell(const QString& key, const QVariant& value) {
    values_[key] = value;
    QDBusMessage signal = QDBusMessage::createSignal(
        kPath, QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
    signal << QStringLiteral("org.freedesktop.appearance") << key
           << QVariant::fromValue(QDBusVariant(value));
    QDBusConnection::sessionBus().send(signal);
  }

  QMap<QString, QVariant> values_;
  bool mute_ = false;
};

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  Portal portal;
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.registerVirtualObject(kPath, &portal) ||
      !bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"))) {
    return EXIT_FAILURE;
  }
  QSocketNotifier input(0, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &portal, [&portal] {
    std::string line;
    if (!std::getline(std::cin, line)) return QCoreApplication::quit();
    portal.Do(std::istringstream(line));
    std::cout << "done" << std::endl;
  });
  std::cout << "ready" << std::endl;
  return QCoreApplication::exec();
}
