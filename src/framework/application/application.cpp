#include "framework/application/application.h"

#include <unistd.h>

#include <algorithm>
#include <climits>

#include "framework/events/ui_trap.h"
#include "framework/values/text.h"

namespace framework {

namespace {

bool supports_hidpi = false;

}  // namespace

void Application::_SetSupportsHiDPI(bool value) { supports_hidpi = value; }
bool Application::_SupportsHiDPI() { return supports_hidpi; }

Ref<FolderItem> Application::ExecutableFile() const {
  char path[PATH_MAX];
  // An empty path, which names nothing, if the system does not tell.
  const ssize_t size = std::max<ssize_t>(readlink("/proc/self/exe", path, sizeof path), 0);
  return GetFolderItem(std::string_view(path, static_cast<std::size_t>(size)));
}

Ref<framework::MenuBar> Application::MenuBar() const { return menu_bar_; }

void Application::MenuBar(const Ref<framework::MenuBar>& bar) {
  _UITrap();
  menu_bar_ = bar;
}

void Application::_MacOSNotificationReceived(const String& name) {
  using namespace _MacOSDistributedNotifications;
  const bool ours = RuntimeStringCompare(name, kThemeChanged) == 0 ||
                    RuntimeStringCompare(name, kColorsChanged) == 0;
  if (ours) Event_AppearanceChanged();
}

void Application::_x_SetVersionData(std::int64_t major, std::int64_t minor, std::int64_t bug,
                                    std::int64_t non_release, std::int64_t stage,
                                    String long_version, String short_version,
                                    String package_info) {
  _x_mMajorVersion = major;
  _x_mMinorVersion = minor;
  _x_mBugVersion = bug;
  _x_mNonReleaseVersion = non_release;
  _x_mStageCode = stage;
  _x_mLongVersion = std::move(long_version);
  _x_mShortVersion = std::move(short_version);
  _x_mPackageInfo = std::move(package_info);
}

}  // namespace framework
