#include "Desktop/memory_file.h"

#include <sys/mman.h>
#include <unistd.h>

#include "Desktop/files.h"

namespace desktop {

// Kept open in programs that are started: the path is theirs as well.
MemoryFile::MemoryFile(const char* name) : descriptor_(::memfd_create(name, 0)) {}

MemoryFile::~MemoryFile() {
  if (isOpen()) ::close(descriptor_);
}

std::string MemoryFile::path() const {
  return "/dev/fd/" + std::to_string(descriptor_);
}

bool MemoryFile::write(std::string_view text) const {
  return writeAll(descriptor_, text) == 0;
}

}  // namespace desktop
