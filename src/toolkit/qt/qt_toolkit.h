#pragma once

#include <QApplication>
#include <memory>
#include <string>

#include "framework/events/toolkit.h"

namespace toolkit::qt {

/// The toolkit of the real program: Qt 6 Widgets. It reads no command line, and lays everything out
/// from the left, whatever language the system speaks. The pictures below ":/icon", where the
/// program has some, are the icon of its windows. Without a display, Initialise ends the process
/// with one line on stderr and the status 1.
class QtToolkit : public framework::Toolkit {
 public:
  /// The name stands over message boxes; by its desktop entry the system knows the program.
  QtToolkit(std::string application_name, std::string desktop_entry);

  void Initialise() override;
  std::unique_ptr<framework::WindowPeer> Show(
      const framework::Ref<framework::Window>& window) override;
  void Run() override;
  void Quit() override;
  void ShowMessage(const framework::String& text) override;
  /// In a message box, and as a line on stderr.
  void ReportFailure(const framework::String& text) override;
  void CallLater(std::int64_t delay_ms, std::function<void()> work) override;

 private:
  std::string name_;
  std::string desktop_entry_;
  int argument_count_ = 1;
  char* arguments_[2] = {name_.data(), nullptr};
  std::unique_ptr<QApplication> application_;
  bool quit_ = false;
};

}  // namespace toolkit::qt
