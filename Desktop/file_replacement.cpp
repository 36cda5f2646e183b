#include "Desktop/file_replacement.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace desktop {
namespace {

constexpr mode_t newFileMode = 0666;  // less what the user's mask takes away

std::string describe(const std::string& path, int error) {
  return "cannot write \"" + path + "\": " + std::generic_category().message(error);
}

// The system's answer to writing all of `contents` into a new file: 0 or an error number.
int writeNewFile(const std::string& path, std::string_view contents) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, newFileMode);
  if (file < 0) return errno;
  int error = 0;
  while (!contents.empty() && error == 0) {
    const ssize_t written = ::write(file, contents.data(), contents.size());
    if (written > 0) contents.remove_prefix(static_cast<std::size_t>(written));
    if (written < 0 && errno != EINTR) error = errno;
  }
  // Some file systems only tell on closing that there is no room.
  if (::close(file) != 0 && error == 0) error = errno;
  return error;
}

}  // namespace

std::optional<std::string> replaceFile(const std::string& path, std::string_view contents) {
  // In the same folder, since only within a file system a file takes the place of another at once;
  // hidden, and with a name of this process's own, so that two writers do not mix.
  const std::filesystem::path target(path);
  const std::string draft = (target.parent_path() / ("." + target.filename().string() + "." +
                                                     std::to_string(::getpid()) + ".new"))
                                .string();
  int error = writeNewFile(draft, contents);
  if (error == 0 && std::rename(draft.c_str(), path.c_str()) == 0) return std::nullopt;
  if (error == 0) error = errno;
  std::remove(draft.c_str());
  return describe(path, error);
}

std::optional<std::string> makeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!error && !std::filesystem::is_directory(folder, error) && !error) {
    error = std::make_error_code(std::errc::not_a_directory);
  }
  if (!error) return std::nullopt;
  return "cannot make the folder \"" + folder + "\": " + error.message();
}

}  // namespace desktop
