#include "zyndle/rpc/line_writer.h"

#include <cerrno>
#include <cstddef>
#include <system_error>

#include <unistd.h>

namespace zyndle {

void LineWriter::write(std::string_view text) {
  constexpr std::size_t enough = std::size_t{64} * 1024;
  buffer_ += text;
  if (buffer_.size() >= enough) flush();
}

void LineWriter::flush() {
  std::string_view rest = buffer_;
  while (!rest.empty()) {
    const ssize_t count = ::write(descriptor_, rest.data(), rest.size());
    if (count < 0 && errno != EINTR) {
      throw std::system_error(errno, std::generic_category(), "cannot write");
    }
    if (count > 0) rest.remove_prefix(static_cast<std::size_t>(count));
  }
  buffer_.clear();
}

}  // namespace zyndle
