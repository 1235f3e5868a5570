#include "framework/runtime.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <typeinfo>
#include <utility>

#include "framework/timer.h"
#include "framework/toolkit.h"
#include "framework/ui_trap.h"
#include "framework/window.h"

namespace framework {

namespace {

/// What the runtime knows between RuntimeInit and RuntimeExit.
struct Runtime {
  std::span<const Initializer> program;
  ExceptionFunction exception_helper = &_CallFunctionWithExceptionHandling;
  double framework_version = 0;
  Ref<Application> app;
  std::thread::id main_thread;
  std::exception_ptr escaped;  ///< what left an event and ends the run loop
  int exit_status = 0;
};

Runtime runtime;

String Describe(const RuntimeException& exception) {
  std::string text(exception.ClassName());
  if (!exception.Message().View().empty()) text.append(": ").append(exception.Message());
  text.append(" (error number ").append(std::to_string(exception.ErrorNumber())).append(")");
  return text;
}

String Describe(const std::exception_ptr& failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const RuntimeException& exception) {
    return Describe(exception);
  } catch (const std::exception& exception) {
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(exception).name(), nullptr, nullptr, nullptr), &std::free);
    return String(std::string(name.get()) + ": " + exception.what());
  } catch (...) {
    return "A failure of an unknown class.";
  }
}

void CallWork(void* work) {
  Application::_CallFunctionWithExceptionHandling(*static_cast<const std::function<void()>*>(work));
}

}  // namespace

std::exception_ptr _CallFunctionWithExceptionHandling(void (*function)(void*), void* argument) {
  try {
    function(argument);
  } catch (const RuntimeException&) {
    return std::current_exception();
  }
  return nullptr;
}

void _UITrap() {
  if (runtime.app && Application::CurrentThread() != nullptr) {
    RuntimeRaiseException(ThreadAccessingUIException());
  }
}

const std::thread::id* Application::CurrentThread() {
  static thread_local const std::thread::id self = std::this_thread::get_id();
  return self == runtime.main_thread ? nullptr : &self;
}

void RuntimeInit() {
  runtime = {};
  runtime.main_thread = std::this_thread::get_id();
}

void RuntimePerformInitializers(std::span<const Initializer> program) {
  runtime.program = program;
  for (const Initializer& initializer : program) initializer.set_up();
}

void _RuntimeSetExceptionHelper(ExceptionFunction function) { runtime.exception_helper = function; }

void RuntimeSetFrameworkVersion(double version) { runtime.framework_version = version; }
double RuntimeFrameworkVersion() { return runtime.framework_version; }

void _RuntimeInitExternalClasses() {}
void _InitPluginEntrypoints() {}

void _RuntimeRegisterAppObject(const Ref<Application>& app) { runtime.app = app; }
Ref<Application> getAppObject() { return runtime.app; }

void _RunFrameworkInitialization(void (*function)()) {
  Toolkit::Current().Initialise();
  function();
}

void _RuntimeRun() {
  if (runtime.escaped == nullptr) Toolkit::Current().Run();
  if (runtime.escaped != nullptr) {
    RuntimeReraiseException(std::exchange(runtime.escaped, nullptr));
  }
}

void _RunEvent(const std::function<void()>& work) noexcept {
  std::exception_ptr failure;
  try {
    failure = runtime.exception_helper(&CallWork, const_cast<std::function<void()>*>(&work));
  } catch (...) {
    failure = std::current_exception();
  }
  if (failure == nullptr) return;
  runtime.escaped = failure;
  Toolkit::Current().Quit();
}

void UnhandledException(const RuntimeException& exception) {
  Toolkit::Current().ReportFailure(Describe(exception));
}

void _UnhandledException(const std::exception_ptr& exception) {
  runtime.exit_status = 1;
  Toolkit::Current().ReportFailure(Describe(exception));
}

void RuntimePerformFinalizers() {
  _ReleaseWindows();
  for (auto it = runtime.program.rbegin(); it != runtime.program.rend(); ++it) it->tear_down();
  Timer::_Forget();
}

int RuntimeExit() {
  const int status = runtime.exit_status;
  runtime = {};
  return status;
}

}  // namespace framework
