#include "framework/files/standard_files.h"

#include <fcntl.h>
#include <unistd.h>

namespace framework {

void OpenStandardFiles() {
  // The system gives the lowest number that is free.
  for (int file = STDIN_FILENO; file <= STDERR_FILENO; ++file) {
    if (fcntl(file, F_GETFD) == -1) open("/dev/null", O_RDWR);
  }
}

}  // namespace framework
