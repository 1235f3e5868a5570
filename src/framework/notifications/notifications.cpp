#include "framework/notifications/notifications.h"

#include "framework/events/timer.h"
#include "framework/notifications/object_runtime.h"
#include "framework/values/array.h"
#include "framework/values/weak_ref.h"

namespace framework::_MacOSDistributedNotifications {

namespace {

// The observer's class has the same name at every run.
constexpr const char* kObserverClass = "Orrl_k3Vt9QxB7mZ2pLr8HcW5nYd4Js";
constexpr const char* kGotCalled = "gotCalled:";

struct Shared {
  Array<Ref<WeakRef>> dispatchTo;   ///< the clients, in the order of their registration
  Array<String> NotificationQueue;  ///< names heard and not yet fanned out, the oldest first
  Ptr mObserverInstance = nullptr;  ///< non-null once all is set up
  Ptr mRefCenter = nullptr;
  Ptr mRefClass = nullptr;  ///< may stand without an observer, when its method was refused
};

Shared& State() {
  static auto& state = *new Shared;
  return state;
}

/// Serves each notification to all clients before the next. A client's failure leaves the function:
/// the notification stays at the head, and the next run starts with it again, from the first
/// client.
void SendToClients() {
  const auto& dispatchTo = State().dispatchTo;
  const auto& NotificationQueue = State().NotificationQueue;
  if (NotificationQueue.LastIndex() < 0) return;
  while (NotificationQueue.LastIndex() >= 0) {
    // The last index is read afresh: a client may register another.
    for (std::int64_t i = 0; i <= dispatchTo.LastIndex(); ++i) {
      if (!dispatchTo[i]) continue;
      const Ref<Object> client = dispatchTo[i]->Value();
      if (!client) continue;
      const String name = NotificationQueue[0];
      static_cast<iNotify&>(*client)._MacOSNotificationReceived(name);
    }
    NotificationQueue.Remove(0);
  }
  for (std::int64_t i = dispatchTo.LastIndex(); i >= 0; --i) {
    if (!dispatchTo[i] || !dispatchTo[i]->Value()) dispatchTo.Remove(i);
  }
}

/// The observer's one method. No client's code runs inside the delivery.
void impl_GotCalled(Ptr, Ptr, Ptr notification) {
  State().NotificationQueue.Append(ObjectRuntime::Current().name(notification));
  Timer::CallLater(0, &SendToClients);
}

bool Setup() {
  Shared& state = State();
  if (state.mObserverInstance != nullptr) return true;
  ObjectRuntime& runtime = ObjectRuntime::Current();
  const Ptr got_called = runtime.NSSelectorFromString(kGotCalled);
  if (state.mRefClass == nullptr) {
    state.mRefClass =
        runtime.objc_allocateClassPair(runtime.NSClassFromString("NSObject"), kObserverClass);
    if (state.mRefClass == nullptr) return false;
    runtime.objc_registerClassPair(state.mRefClass);
    // The method comes after the registration. If it is refused the class stays, and the next call
    // goes on without asking again.
    if (!runtime.class_addMethod(state.mRefClass, got_called, &impl_GotCalled, "v@:@"))
      return false;
  }
  state.mObserverInstance = runtime.init(runtime.alloc(state.mRefClass));
  state.mRefCenter =
      runtime.defaultCenter(runtime.NSClassFromString("NSDistributedNotificationCenter"));
  for (const char* const name : {kThemeChanged, kColorsChanged}) {
    runtime.addObserver_selector_name_object(state.mRefCenter, state.mObserverInstance, got_called,
                                             name, nullptr);
  }
  return true;
}

}  // namespace

void Register(iNotify& client) {
  if (!Setup()) return;
  State().dispatchTo.Append(RuntimeNewObject<WeakRef>(&client));
}

void _SetUpState() { State() = {CreateArray<Ref<WeakRef>>(-1), CreateArray<String>(-1)}; }

}  // namespace framework::_MacOSDistributedNotifications
