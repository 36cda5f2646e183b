#pragma once

#include <string>
#include <string_view>

namespace desktop {

/// A file without a place in the file system, for libraries and programs that read or write nothing
/// but files. Gone with the object.
class MemoryFile {
 public:
  /// `name` shows up only in lists of open files.
  explicit MemoryFile(const char* name);
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile();

  /// Otherwise the machine has no room for it, and nothing else may be called.
  bool isOpen() const noexcept { return descriptor_ >= 0; }

  /// Where this process, and every program that it starts meanwhile, finds it.
  std::string path() const;

  /// Appends; false when there is no room.
  bool write(std::string_view text) const;

 private:
  int descriptor_;
};

}  // namespace desktop
