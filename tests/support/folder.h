#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace support {

/// An empty folder that goes with its object.
class Folder {
 public:
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "pitchsieve.XXXXXX").string();
    path_ = mkdtemp(name.data());
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { std::filesystem::remove_all(path_); }

  std::string Path(std::string_view name = "") const { return (path_ / name).string(); }
  void Write(std::string_view name, std::string_view bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace support
