#include "framework/files/standard_files.h"
#include "shell/start_up.h"
#include "toolkit/qt/qt_toolkit.h"

int main() {
  framework::OpenStandardFiles();
  toolkit::qt::QtToolkit toolkit("Orrel Pitchsieve", "orrel-pitchsieve");
  return shell::main();
}
