#include "toolkit/qt/plain_end.h"

#include <malloc.h>

#include <QString>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "toolkit/qt/room.h"

namespace toolkit::qt {

namespace {

/// What a start takes beside the libraries that the program is linked with: 26 MiB on a plain
/// screen, 55 MiB on one with three times the points. Much of it is only reserved.
constexpr std::size_t kRoomForAStart = std::size_t{64} << 20;
/// Where less is left, memory is what was wanting.
constexpr std::size_t kScarce = std::size_t{8} << 20;
constexpr const char* kNoMemory = "the system has no memory left.";

// What there was before.
bool starting = false;
std::new_handler new_handler = nullptr;
std::terminate_handler terminate_handler = nullptr;
QtMessageHandler message_handler = nullptr;

[[noreturn]] void End(const char* why) {
  const char* const what = starting ? "No window can be opened" : "The program cannot go on";
  std::fprintf(stderr, "%s: %s\n", what, why);
  std::_Exit(EXIT_FAILURE);
}

/// An exception that has left a place which lets none out, as Qt's painting does.
[[noreturn]] void Terminate() {
  try {
    if (const auto failure = std::current_exception()) std::rethrow_exception(failure);
  } catch (const std::bad_alloc&) {
    End(kNoMemory);
  } catch (...) {
  }
  terminate_handler();
  std::abort();
}

void Heard(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  // Without its threads Qt would wait for ever. Some it starts late, as for painting a gradient.
  if (message.contains(QLatin1String("Thread creation error"))) {
    End("the system has no memory left for a thread, or allows none.");
  }
  if (!starting) return message_handler(type, context, message);
  // Qt ends the process with an abort, and so a core file, when no display answers or no platform
  // plug-in for it is there. Its last message before that is the only one that no such way goes
  // around.
  if (type != QtFatalMsg) return;
  End(HasRoom(kScarce) ? "no X11 or Wayland display answers to Qt's plug-ins." : kNoMemory);
}

}  // namespace

PlainEnd::PlainEnd() {
  starting = true;
  new_handler = std::set_new_handler(&WithoutMemory);
  terminate_handler = std::set_terminate(&Terminate);
  message_handler = qInstallMessageHandler(&Heard);
}

PlainEnd::~PlainEnd() {
  WindowIsShown();
  qInstallMessageHandler(message_handler);
  std::set_terminate(terminate_handler);
}

void PlainEnd::AskForRoom() {
  // Else the C library reserves 128 MiB for the first thread, or whatever is left of it, and where
  // room is limited nothing is left for the rest.
  mallopt(M_ARENA_MAX, 1);
  if (!HasRoom(kRoomForAStart)) WithoutMemory();
}

void PlainEnd::WindowIsShown() {
  starting = false;
  std::set_new_handler(new_handler);
}

void PlainEnd::WithoutMemory() { End(kNoMemory); }

}  // namespace toolkit::qt
