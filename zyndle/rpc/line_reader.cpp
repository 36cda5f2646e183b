#include "zyndle/rpc/line_reader.h"

#include <cerrno>
#include <system_error>

#include <unistd.h>

namespace zyndle {

std::optional<LineReader::Line> LineReader::next() {
  for (;;) {
    const std::size_t end = buffer_.find('\n', begin_ + scanned_);
    if (end != std::string::npos) return takeLine(end - begin_, 1);
    scanned_ = buffer_.size() - begin_;
    if (scanned_ > limit_) {
      isSkipping_ = true;
      begin_ = buffer_.size();
      scanned_ = 0;
    }
    if (!readMore()) break;
  }
  if (scanned_ == 0 && !isSkipping_) return std::nullopt;
  return takeLine(scanned_, 0);
}

std::optional<LineReader::Line> LineReader::takeLine(std::size_t length, std::size_t breakLength) {
  const bool isTooLong = isSkipping_ || length > limit_;
  const std::string_view text = std::string_view(buffer_).substr(begin_, length);
  begin_ += length + breakLength;
  scanned_ = 0;
  isSkipping_ = false;
  return Line{isTooLong ? std::string_view() : text, isTooLong};
}

// Appends what is there, up to one chunk; false at the end of the input.
bool LineReader::readMore() {
  constexpr std::size_t chunk = std::size_t{64} * 1024;
  buffer_.erase(0, begin_);
  begin_ = 0;
  const std::size_t size = buffer_.size();
  buffer_.resize(size + chunk);
  ssize_t count = 0;
  do {
    count = ::read(descriptor_, buffer_.data() + size, chunk);
  } while (count < 0 && errno == EINTR);
  const int problem = errno;
  buffer_.resize(size + static_cast<std::size_t>(count < 0 ? 0 : count));
  if (count < 0) throw std::system_error(problem, std::generic_category(), "cannot read");
  return count > 0;
}

}  // namespace zyndle
