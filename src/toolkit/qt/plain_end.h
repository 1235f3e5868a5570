#pragma once

#include <new>

namespace toolkit::qt {

/// As long as it stands, what neither Qt nor the libraries below it survive ends the process at
/// once, with one line on stderr and the status 1, where it would hang or crash: no display that
/// answers, a thread that the system refuses, memory that it refuses them. Until the first window
/// is shown it takes any refusal of memory for one of those. There is only ever one.
class PlainEnd {
 public:
  PlainEnd();
  PlainEnd(const PlainEnd&) = delete;
  PlainEnd& operator=(const PlainEnd&) = delete;
  ~PlainEnd();

  /// Ends the process unless there is room for a start. To be asked before Qt starts a thread.
  static void AskForRoom();
  /// Does a part of the start, and returns what it returns.
  template <class Work>
  static auto Do(const Work& work) {
    try {
      return work();
    } catch (const std::bad_alloc&) {
      WithoutMemory();  // refused by a library that does not ask operator new
    }
  }
  /// From now on memory that our own work is refused is a failure of that work.
  static void WindowIsShown();

 private:
  [[noreturn]] static void WithoutMemory();
};

}  // namespace toolkit::qt
