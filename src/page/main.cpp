#include <cstddef>

#include "framework/events/run_loop.h"
#include "page/own_library.h"
#include "shell/start_up.h"
#include "toolkit/web/web_toolkit.h"

int main() {
  // The browser ends the program, in mid-run: this goes down with it.
  static toolkit::web::WebToolkit toolkit;
  bool ready = false;
  framework::RunLoopApplication::_CallFunctionWithExceptionHandling([&ready] {
    page::TakeLibrary();
    if (page::IsCheck()) page::TellOfLibrary();
    ready = true;
  });
  if (!ready) return 1;  // the library is too large for the memory, which is told
  if (page::IsCheck()) return 0;
  const int status = shell::main();
  toolkit::web::WebToolkit::ShowEnd();
  return status;
}

/// Names a class of the standard library's own as its compiler does. The real one is a fifth of all
/// code, and what it is for, a failure of a class that is not the framework's, does not come about.
extern "C" char* __cxa_demangle(const char*, char*, std::size_t*, int*) { return nullptr; }
