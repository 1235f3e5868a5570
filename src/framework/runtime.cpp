#include "framework/runtime.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <typeinfo>
#include <utility>

#include "framework/local_object_runtime.h"
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

Runtime& State() {
  static auto& state = *new Runtime;
  return state;
}

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
    const char* const class_name = name != nullptr ? name.get() : typeid(exception).name();
    return String(std::string(class_name) + ": " + exception.what());
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
  if (State().app && Application::CurrentThread() != nullptr) {
    RuntimeRaiseException(ThreadAccessingUIException());
  }
}

const std::thread::id* Application::CurrentThread() {
  static thread_local const std::thread::id self = std::this_thread::get_id();
  return self == State().main_thread ? nullptr : &self;
}

void RuntimeInit() {
  State() = {};
  State().main_thread = std::this_thread::get_id();
  _StartObjectRuntime();
}

void RuntimePerformInitializers(std::span<const Initializer> program) {
  State().program = program;
  _MacOSDistributedNotifications::_SetUpState();
  for (const Initializer& initializer : program) initializer.set_up();
}

void _RuntimeSetExceptionHelper(ExceptionFunction function) { State().exception_helper = function; }

void RuntimeSetFrameworkVersion(double version) { State().framework_version = version; }
double RuntimeFrameworkVersion() { return State().framework_version; }

void _RuntimeInitExternalClasses() {}
void _InitPluginEntrypoints() {}

void _RuntimeRegisterAppObject(const Ref<Application>& app) { State().app = app; }
Ref<Application> getAppObject() { return State().app; }

void _RunFrameworkInitialization(void (*function)()) {
  Toolkit::Current().Initialise();
  function();
}

void _RuntimeRun() {
  Toolkit::Current().Run();
  if (State().escaped != nullptr) {
    RuntimeReraiseException(std::exchange(State().escaped, nullptr));
  }
}

void _RunEvent(const std::function<void()>& work) noexcept {
  std::exception_ptr failure;
  try {
    failure = State().exception_helper(&CallWork, const_cast<std::function<void()>*>(&work));
  } catch (...) {
    failure = std::current_exception();
  }
  if (failure == nullptr) return;
  State().escaped = failure;
  Toolkit::Current().Quit();
}

void UnhandledException(const RuntimeException& exception) {
  Toolkit::Current().ReportFailure(Describe(exception));
}

void _UnhandledException(const std::exception_ptr& exception) {
  State().exit_status = 1;
  Toolkit::Current().ReportFailure(Describe(exception));
}

void RuntimePerformFinalizers() {
  _ReleaseWindows();
  const auto& program = State().program;
  for (auto it = program.rbegin(); it != program.rend(); ++it) it->tear_down();
  Timer::_Forget();
}

int RuntimeExit() {
  const int status = State().exit_status;
  State() = {};
  return status;
}

}  // namespace framework
