#pragma once

#include <string>

#include "framework/application/special_folder.h"
#include "support/folder.h"

namespace support {

/// A bundle whose resources lie in a folder of the test's.
class TestBundle final : public framework::BundlePlatform {
 public:
  explicit TestBundle(std::string path) : path_(std::move(path)) {}
  framework::String ResourcePath() override { return path_; }

 private:
  std::string path_;
};

}  // namespace support
