#pragma once

#include <exception>
#include <functional>
#include <thread>

#include "framework/values/failures.h"

namespace framework {

/// The application object as the run loop knows it: how it takes a failure, and its thread. An
/// Application adds what else a program is.
class RunLoopApplication {
 public:
  /// The running thread; nullptr on the main thread.
  static const std::thread::id* CurrentThread();

  /// Runs one unit of work under the application-level handling. An EndException and a
  /// ThreadEndException are dropped. Any other RuntimeException goes to Event_UnhandledException,
  /// and if that does not take it, to UnhandledException. Memory that the system refuses counts as
  /// OutOfMemoryException. A failure that is no RuntimeException goes on to the caller.
  static void _CallFunctionWithExceptionHandling(const std::function<void()>& function);

 protected:
  ~RunLoopApplication() = default;
  /// The UnhandledException event: true when the failure is dealt with.
  virtual bool Event_UnhandledException(const RuntimeException&) { return false; }
};

/// Begins a run, on the main thread, with no application object.
void _StartRunLoop();
/// Makes the application object known to the run loop; nullptr for none. From a first one on, the
/// user-interface guard tests each operation.
void _SetRunLoopApplication(RunLoopApplication* application);

/// Runs a function with an argument and gives its failure back as a value: null when it returned
/// normally. A failure that is no RuntimeException goes on to the caller.
using ExceptionFunction = std::exception_ptr (*)(void (*function)(void*), void* argument);
std::exception_ptr _CallFunctionWithExceptionHandling(void (*function)(void*), void* argument);

/// Remembers the function by which the run loop gets a failure back from the program's code.
void _RuntimeSetExceptionHelper(ExceptionFunction function);

/// Runs the event loop until the application ends. A failure that no event handling took ends it,
/// and is raised again here.
void _RuntimeRun();

/// What _RunEvent runs: holds a reference alone.
void _RunLent(const std::function<void()>& work) noexcept;
/// Runs one event of the user's or of the system's under the application-level handling. This is
/// the one road on which a toolkit calls work of ours. Nothing is raised into the toolkit, whose
/// code is between the event and the run loop: what that handling lets through ends the loop, and
/// _RuntimeRun raises it. One inside another is an event of its own. The work is lent for the call:
/// the way to the guard asks for no memory, however much the work holds.
template <class Work>
void _RunEvent(const Work& work) noexcept {
  _RunLent(std::cref(work));
}
/// The same road for what a toolkit asks: what the work returns, or otherwise where it fails.
template <class Answer, class Work>
Answer _RunQuestion(Answer otherwise, const Work& work) noexcept {
  _RunEvent([&] { otherwise = work(); });
  return otherwise;
}

/// The last resort for a failure in an event: it is reported, and the program goes on.
void UnhandledException(const RuntimeException& exception) noexcept;
/// The last resort for a failure of any class that leaves the program's outermost block: it is
/// reported, and the exit status becomes 1.
void _UnhandledException(const std::exception_ptr& exception) noexcept;

/// Ends the run. The exit status: 0 after a normal end, 1 after a failure that left the outermost
/// block, or an event behind it: that one is reported here.
int _EndRunLoop();

}  // namespace framework
