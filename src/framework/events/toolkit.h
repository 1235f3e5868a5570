#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

#include "framework/values/ref.h"
#include "framework/values/string.h"

namespace framework {

// These stand on the floor above; here they are names alone.
class Window;
class WindowPeer;

/// How the framework's objects reach a screen, or a test. It decides nothing: it shows what the
/// objects hold, and calls their input operations for what the user does. Of a change in the
/// system's appearance it tells our notification centre, by _PostNotification.
class Toolkit {
 public:
  /// The new toolkit is the current one as long as it lives. There is only ever one.
  Toolkit();
  virtual ~Toolkit();
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;

  /// Raises NilObjectException when no toolkit has been made.
  static Toolkit& Current();

  /// Called once, before the first window is made.
  virtual void Initialise() = 0;
  /// Builds the native window from the finished description, and shows it.
  virtual std::unique_ptr<WindowPeer> Show(const Ref<Window>& window) = 0;
  /// Runs the event loop until Quit.
  virtual void Run() = 0;
  /// Ends the event loop once the running event is over; a loop not yet begun ends at once.
  virtual void Quit() = 0;
  /// Tells the user a text; it may come back before that is read. Texts are told one after the
  /// other; one from before Initialise waits for it.
  virtual void ShowMessage(const String& text) = 0;
  /// Tells of a failure that no one took, in the same way: its class, message and error number as
  /// one text. There may be no memory, and so no more than a line on stderr.
  virtual void ReportFailure(std::string_view text) = 0;
  /// Comes back once the user has read all that he was told, as far as there is anything to show
  /// it.
  virtual void WaitUntilRead() {}
  /// Runs work once from the event loop, not before delay_ms milliseconds have gone. Before
  /// Initialise there is nothing in the system that could ask for it.
  virtual void CallLater(std::int64_t delay_ms, std::function<void()> work) = 0;
};

}  // namespace framework
