#pragma once

#include "framework/values/object.h"
#include "framework/values/string.h"

namespace framework {

/// Tells clients that the system's appearance has changed. An observer that is made at run time in
/// the system's object runtime hears of it; what it hears is queued, and fanned out to the clients
/// later, from the event loop.
namespace _MacOSDistributedNotifications {

/// The system's scheme has changed between light and dark.
inline constexpr const char* kThemeChanged = "AppleInterfaceThemeChangedNotification";
/// A colour of the system's, such as the accent, has changed.
inline constexpr const char* kColorsChanged = "AppleColorPreferencesChangedNotification";

/// A client.
class iNotify : public Object {
 public:
  virtual void _MacOSNotificationReceived(const String& name) = 0;
};

/// Adds a client at the end of the list, at the first call with the observer's making. The client
/// is not kept alive, and one that registers twice hears everything twice. Where the system has no
/// such notifications, nothing is added, and nothing raised.
void Register(iNotify& client);

/// Brings the shared state to its first value: no client, no notification, no observer.
void _SetUpState();

}  // namespace _MacOSDistributedNotifications

}  // namespace framework
