#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace desktop {

/// A new, empty folder that is gone with the object.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = testing::TempDir() + "zyndle-XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) std::abort();
    path_ = name;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string& path() const { return path_; }
  std::string path(std::string_view name) const { return path_ + '/' + std::string(name); }

  std::string write(std::string_view name, std::string_view contents) const {
    std::ofstream(path(name), std::ios::binary) << contents;
    return path(name);
  }

 private:
  std::string path_;
};

}  // namespace desktop
