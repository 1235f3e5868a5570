#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "framework/events/toolkit.h"

namespace toolkit::web {

class PageWindow;

/// The toolkit of the program as a page: the browser's own controls. Run leaves the loop to the
/// browser and does not come back; what a program does behind it is done when the loop is to end.
class WebToolkit final : public framework::Toolkit {
 public:
  WebToolkit();
  void Initialise() override;
  std::unique_ptr<framework::WindowPeer> Show(
      const framework::Ref<framework::Window>& window) override;
  void Run() override;
  void Quit() override { quit_ = true; }
  void ShowMessage(const framework::String& text) override;
  /// In a message, and on the browser's console.
  void ReportFailure(std::string_view text) override;
  void CallLater(std::int64_t delay_ms, std::function<void()> work) override;

  /// Runs what the browser has called for as one event: nothing is thrown through the browser, and
  /// what the event changed shows once, behind it.
  void Deliver(const std::function<void()>& work);
  /// Leaves a page that says that the program has ended.
  static void ShowEnd();

 private:
  void End();

  PageWindow* window_ = nullptr;  ///< the one shown last
  bool quit_ = false;
};

}  // namespace toolkit::web
