#pragma once

#include <memory>
#include <string_view>

#include "framework/application/runtime.h"
#include "framework/events/toolkit.h"
#include "library/load.h"
#include "shell/start_up.h"
#include "support/test_bundle.h"
#include "window/main_window.h"

namespace bench {

/// A toolkit that shows nothing and keeps nothing of it.
class NoScreen final : public framework::Toolkit {
 public:
  void Initialise() override {}
  std::unique_ptr<framework::WindowPeer> Show(const framework::Ref<framework::Window>&) override {
    return nullptr;
  }
  void Run() override {}
  void Quit() override {}
  void ShowMessage(const framework::String&) override {}
  void ReportFailure(std::string_view) override {}
  void CallLater(std::int64_t, std::function<void()>) override {}
};

/// The whole program on a toolkit, opened on a library of the benchmark's.
template <class Toolkit>
class Program {
 public:
  explicit Program(std::string_view library) {
    folder_.Write(library::kFileName, library);
    framework::SpecialFolder::_SetBundlePlatform(
        std::make_unique<support::TestBundle>(folder_.Path()));
    framework::RuntimeInit();
    framework::RuntimePerformInitializers({});
    shell::_EarlyStartup();
    framework::_RunFrameworkInitialization(&shell::_LateStartup);
    window_ = window::wdwMain();
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() {
    window_ = nullptr;
    framework::RuntimePerformFinalizers();
    framework::RuntimeExit();
    framework::SpecialFolder::_SetBundlePlatform(nullptr);
  }

  window::wdwMainClass& Window() { return *window_; }

 private:
  support::Folder folder_;
  Toolkit toolkit_;
  framework::Ref<window::wdwMainClass> window_;
};

}  // namespace bench
