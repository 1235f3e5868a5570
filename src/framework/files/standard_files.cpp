#include "framework/files/standard_files.h"

#include <fcntl.h>
#include <unistd.h>

namespace framework {

void OpenStandardFiles() {
  // The system gives the lowest number that is free. A file beyond the standard ones was not
  // needed.
  int file = 0;
  while (file >= 0 && file <= STDERR_FILENO) file = open("/dev/null", O_RDWR);
  if (file > STDERR_FILENO) close(file);
}

}  // namespace framework
