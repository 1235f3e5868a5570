#include "toolkit/qt/start_guard.h"

#include <malloc.h>
#include <sys/mman.h>

#include <QString>
#include <cstdlib>
#include <iostream>

namespace toolkit::qt {

namespace {

/// What a start takes beside the libraries that the program is linked with: 26 MiB on a plain
/// screen, 55 MiB on one with three times the points. Much of it is only reserved.
constexpr std::size_t kRoomForAStart = std::size_t{64} << 20;
/// Where less is left, memory is what was wanting.
constexpr std::size_t kScarce = std::size_t{8} << 20;

[[noreturn]] void End(const char* why) {
  std::cerr << "No window can be opened: " << why << std::endl;
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

StartGuard::StartGuard()
    : new_handler_(std::set_new_handler(&EndWithoutMemory)),
      terminate_handler_(std::set_terminate(&EndOfAnException)),
      message_handler_(qInstallMessageHandler(&Heard)) {}

StartGuard::~StartGuard() {
  qInstallMessageHandler(message_handler_);
  std::set_terminate(terminate_handler_);
  std::set_new_handler(new_handler_);
}

void StartGuard::AskForRoom() {
  // Else the C library reserves 128 MiB for the first thread, or whatever is left of it, and where
  // room is limited nothing is left for the rest.
  mallopt(M_ARENA_MAX, 1);
  if (!HasRoom(kRoomForAStart)) EndWithoutMemory();
}

void StartGuard::EndWithoutMemory() { End("the system has no memory left."); }

void StartGuard::EndOfAnException() {
  try {
    std::rethrow_exception(std::current_exception());
  } catch (const std::bad_alloc&) {
    EndWithoutMemory();
  } catch (...) {
    std::abort();
  }
}

void StartGuard::Heard(QtMsgType type, const QMessageLogContext&, const QString& message) {
  // Without its threads Qt would wait for ever.
  if (message.contains(QLatin1String("Thread creation error"))) {
    End("the system has no memory left for a thread, or allows none.");
  }
  // Qt ends the process with an abort, and so a core file, when no display answers or no platform
  // plug-in for it is there. Its last message before that is the only one that no such way goes
  // around.
  if (type != QtFatalMsg) return;
  if (!HasRoom(kScarce)) EndWithoutMemory();
  End("no X11 or Wayland display answers to Qt's plug-ins.");
}

bool HasRoom(std::size_t bytes) {
  void* const room =
      mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (room == MAP_FAILED) return false;
  munmap(room, bytes);
  return true;
}

}  // namespace toolkit::qt
