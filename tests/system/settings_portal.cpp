// Plays the desktop's settings portal on the session bus. A line on standard input sets and tells a
// setting: "color-scheme 1" a number, "accent-color 0.9 0.1 0.1" a colour, "color-scheme dark" a
// text; "mute" leaves the next questions without an answer.

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMap>
#include <QSocketNotifier>
#include <iostream>
#include <iterator>
#include <sstream>
#include <vector>

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

  void Do(std::istringstream line) {
    std::string word;
    line >> word;
    mute_ = word == "mute";
    const auto key = QString::fromStdString(word);
    values_[key] = ValueOf({std::istream_iterator<double>(line), {}});
    QDBusMessage signal = QDBusMessage::createSignal(
        kPath, QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
    signal << QStringLiteral("org.freedesktop.appearance") << key << Wrapped(values_[key]);
    QDBusConnection::sessionBus().send(signal);
  }

 private:
  QMap<QString, QVariant> values_;
  bool mute_ = false;
};

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  Portal portal;
  QDBusConnection bus = QDBusConnection::sessionBus();
  const bool there = bus.registerVirtualObject(kPath, &portal) &&
                     bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
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
