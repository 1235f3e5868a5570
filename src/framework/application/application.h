#pragma once

#include <cstdint>

#include "framework/controls/menu.h"
#include "framework/events/run_loop.h"
#include "framework/files/folder_item.h"
#include "framework/notifications/notifications.h"

namespace framework {

/// The program as a whole. There is one object of it, which _RuntimeRegisterAppObject makes known.
class Application : public _MacOSDistributedNotifications::iNotify, public RunLoopApplication {
 public:
  /// Registers the object for changes of the system's appearance.
  Application() { _MacOSDistributedNotifications::Register(*this); }

  /// Whether the program draws sharply on a screen of more than one pixel a point. Legal before any
  /// application object exists.
  static void _SetSupportsHiDPI(bool value);
  static bool _SupportsHiDPI();

  /// The running program's file, with every link resolved; nil if the system does not tell.
  virtual Ref<FolderItem> ExecutableFile() const;

  Ref<framework::MenuBar> MenuBar() const;
  void MenuBar(const Ref<framework::MenuBar>& bar);

  std::int64_t MajorVersion() const { return _x_mMajorVersion; }
  std::int64_t MinorVersion() const { return _x_mMinorVersion; }
  std::int64_t BugVersion() const { return _x_mBugVersion; }
  std::int64_t NonReleaseVersion() const { return _x_mNonReleaseVersion; }
  std::int64_t StageCode() const { return _x_mStageCode; }
  std::int64_t RegionCode() const { return _x_mRegionCode; }
  String LongVersion() const { return _x_mLongVersion; }
  String ShortVersion() const { return _x_mShortVersion; }
  String Version() const { return _x_mShortVersion; }
  String PackageInfo() const { return _x_mPackageInfo; }

  /// Raises AppearanceChanged for the two notifications of the system's appearance, and ignores any
  /// other.
  void _MacOSNotificationReceived(const String& name) override;

  virtual void _x_SetVersionData(std::int64_t major, std::int64_t minor, std::int64_t bug,
                                 std::int64_t non_release, std::int64_t stage, String long_version,
                                 String short_version, String package_info);

 protected:
  /// The AppearanceChanged event.
  virtual void Event_AppearanceChanged() {}

 private:
  Ref<framework::MenuBar> menu_bar_;
  std::int64_t _x_mMajorVersion = 0;
  std::int64_t _x_mMinorVersion = 0;
  std::int64_t _x_mBugVersion = 0;
  std::int64_t _x_mNonReleaseVersion = 0;
  std::int64_t _x_mStageCode = 0;
  std::int64_t _x_mRegionCode = 0;
  String _x_mLongVersion;
  String _x_mShortVersion;
  String _x_mPackageInfo;
};

}  // namespace framework
