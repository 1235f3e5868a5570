#pragma once

#include <QtGlobal>
#include <cstddef>
#include <exception>
#include <new>

namespace toolkit::qt {

/// Stands from the toolkit's making until its first window is shown. As long as it stands, a start
/// that cannot go on ends the process at once, with one line on stderr and the status 1: when no
/// display answers, and when the system refuses memory or a thread, which neither Qt nor the
/// libraries below it survive.
class StartGuard {
 public:
  StartGuard();
  StartGuard(const StartGuard&) = delete;
  StartGuard& operator=(const StartGuard&) = delete;
  ~StartGuard();

  /// Ends the process unless there is room for a start. To be asked before Qt starts a thread.
  static void AskForRoom();
  /// Does a part of the start, and returns what it returns.
  template <class Work>
  static auto Do(const Work& work) {
    try {
      return work();
    } catch (const std::bad_alloc&) {
      EndWithoutMemory();  // refused by a library that does not ask operator new
    }
  }

 private:
  [[noreturn]] static void EndWithoutMemory();
  [[noreturn]] static void EndOfAnException();
  static void Heard(QtMsgType type, const QMessageLogContext& context, const QString& message);

  std::new_handler new_handler_;
  std::terminate_handler terminate_handler_;
  QtMessageHandler message_handler_;
};

/// Whether the system would give that many bytes more.
bool HasRoom(std::size_t bytes);

}  // namespace toolkit::qt
