#pragma once

#include <gmock/gmock.h>

#include "framework/application/runtime.h"
#include "toolkit/memory/memory_toolkit.h"

namespace support {

/// The framework at work, in memory and without a program.
class Running : public testing::Test {
 protected:
  Running() {
    framework::RuntimeInit();
    framework::RuntimePerformInitializers({});
  }
  ~Running() override {
    framework::RuntimePerformFinalizers();
    framework::RuntimeExit();
  }

  /// What the last resort reports of the work; empty when there was nothing to report.
  std::string Reported(const std::function<void()>& work) {
    toolkit_.ClearLog();
    framework::Application::_CallFunctionWithExceptionHandling(work);
    return toolkit_.Lines().empty() ? "" : toolkit_.Lines().back();
  }

  toolkit::memory::MemoryToolkit toolkit_;
};

}  // namespace support
