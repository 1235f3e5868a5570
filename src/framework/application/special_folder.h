#pragma once

#include <memory>

#include "framework/files/folder_item.h"

namespace framework {

/// What the search for the resources folder asks of the system.
class BundlePlatform {
 public:
  virtual ~BundlePlatform() = default;
  /// The resource path of the main bundle; empty when the system names none.
  virtual String ResourcePath() = 0;
};

namespace SpecialFolder {

/// The application's resources folder. On a platform with application bundles it is the bundle's,
/// whether it exists or not, and nil when the bundle names none. On any other it is the folder
/// "NAME Resources" beside the executable file, NAME being that file's whole name, or else
/// "Resources"; nil when neither exists or no application object is registered. A folder that
/// exists is never looked up twice, and one that has vanished is looked up afresh.
Ref<FolderItem> Resources();

/// Says where bundles come from; nullptr for a platform that has none, as it is at first. Whatever
/// was found before is forgotten.
void _SetBundlePlatform(std::unique_ptr<BundlePlatform> platform);

}  // namespace SpecialFolder

/// The entry of that name in the resources folder, existing or not. Nil when there is no such
/// folder, or when an IOException was raised on the way.
Ref<FolderItem> GetResource(const String& name);

}  // namespace framework
