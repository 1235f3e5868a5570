#include "toolkit/web/web_toolkit.h"

#include <emscripten.h>

#include <exception>
#include <utility>

#include "framework/application/runtime.h"
#include "framework/notifications/local_object_runtime.h"
#include "toolkit/web/dom.h"
#include "toolkit/web/page_window.h"

namespace toolkit::web {

using namespace framework;

namespace {

void FollowAppearance() {
  using namespace _MacOSDistributedNotifications;
  // The style sheet follows by itself; this tells who listens.
  static auto& page = *new Element(Element::Of("desk"));
  page.OnMedia("(prefers-color-scheme: dark)", [] { _PostNotification(kThemeChanged); });
  page.OnMedia("(forced-colors: active)", [] { _PostNotification(kColorsChanged); });
}

}  // namespace

WebToolkit::WebToolkit() {
  // A failure of the page's script ends the program. To stop by abort would raise another such
  // failure, and so on; a trap can be caught only outside.
  std::set_terminate([] { __builtin_trap(); });
}

void WebToolkit::Initialise() { FollowAppearance(); }

std::unique_ptr<WindowPeer> WebToolkit::Show(const Ref<Window>& window) {
  auto shown = std::make_unique<PageWindow>(window);
  window_ = shown.get();
  return shown;
}

void WebToolkit::Run() {
  if (!std::exchange(quit_, false)) emscripten_exit_with_live_runtime();
}

void WebToolkit::ShowMessage(const String& text) {
  page_Alert(text.View().data(), text.View().size());
}

void WebToolkit::ReportFailure(std::string_view text) {
  page_Log(text.data(), text.size());
  page_Alert(text.data(), text.size());
}

void WebToolkit::CallLater(std::int64_t delay_ms, std::function<void()> work) {
  page_Later(static_cast<int>(delay_ms), new std::function<void()>(std::move(work)));
}

void WebToolkit::Deliver(const std::function<void()>& work) {
  _RunEvent(work);
  if (window_ != nullptr) _RunEvent([this] { window_->Refresh(); });
  if (quit_) End();
}

void WebToolkit::End() {
  try {
    _RuntimeRun();
  } catch (...) {
    _UnhandledException(std::current_exception());
  }
  window_ = nullptr;
  RuntimePerformFinalizers();
  RuntimeExit();
  ShowEnd();
}

void WebToolkit::ShowEnd() { page_End(); }

}  // namespace toolkit::web

namespace {

toolkit::web::WebToolkit& Current() {
  return static_cast<toolkit::web::WebToolkit&>(framework::Toolkit::Current());
}

}  // namespace

EMSCRIPTEN_KEEPALIVE void page_Heard(PageCall* listener) { Current().Deliver(*listener); }

EMSCRIPTEN_KEEPALIVE void page_Due(PageCall* work) {
  const std::unique_ptr<PageCall> owned(work);
  Current().Deliver(*owned);
}
