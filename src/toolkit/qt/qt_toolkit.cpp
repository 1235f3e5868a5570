#include "toolkit/qt/qt_toolkit.h"

#include <QDir>
#include <QIcon>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <utility>

#include "framework/application/application.h"
#include "framework/application/runtime.h"
#include "toolkit/qt/accessible_popup.h"
#include "toolkit/qt/appearance.h"
#include "toolkit/qt/guarded.h"
#include "toolkit/qt/main_button.h"
#include "toolkit/qt/native_window.h"
#include "toolkit/qt/outline_style.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {

using namespace framework;

namespace {

QIcon Icon() {
  QIcon icon;
  for (const QFileInfo& picture : QDir(QStringLiteral(":/icon")).entryInfoList()) {
    icon.addFile(picture.filePath());
  }
  return icon;
}

}  // namespace

QtToolkit::QtToolkit(std::string_view application_name, std::string_view desktop_entry)
    : name_(application_name), desktop_entry_(desktop_entry) {
  // A failure is also told to whoever reads the standard error; that one has gone is no reason to
  // end.
  std::signal(SIGPIPE, SIG_IGN);
}

void QtToolkit::Initialise() {
  const auto rounding = Application::_SupportsHiDPI()
                            ? Qt::HighDpiScaleFactorRoundingPolicy::PassThrough
                            : Qt::HighDpiScaleFactorRoundingPolicy::Floor;
  QApplication::setHighDpiScaleFactorRoundingPolicy(rounding);
  PlainEnd::AskForRoom();
  PlainEnd::Do([this] {
    application_ = std::make_unique<QApplication>(argument_count_, arguments_);
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
    // The pictures are read by the event loop, not before.
    RunLater(application_.get(), [] { QApplication::setWindowIcon(Icon()); });
  });
}

std::unique_ptr<WindowPeer> QtToolkit::Show(const Ref<Window>& window) {
  auto native = PlainEnd::Do([&window] {
    auto made = std::make_unique<NativeWindow>(window);
    made->show();
    return made;
  });
  PlainEnd::WindowIsShown();
  return native;
}

void QtToolkit::Run() {
  if (!quit_) QApplication::exec();
}

void QtToolkit::Quit() {
  quit_ = true;  // before the loop has begun, there is none that could be told
  QApplication::exit(EXIT_SUCCESS);
}

void QtToolkit::ShowMessage(const String& text) { Tell(QMessageBox::Warning, text); }

void QtToolkit::ReportFailure(std::string_view text) { Tell(QMessageBox::Critical, text); }

void QtToolkit::WaitUntilRead() {
  if (application_ != nullptr) boxes_.WaitUntilRead();
}

void QtToolkit::Tell(QMessageBox::Icon icon, std::string_view text) {
  std::fprintf(stderr, "%s: %.*s\n", name_.c_str(), static_cast<int>(text.size()), text.data());
  try {
    boxes_.Add(icon, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
  } catch (const std::bad_alloc&) {
    // There is no memory for a box; the line must do.
  }
}

void QtToolkit::CallLater(std::int64_t delay_ms, std::function<void()> work) {
  QTimer::singleShot(static_cast<int>(delay_ms), application_.get(), std::move(work));
}

}  // namespace toolkit::qt
