#pragma once

#include <QApplication>
#include <memory>
#include <string>
#include <string_view>

#include "framework/events/toolkit.h"
#include "toolkit/qt/message_boxes.h"
#include "toolkit/qt/plain_end.h"

namespace toolkit::qt {

/// The toolkit of the real program: Qt 6 Widgets. It reads no command line, and lays everything out
/// from the left, whatever language the system speaks. The pictures below ":/icon", where the
/// program has some, are the icon of its windows. A start that cannot go on, without a display say,
/// ends the process with one line on stderr and the status 1. What is told in a box stands on
/// stderr too.
class QtToolkit : public framework::Toolkit {
 public:
  /// The name stands over message boxes; by its desktop entry the system knows the program.
  QtToolkit(std::string_view application_name, std::string_view desktop_entry);

  void Initialise() override;
  std::unique_ptr<framework::WindowPeer> Show(
      const framework::Ref<framework::Window>& window) override;
  void Run() override;
  void Quit() override;
  void ShowMessage(const framework::String& text) override;
  void ReportFailure(std::string_view text) override;
  void WaitUntilRead() override;
  void CallLater(std::int64_t delay_ms, std::function<void()> work) override;

 private:
  void Tell(QMessageBox::Icon icon, std::string_view text);

  PlainEnd plain_end_;
  std::string name_;
  std::string desktop_entry_;
  int argument_count_ = 1;
  char* arguments_[2] = {name_.data(), nullptr};
  std::unique_ptr<QApplication> application_;
  MessageBoxes boxes_{QString::fromStdString(name_)};
  bool quit_ = false;
};

}  // namespace toolkit::qt
