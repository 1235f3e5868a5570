#include "shell/start_up.h"
#include "toolkit/qt/qt_toolkit.h"

int main() {
  toolkit::qt::QtToolkit toolkit("Orrel Pitchsieve");
  return shell::main();
}
