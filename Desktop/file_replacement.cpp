#include "Desktop/file_replacement.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <random>

#include <fcntl.h>
#include <sys/stat.h>

#include "Desktop/files.h"

namespace desktop {
namespace {

// Into a new file, which gets the mode of the one at `path`. 0 or an error number.
int writeDraft(const std::string& draft, const std::string& path, std::string_view contents) {
  const int file = openForWriting(draft, O_EXCL);
  if (file < 0) return errno;
  int error = writeAll(file, contents);
  struct stat old {};
  if (error == 0 && ::stat(path.c_str(), &old) == 0 && ::fchmod(file, old.st_mode) != 0) {
    error = errno;
  }
  return closeWritten(file, error);
}

}  // namespace

int replaceFile(const std::string& path, std::string_view contents) {
  // In the same folder, since only within a file system a file takes the place of another at once;
  // hidden, and with a name that nobody else has or can prepare.
  const std::string name = ".zyndle-" + std::to_string(std::random_device()()) + ".new";
  const std::string draft = std::filesystem::path(path).replace_filename(name).string();
  int error = writeDraft(draft, path, contents);
  if (error == EEXIST) return error;
  if (error == 0 && std::rename(draft.c_str(), path.c_str()) != 0) error = errno;
  if (error != 0) std::remove(draft.c_str());
  return error;
}

}  // namespace desktop
