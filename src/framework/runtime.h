#pragma once

#include <exception>
#include <functional>
#include <span>

#include "framework/application.h"

namespace framework {

// The framework's side of a program's life, in the order in which a program calls it.

/// One piece of shared state of the program: how it comes to its first value, and how it goes.
struct Initializer {
  void (*set_up)();
  void (*tear_down)();
};

/// Runs a function with an argument and gives its failure back as a value: null when it returned
/// normally. A failure that is no RuntimeException goes on to the caller.
using ExceptionFunction = std::exception_ptr (*)(void (*function)(void*), void* argument);
std::exception_ptr _CallFunctionWithExceptionHandling(void (*function)(void*), void* argument);

/// Brings the runtime up, on the main thread. A toolkit must have been made before.
void RuntimeInit();
/// Sets up the framework's own shared state, then the program's, in the order of the list, which
/// must outlive the program.
void RuntimePerformInitializers(std::span<const Initializer> program);

/// Remembers the function by which the run loop gets a failure back from the program's code.
void _RuntimeSetExceptionHelper(ExceptionFunction function);
void RuntimeSetFrameworkVersion(double version);
double RuntimeFrameworkVersion();
/// Places in the order of a start that have nothing to do here: C++ knows its classes without being
/// told, and there are no plug-ins.
void _RuntimeInitExternalClasses();
void _InitPluginEntrypoints();
/// Makes app the application object. From now on the user-interface guard tests each operation.
void _RuntimeRegisterAppObject(const Ref<Application>& app);
/// The application object; nil until one is registered.
Ref<Application> getAppObject();
/// Finishes the framework's own making, the toolkit's included, and runs function, which may make
/// the first window.
void _RunFrameworkInitialization(void (*function)());
/// Runs the event loop until the application ends. A failure that no event handling took ends it,
/// and is raised again here.
void _RuntimeRun();

/// Runs one event of the user's or of the system's under the application-level handling. Nothing is
/// raised into the toolkit, whose code is between the event and the run loop: what that handling
/// lets through ends the loop, and _RuntimeRun raises it.
void _RunEvent(const std::function<void()>& work) noexcept;

/// The last resort for a failure in an event: it is reported, and the program goes on.
void UnhandledException(const RuntimeException& exception);
/// The last resort for a failure of any class that leaves the program's outermost block: it is
/// reported, and the exit status becomes 1.
void _UnhandledException(const std::exception_ptr& exception);

/// Lets go of all windows, then undoes the initializers, in the opposite order.
void RuntimePerformFinalizers();
/// Tears the runtime down. The exit status: 0 after a normal end, 1 after a failure that left the
/// outermost block.
int RuntimeExit();

}  // namespace framework
