#include <cstdio>
#include <string>

#include "Tonelake/platform/diagnostics.h"

namespace tonelake {
namespace {

class StreamDiagnostics final : public Diagnostics {
 public:
  explicit StreamDiagnostics(std::FILE* stream) : stream_(stream) {}

  void write(std::string_view line) override {
    // One call a line: the stream's own lock keeps lines of several threads apart.
    const std::string text = std::string(line) + '\n';
    std::fwrite(text.data(), 1, text.size(), stream_);
  }

 private:
  std::FILE* stream_;
};

}  // namespace

std::shared_ptr<Diagnostics> makeStreamDiagnostics(DiagnosticStream stream) {
  return std::make_shared<StreamDiagnostics>(stream == DiagnosticStream::standardOutput ? stdout
                                                                                        : stderr);
}

}  // namespace tonelake
