#include "framework/application/runtime.h"

#include "framework/controls/window.h"
#include "framework/events/timer.h"
#include "framework/events/toolkit.h"
#include "framework/notifications/local_object_runtime.h"

namespace framework {

namespace {

/// What the runtime knows between RuntimeInit and RuntimeExit.
struct Runtime {
  std::span<const Initializer> program;
  double framework_version = 0;
  Ref<Application> app;
};

Runtime& State() {
  static auto& state = *new Runtime;
  return state;
}

}  // namespace

void RuntimeInit() {
  State() = {};
  _StartRunLoop();
  // What the end of a run lets go of is there from its start: the end may have no memory.
  _ReleaseWindows();
  Timer::_Forget();
  _StartObjectRuntime();
}

void RuntimePerformInitializers(std::span<const Initializer> program) {
  State().program = program;
  _MacOSDistributedNotifications::_SetUpState();
  for (const Initializer& initializer : program) initializer.set_up();
}

void RuntimeSetFrameworkVersion(double version) { State().framework_version = version; }
double RuntimeFrameworkVersion() { return State().framework_version; }

void _RuntimeInitExternalClasses() {}
void _InitPluginEntrypoints() {}

void _RuntimeRegisterAppObject(const Ref<Application>& app) {
  State().app = app;
  _SetRunLoopApplication(app ? app.Get() : nullptr);
}
Ref<Application> getAppObject() { return State().app; }

void _RunFrameworkInitialization(void (*function)()) {
  Toolkit::Current().Initialise();
  function();
}

void RuntimePerformFinalizers() {
  _RunEvent([] { Toolkit::Current().WaitUntilRead(); });
  _ReleaseWindows();
  const auto& program = State().program;
  for (auto it = program.rbegin(); it != program.rend(); ++it) it->tear_down();
  Timer::_Forget();
}

int RuntimeExit() {
  const int status = _EndRunLoop();
  State() = {};
  return status;
}

}  // namespace framework
