#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zyndle {

/// Lines from a file descriptor, each as soon as it is there: a line never waits for the next.
/// Holds no more than one line of the limit's length, however long the lines are.
class LineReader {
 public:
  struct Line {
    std::string_view text;   ///< without its line break; valid until the next call of `next`
    bool isTooLong = false;  ///< longer than the limit: it was read to its end and dropped
  };

  /// `limit` in bytes. The descriptor stays open and its owner's.
  LineReader(int descriptor, std::size_t limit) : descriptor_(descriptor), limit_(limit) {}

  /// The next line, the last one even without a line break; nothing at the end. Throws
  /// std::system_error when reading fails.
  std::optional<Line> next();

 private:
  bool readMore();
  std::optional<Line> takeLine(std::size_t length, std::size_t breakLength);

  int descriptor_;
  std::size_t limit_;
  std::string buffer_;
  std::size_t begin_ = 0;    // of the bytes that no line has taken yet
  std::size_t scanned_ = 0;  // bytes behind `begin_` that hold no line break
  bool isSkipping_ = false;  // inside a line that is too long
};

}  // namespace zyndle
