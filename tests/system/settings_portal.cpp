// Plays the desktop's settings portal on the session bus. A line on standard input sets and tells a
// setting: "color-scheme 1" a number, "accent-color 0.9 0.1 0.1" a colour, "color-scheme dark" a
// text; "mute" leaves the next questions without an answer. "forged" before it: told by someone who
// is not the portal, and not set. "restarted" before it: another portal takes this one's place,
// which has the setting and tells nothing.

#include <QtDBus>
#include <iostream>
#include <iterator>
#include <optional>
#include <sstream>
#include <vector>

const auto kName = QStringLiteral("org.freedesktop.portal.Desktop");
const auto kPath = QStringLiteral("/org/freedesktop/portal/desktop");

static QVariant Wrapped(const QVariant& value) { return QVariant::fromValue(QDBusVariant(value)); }

static QVariant ValueOf(const std::vector<double>& numbers) {
  if (numbers.empty()) return QStringLiteral("a text");
  if (numbers.size() == 1) return static_cast<uint>(numbers[0]);
  QDBusArgument color;
  color.beginStructure();
  for (const double part : numbers) color << part;
  color.endStructure();
  return QVariant::fromValue(color);
}

class Portal final : public QDBusVirtualObject {
 public:
  QString introspect(const QString&) const override { return {}; }

  bool handleMessage(const QDBusMessage& question, const QDBusConnection& bus) override {
    if (mute_) return true;
    const QString key = question.arguments().value(1).toString();
    // What is read comes in a variant of its own.
    return bus.send(values_.contains(key)
                        ? question.createReply(Wrapped(Wrapped(values_[key])))
                        : question.createErrorReply(QDBusError::InvalidArgs, key));
  }

  /// On a connection of its own. Whether the portal's name could be had.
  bool Start() {
    if (bus_) {
      bus_->unregisterService(kName);  // which waits: a connection goes when it likes
      QDBusConnection::disconnectFromBus(bus_->name());
    }
    bus_ = Connection();
    return bus_->registerVirtualObject(kPath, this) && bus_->registerService(kName);
  }

  void Do(std::istringstream line) {
    std::string word;
    line >> word;
    const bool forged = word == "forged";
    const bool restarted = word == "restarted";
    if (forged || restarted) line >> word;
    mute_ = word == "mute";
    const auto key = QString::fromStdString(word);
    const QVariant value = ValueOf({std::istream_iterator<double>(line), {}});
    if (!forged) values_[key] = value;
    if (!restarted) return Tell(key, value, forged ? Connection() : *bus_);
    if (!Start()) std::cout << "no ";
  }

 private:
  static QDBusConnection Connection() {
    static int count = 0;
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QString::number(++count));
  }

  static void Tell(const QString& key, const QVariant& value, const QDBusConnection& bus) {
    QDBusMessage signal = QDBusMessage::createSignal(
        kPath, QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
    signal << QStringLiteral("org.freedesktop.appearance") << key << Wrapped(value);
    bus.send(signal);
    bus.interface()->isServiceRegistered(bus.baseService());  // by then the signal is on its way
  }

  QMap<QString, QVariant> values_;
  std::optional<QDBusConnection> bus_;
  bool mute_ = false;
};

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  Portal portal;
  const bool there = portal.Start();
  QSocketNotifier input(0, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &portal, [&portal] {
    std::string line;
    if (!std::getline(std::cin, line)) return QCoreApplication::quit();
    portal.Do(std::istringstream(line));
    std::cout << "done" << std::endl;
  });
  std::cout << (there ? "ready" : "not there") << std::endl;
  return QCoreApplication::exec();
}
