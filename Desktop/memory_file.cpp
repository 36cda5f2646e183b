#include "Desktop/memory_file.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include "Desktop/files.h"

namespace desktop {

namespace {

// Programs that are started get other standard streams. Where ours are closed, the file would be
// given the number of one of them: then it moves.
int behindStandardStreams(int descriptor) {
  if (descriptor < 0 || descriptor > STDERR_FILENO) return descriptor;
  const int moved = ::fcntl(descriptor, F_DUPFD, STDERR_FILENO + 1);
  ::close(descriptor);
  return moved;
}

}  // namespace

// Kept open in programs that are started: the path is theirs as well.
MemoryFile::MemoryFile(const char* name)
    : descriptor_(behindStandardStreams(::memfd_create(name, 0))) {}

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
