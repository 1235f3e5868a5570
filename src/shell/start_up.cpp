#include "shell/start_up.h"

#include "framework/application/runtime.h"
#include "menu/main_menu_bar.h"
#include "shell/app.h"
#include "window/main_window.h"

namespace shell {

using namespace framework;

namespace {

/// The program's shared state. Its classes need no setting up at run time.
constexpr Initializer kInitializers[] = {
    {.set_up = &menu::_ForgetMainMenuBar, .tear_down = &menu::_ForgetMainMenuBar},
};

}  // namespace

int main() {
  RuntimeInit();
  RuntimePerformInitializers(kInitializers);
  _Main();
  RuntimePerformFinalizers();
  return RuntimeExit();
}

void _Main() {
  try {
    _RuntimeSetExceptionHelper(&_CallFunctionWithExceptionHandling);
    RuntimeSetFrameworkVersion(2019.01);
    _EarlyStartup();
    _RunFrameworkInitialization(&_LateStartup);
    _RuntimeRun();
  } catch (...) {
    _UnhandledException(std::current_exception());
  }
}

void _EarlyStartup() {
  // High resolution is set before anything is drawn.
  Application::_SetSupportsHiDPI(true);
  _RuntimeInitExternalClasses();
  _InitPluginEntrypoints();
  _InitFileTypes();
  _NewAppInstance();
  _ApplicationAddMenuHandlers();
}

void _InitFileTypes() {}

void _NewAppInstance() {
  const auto app = RuntimeNewObject<App>();
  app->Constructor();
  app->_x_SetVersionData(1, 1, 0, 0, 0, "", "1.1", "");
  // The menu is built before the object is registered: from then on each user-interface operation
  // is tested for its thread.
  app->MenuBar(menu::MainMenuBar());
  _RuntimeRegisterAppObject(app);
}

void _ApplicationAddMenuHandlers() {}

void _LateStartup() { _MakeDefaultView(); }

void _MakeDefaultView() { window::wdwMain(); }

}  // namespace shell
