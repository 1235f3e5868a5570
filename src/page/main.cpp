#include <memory>

#include "framework/application/special_folder.h"
#include "page/own_library.h"
#include "shell/start_up.h"
#include "toolkit/web/web_toolkit.h"

int main() {
  // The browser ends the program, in mid-run: this goes down with it.
  static toolkit::web::WebToolkit toolkit;
  page::TakeLibrary();
  const int status = shell::main();
  toolkit::web::WebToolkit::ShowEnd();
  return status;
}
