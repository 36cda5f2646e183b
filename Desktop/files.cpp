#include "Desktop/files.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Desktop/translation.h"

namespace desktop {
namespace {

// Closes the file on every way out.
struct OpenFile {
  explicit OpenFile(const std::string& path)
      // Without O_NONBLOCK a pipe would keep us waiting for its writer.
      : descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (descriptor >= 0) ::close(descriptor);
  }
  int descriptor;
};

// 0 or an error number.
int makeFolders(const std::string& folder, mode_t mode) {
  for (std::size_t end = 0; end != std::string::npos;) {
    end = folder.find('/', end + 1);
    if (::mkdir(folder.substr(0, end).c_str(), mode) != 0 && errno != EEXIST) return errno;
  }
  struct stat status {};
  if (::stat(folder.c_str(), &status) != 0) return errno;
  return S_ISDIR(status.st_mode) ? 0 : ENOTDIR;
}

}  // namespace

std::optional<std::string> makeFolder(const std::string& folder, mode_t mode) {
  const int error = makeFolders(folder, mode);
  if (error == 0) return std::nullopt;
  return translated("cannot make the folder {0}: {1}", '"' + folder + '"',
                    std::generic_category().message(error));
}

std::optional<std::string> readFile(const std::string& path, std::size_t limit) {
  const OpenFile file(path);
  struct stat status {};
  // Regular files only: a device may have no end.
  if (file.descriptor < 0 || ::fstat(file.descriptor, &status) != 0 || !S_ISREG(status.st_mode) ||
      static_cast<std::size_t>(status.st_size) > limit) {
    return std::nullopt;
  }
  std::string contents(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t length = 0;
  while (length < contents.size()) {
    const ssize_t read =
        ::read(file.descriptor, contents.data() + length, contents.size() - length);
    if (read < 0) return std::nullopt;
    if (read == 0) break;  // the file became shorter meanwhile
    length += static_cast<std::size_t>(read);
  }
  contents.resize(length);
  return contents;
}

int openForWriting(const std::string& path, int flags) {
  constexpr mode_t newFileMode = 0666;
  return ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | flags, newFileMode);
}

int closeWritten(int descriptor, int error) {
  return ::close(descriptor) == 0 || error != 0 ? error : errno;
}

int writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

}  // namespace desktop
