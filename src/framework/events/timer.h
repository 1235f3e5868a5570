#pragma once

#include <cstdint>
#include <functional>

namespace framework {

/// One-shot timers that fire from the event loop.
class Timer {
 public:
  /// Runs the method once, from the event loop, after the running event is over and the delay has
  /// gone. Raises NilObjectException for an empty method.
  static void CallLater(std::int64_t delay_ms, std::function<void()> method);

  /// Drops the timers that have not fired.
  static void _Forget();
};

}  // namespace framework
