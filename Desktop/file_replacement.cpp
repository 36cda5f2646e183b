#include "Desktop/file_replacement.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <random>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Desktop/files.h"
#include "Desktop/translation.h"

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

std::optional<std::string> makeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!error && !std::filesystem::is_directory(folder, error) && !error) {
    error = std::make_error_code(std::errc::not_a_directory);
  }
  if (!error) return std::nullopt;
  return translated("cannot make the folder {0}: {1}", '"' + folder + '"', error.message());
}

}  // namespace desktop
