#include "framework/events/timer.h"

#include <map>

#include "framework/events/run_loop.h"
#include "framework/events/toolkit.h"
#include "framework/values/weak_ref.h"

namespace framework {

namespace {

class _CallLaterTimer final : public Object {
 public:
  explicit _CallLaterTimer(std::function<void()> method) : method_(std::move(method)) {}
  /// Takes the timer out of the live ones, and only then calls the method.
  void Action();

 private:
  std::function<void()> method_;
};

/// The live timers; this map keeps them alive until they fire.
std::map<_CallLaterTimer*, Ref<_CallLaterTimer>>& sCallLaterTimers() {
  static auto& timers = *new std::map<_CallLaterTimer*, Ref<_CallLaterTimer>>;
  return timers;
}

void _CallLaterTimer::Action() {
  const Ref<_CallLaterTimer> self(this);
  sCallLaterTimers().erase(this);
  method_();
}

}  // namespace

void Timer::CallLater(std::int64_t delay_ms, std::function<void()> method) {
  if (!method) RaiseNilObjectException("Delegate");
  const auto timer = RuntimeNewObject<_CallLaterTimer>(std::move(method));
  sCallLaterTimers().emplace(timer.Get(), timer);
  Toolkit::Current().CallLater(delay_ms, [live = RuntimeNewObject<WeakRef>(timer)] {
    _RunEvent([&live] {
      if (const auto object = live->Value()) static_cast<_CallLaterTimer&>(*object).Action();
    });
  });
}

void Timer::_Forget() { sCallLaterTimers().clear(); }

}  // namespace framework
