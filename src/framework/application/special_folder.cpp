#include "framework/application/special_folder.h"

#include "framework/application/application.h"
#include "framework/application/runtime.h"
#include "framework/values/text.h"

namespace framework {

namespace {

/// The entry beside the running executable; nil unless it exists and an application object is
/// registered.
Ref<FolderItem> BesideExecutable(const String& name) {
  const Ref<Application> app = getAppObject();
  if (!app) return nullptr;
  Ref<FolderItem> folder = app->ExecutableFile()->Parent()->Child(name);
  return folder && folder->Exists() ? folder : nullptr;
}

String _AppName() {
  const Ref<Application> app = getAppObject();
  return app ? app->ExecutableFile()->Name() : String();
}

Ref<FolderItem> _WinLinAppResources() {
  return BesideExecutable(RuntimeAddString(_AppName(), " Resources"));
}

Ref<FolderItem> _WinLinResources() { return BesideExecutable("Resources"); }

/// The special folders as a desktop program has them.
struct _SpecialFolderDesktop {
  std::unique_ptr<BundlePlatform> bundles;  ///< nullptr on a platform without bundles
  Ref<FolderItem> mResourcesFolder;

  Ref<FolderItem> Resources() {
    if (!mResourcesFolder || !mResourcesFolder->Exists()) mResourcesFolder = Find();
    return mResourcesFolder;
  }
  Ref<FolderItem> Find() const {
    if (bundles != nullptr) return GetFolderItem(bundles->ResourcePath());
    const Ref<FolderItem> own = _WinLinAppResources();
    return own ? own : _WinLinResources();
  }
};

/// The one object that answers for the special folders, made at the first use.
_SpecialFolderDesktop& _SpecFold() {
  static auto& _PlatformSpecialFolder = *new _SpecialFolderDesktop;
  return _PlatformSpecialFolder;
}

}  // namespace

Ref<FolderItem> SpecialFolder::Resources() { return _SpecFold().Resources(); }

void SpecialFolder::_SetBundlePlatform(std::unique_ptr<BundlePlatform> platform) {
  _SpecFold() = {std::move(platform), nullptr};
}

Ref<FolderItem> GetResource(const String& name) {
  try {
    const Ref<FolderItem> folder = SpecialFolder::Resources();
    return folder ? folder->Child(name) : nullptr;
  } catch (const IOException&) {
    return nullptr;
  }
}

}  // namespace framework
