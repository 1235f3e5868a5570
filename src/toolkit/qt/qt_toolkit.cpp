#include "toolkit/qt/qt_toolkit.h"

#include <QDir>
#include <QIcon>
#include <QMessageBox>
#include <QTimer>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <utility>

#include "framework/application/application.h"
#include "framework/application/runtime.h"
#include "toolkit/qt/accessible_popup.h"
#include "toolkit/qt/appearance.h"
#include "toolkit/qt/main_button.h"
#include "toolkit/qt/native_window.h"
#include "toolkit/qt/outline_style.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {

using namespace framework;

namespace {

/// Qt ends the process with an abort, and so a core file, when no display answers or no platform
/// plug-in for it is there. Its last message before that is the only one that no such way goes
/// around.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  std::cerr << "No window can be opened: no X11 or Wayland display answers to Qt's plug-ins.\n";
  std::_Exit(EXIT_FAILURE);
}

QIcon Icon() {
  QIcon icon;
  for (const QFileInfo& picture : QDir(QStringLiteral(":/icon")).entryInfoList()) {
    icon.addFile(picture.filePath());
  }
  return icon;
}

void ShowBox(QMessageBox::Icon icon, const std::string& title, const QString& text) {
  QMessageBox box(icon, QString::fromStdString(title), text, QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace

QtToolkit::QtToolkit(std::string application_name, std::string desktop_entry)
    : name_(std::move(application_name)), desktop_entry_(std::move(desktop_entry)) {
  // A failure is also told to whoever reads the standard error; that one has gone is no reason to
  // end.
  std::signal(SIGPIPE, SIG_IGN);
}

void QtToolkit::Initialise() {
  const auto rounding = Application::_SupportsHiDPI()
                            ? Qt::HighDpiScaleFactorRoundingPolicy::PassThrough
                            : Qt::HighDpiScaleFactorRoundingPolicy::Floor;
  QApplication::setHighDpiScaleFactorRoundingPolicy(rounding);
  const auto usual = qInstallMessageHandler(&EndWithoutDisplay);
  application_ = std::make_unique<QApplication>(argument_count_, arguments_);
  qInstallMessageHandler(usual);
  if (QApplication::style()->name() == QLatin1String(OutlineStyle::kBase)) {
    QApplication::setStyle(new OutlineStyle);
  }
  QApplication::setLayoutDirection(Qt::LeftToRight);
  QApplication::setDesktopFileName(QString::fromStdString(desktop_entry_));
  // The window says itself when the program ends.
  QApplication::setQuitOnLastWindowClosed(false);
  TellPopupsAsText();
  new Appearance(application_.get());
  application_->installEventFilter(new MainButtonOnly(application_.get()));
  // The pictures are read by the first event loop, of a message box or the run, not before.
  QMetaObject::invokeMethod(
      application_.get(), [] { _RunEvent([] { QApplication::setWindowIcon(Icon()); }); },
      Qt::QueuedConnection);
}

std::unique_ptr<WindowPeer> QtToolkit::Show(const Ref<Window>& window) {
  auto native = std::make_unique<NativeWindow>(window);
  native->show();
  return native;
}

void QtToolkit::Run() {
  if (!std::exchange(quit_, false)) QApplication::exec();
  quit_ = false;
}

void QtToolkit::Quit() {
  quit_ = true;
  if (application_ != nullptr) QApplication::exit(EXIT_SUCCESS);
}

void QtToolkit::ShowMessage(const String& text) {
  ShowBox(QMessageBox::Warning, name_, Shown(text));
}

void QtToolkit::ReportFailure(const String& text) {
  std::cerr << name_ << ": " << text.View() << std::endl;
  if (application_ != nullptr) ShowBox(QMessageBox::Critical, name_, Shown(text));
}

void QtToolkit::CallLater(std::int64_t delay_ms, std::function<void()> work) {
  QTimer::singleShot(static_cast<int>(delay_ms), application_.get(), std::move(work));
}

}  // namespace toolkit::qt
