#pragma once

#include <span>

#include "framework/application/application.h"
#include "framework/events/run_loop.h"

namespace framework {

// The framework's side of a program's life, in the order in which a program calls it.

/// One piece of shared state of the program: how it comes to its first value, and how it goes.
struct Initializer {
  void (*set_up)();
  void (*tear_down)();
};

/// Starts the runtime, on the main thread. A toolkit must have been made before.
void RuntimeInit();
/// Sets up the framework's own shared state, then the program's, in the order of the list, which
/// must outlive the program.
void RuntimePerformInitializers(std::span<const Initializer> program);

void RuntimeSetFrameworkVersion(double version);
double RuntimeFrameworkVersion();
/// Steps of a start that have nothing to do here: C++ knows its classes without being
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
/// Waits until the user has read what he was told, releases all windows, then undoes the
/// initializers, in the opposite order.
void RuntimePerformFinalizers();
/// Ends the runtime. The exit status: 0 after a normal end, 1 after a failure that left the
/// outermost block.
int RuntimeExit();

}  // namespace framework
