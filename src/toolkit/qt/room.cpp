#include "toolkit/qt/room.h"

#include <sys/mman.h>

namespace toolkit::qt {

bool HasRoom(std::size_t bytes) {
  void* const room =
      mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (room == MAP_FAILED) return false;
  munmap(room, bytes);
  return true;
}

}  // namespace toolkit::qt
