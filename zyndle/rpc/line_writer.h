#pragma once

#include <string>
#include <string_view>

namespace zyndle {

/// Text to a file descriptor, gathered until a line is complete or much has come together.
class LineWriter {
 public:
  /// The descriptor stays open and its owner's.
  explicit LineWriter(int descriptor) : descriptor_(descriptor) {}

  /// Both throw std::system_error when writing fails; with EPIPE nobody reads any more.
  void write(std::string_view text);
  void flush();

 private:
  int descriptor_;
  std::string buffer_;
};

}  // namespace zyndle
