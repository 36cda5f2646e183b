#include "Desktop/memory_file.h"

#include <cerrno>

#include <sys/mman.h>
#include <unistd.h>

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
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor_, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace desktop
