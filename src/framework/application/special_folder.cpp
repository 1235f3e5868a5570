#include "framework/application/special_folder.h"

#include "framework/application/application.h"
#include "framework/application/runtime.h"
#include "framework/values/text.h"

namespace framework {

namespace {

/// The entry beside the running executable; nil unless it exists.
Ref<FolderItem> BesideExecutable(const String& name) {
  Ref<FolderItem> folder = getAppObject()->ExecutableFile()->Parent()->Child(name);
  return folder && folder->Exists() ? folder : nullptr;
}

String _AppName() {
  const Ref<Application> app = getAppObject();
  return app ? app->ExecutableFile()->Name() : String();
}

Ref<FolderItem> _WinLinAppResources() {
  if (!getAppObject()) return nullptr;
  return BesideExecutable(RuntimeAddString(_AppName(), " Resources"));
}

Ref<FolderItem> _WinLinResources() {
  if (!getAppObject()) return nullptr;
  return BesideExecutable("Resources");
}

/// The special folders as a desktop program has them.
class _SpecialFolderDesktop {
 public:
  explicit _SpecialFolderDesktop(std::unique_ptr<BundlePlatform> bundles)
      : bundles_(std::move(bundles)) {}

  Ref<FolderItem> Resources() {
    if (mResourcesFolder && mResourcesFolder->Exists()) return mResourcesFolder;
    mResourcesFolder = bundles_ != nullptr ? GetFolderItem(bundles_->ResourcePath()) : Beside();
    return mResourcesFolder;
  }

 private:
  static Ref<FolderItem> Beside() {
    if (Ref<FolderItem> own = _WinLinAppResources()) return own;
    return _WinLinResources();
  }

  std::unique_ptr<BundlePlatform> bundles_;
  Ref<FolderItem> mResourcesFolder;
};

/// The one object that answers for the special folders, made at the first use.
std::unique_ptr<_SpecialFolderDesktop>& _PlatformSpecialFolder() {
  static auto& folder = *new std::unique_ptr(std::make_unique<_SpecialFolderDesktop>(nullptr));
  return folder;
}

_SpecialFolderDesktop& _SpecFold() { return *_PlatformSpecialFolder(); }

}  // namespace

Ref<FolderItem> SpecialFolder::Resources() { return _SpecFold().Resources(); }

void SpecialFolder::_SetBundlePlatform(std::unique_ptr<BundlePlatform> platform) {
  _PlatformSpecialFolder() = std::make_unique<_SpecialFolderDesktop>(std::move(platform));
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
