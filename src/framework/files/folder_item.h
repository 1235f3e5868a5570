#pragma once

#include <cstdint>

#include "framework/values/ref.h"
#include "framework/values/string.h"

namespace framework {

class TextInputStream;

/// A file or a folder, named by its path, that need not exist.
class FolderItem final : public Object {
 public:
  explicit FolderItem(String path) : path_(std::move(path)) {}

  /// The entry of that name inside this folder, existing or not; never nil.
  Ref<FolderItem> Child(const String& name) const;
  /// True when the path leads to something, through links too.
  bool Exists() const;
  /// The last part of the path, with or without a slash behind it; empty for the topmost folder.
  String Name() const;
  /// The containing folder; nil for the topmost one and for a bare name.
  Ref<FolderItem> Parent() const;
  /// The system's error number of the last failed operation on this item; 0 before any.
  std::int64_t LastErrorCode() const { return last_error_code_; }
  /// The path as the system takes it.
  const String& NativePath() const { return path_; }

 private:
  friend Ref<TextInputStream> FolderItemOpenTextFile(FolderItem& item);

  String path_;
  std::int64_t last_error_code_ = 0;
};

/// The item of a path in the system's own form; nil for an empty path.
Ref<FolderItem> GetFolderItem(const String& path);

/// Opens the item for reading. Nil if the system refuses; the item's LastErrorCode then says why.
/// A folder, a pipe and a device open, and the stream's first ReadLine fails.
Ref<TextInputStream> FolderItemOpenTextFile(FolderItem& item);

}  // namespace framework
