#include "framework/events/run_loop.h"

#include <cstdio>
#include <new>
#include <string_view>
#include <utility>

#include "framework/events/failure_text.h"
#include "framework/events/toolkit.h"
#include "framework/events/ui_trap.h"

namespace framework {

namespace {

/// What the run loop knows between _StartRunLoop and _EndRunLoop.
struct RunLoop {
  RunLoopApplication* application = nullptr;
  ExceptionFunction exception_helper = &_CallFunctionWithExceptionHandling;
  std::thread::id main_thread;
  std::exception_ptr escaped;  ///< what left an event and ends the run loop
  int exit_status = 0;
};

RunLoop& State() {
  static auto& state = *new RunLoop;
  return state;
}

/// The message of a refusal, which is made while there is memory for it.
const String& NoMemory() {
  static const auto& text = *new String("The system has no memory left.");
  return text;
}

/// Whatever a toolkit fails at, the failure is told.
void Report(std::string_view text) noexcept {
  try {
    Toolkit::Current().ReportFailure(text);
  } catch (...) {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
  }
}

void CallWithMemoryFailures(const std::function<void()>& function) {
  try {
    function();
  } catch (const std::bad_alloc&) {
    RuntimeRaiseException(OutOfMemoryException(NoMemory()));
  }
}

void CallWork(void* work) {
  RunLoopApplication::_CallFunctionWithExceptionHandling(
      *static_cast<const std::function<void()>*>(work));
}

}  // namespace

void _StartRunLoop() {
  NoMemory();
  State() = {};
  State().main_thread = std::this_thread::get_id();
}

void _SetRunLoopApplication(RunLoopApplication* application) { State().application = application; }

std::exception_ptr _CallFunctionWithExceptionHandling(void (*function)(void*), void* argument) {
  try {
    function(argument);
  } catch (const RuntimeException&) {
    return std::current_exception();
  }
  return nullptr;
}

void _UITrap() {
  if (State().application != nullptr && RunLoopApplication::CurrentThread() != nullptr) {
    RuntimeRaiseException(ThreadAccessingUIException());
  }
}

const std::thread::id* RunLoopApplication::CurrentThread() {
  static thread_local const std::thread::id self = std::this_thread::get_id();
  return self == State().main_thread ? nullptr : &self;
}

void RunLoopApplication::_CallFunctionWithExceptionHandling(const std::function<void()>& function) {
  try {
    CallWithMemoryFailures(function);
  } catch (const EndException&) {
  } catch (const ThreadEndException&) {
  } catch (const RuntimeException& failure) {
    RunLoopApplication* const application = State().application;
    if (application == nullptr || !application->Event_UnhandledException(failure)) {
      UnhandledException(failure);
    }
  }
}

void _RuntimeSetExceptionHelper(ExceptionFunction function) { State().exception_helper = function; }

void _RuntimeRun() {
  Toolkit::Current().Run();
  if (State().escaped != nullptr) {
    RuntimeReraiseException(std::exchange(State().escaped, nullptr));
  }
}

void _RunLent(const std::function<void()>& work) noexcept {
  std::exception_ptr failure;
  try {
    failure = State().exception_helper(&CallWork, const_cast<std::function<void()>*>(&work));
  } catch (...) {
    failure = std::current_exception();
  }
  if (failure == nullptr) return;
  if (State().escaped != nullptr) return Report(FailureText(failure).View());
  State().escaped = failure;
  Toolkit::Current().Quit();
}

void UnhandledException(const RuntimeException& exception) noexcept {
  Report(FailureText(exception).View());
}

void _UnhandledException(const std::exception_ptr& exception) noexcept {
  State().exit_status = 1;
  Report(FailureText(exception).View());
}

int _EndRunLoop() {
  if (State().escaped != nullptr) _UnhandledException(State().escaped);
  const int status = State().exit_status;
  State() = {};
  return status;
}

}  // namespace framework
