#include "framework/files/folder_item.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>

#include "framework/files/text_input_stream.h"

namespace framework {

namespace {

/// The path as the system's calls want it. A path with a zero byte inside names nothing.
std::string SystemPath(const String& path) {
  std::string text(path.View());
  return text.find('\0') == std::string::npos ? text : std::string();
}

/// The path without the slashes at its end, which add nothing to what it names.
std::string_view Trimmed(const String& path) {
  const std::string_view text = path.View();
  return text.substr(0, std::max<std::size_t>(text.find_last_not_of('/') + 1, 1));
}

/// Why what has been opened is not read; 0 for a file.
int WhyNoFile(int file) {
  struct stat status {};
  if (fstat(file, &status) != 0) return errno;
  if (S_ISREG(status.st_mode)) return 0;
  return S_ISDIR(status.st_mode) ? EISDIR : EOPNOTSUPP;
}

}  // namespace

Ref<FolderItem> FolderItem::Child(const String& name) const {
  const std::string_view folder = path_.View();
  return GetFolderItem(
      String(folder.ends_with('/') ? folder : std::string(folder) + '/', name.View()));
}

bool FolderItem::Exists() const {
  struct stat status {};
  return stat(SystemPath(path_).c_str(), &status) == 0;
}

String FolderItem::Name() const {
  const std::string_view path = Trimmed(path_);
  return path.substr(path.rfind('/') + 1);
}

Ref<FolderItem> FolderItem::Parent() const {
  const std::string_view path = Trimmed(path_);
  const auto slash = path.rfind('/');
  if (slash == path.npos || path.size() == 1) return nullptr;
  return GetFolderItem(path.substr(0, std::max<std::size_t>(slash, 1)));
}

Ref<FolderItem> GetFolderItem(const String& path) {
  if (path.View().empty()) return nullptr;
  return RuntimeNewObject<FolderItem>(path);
}

Ref<TextInputStream> FolderItemOpenTextFile(FolderItem& item) {
  // Opening a pipe that no one writes to would wait without O_NONBLOCK; and a terminal is not to
  // become the program's own.
  const int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  const int file = open(SystemPath(item.path_).c_str(), flags);
  if (file == TextInputStream::kNoFile) {
    item.last_error_code_ = errno;
    return nullptr;
  }
  const int error = WhyNoFile(file);
  if (error == 0) return RuntimeNewObject<TextInputStream>(file);
  close(file);
  return RuntimeNewObject<TextInputStream>(TextInputStream::kNoFile, error);
}

}  // namespace framework
