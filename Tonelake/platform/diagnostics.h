#pragma once

#include <memory>
#include <string_view>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// Where single diagnostic lines go. Safe to call from any thread.
class TONELAKE_API Diagnostics {
 public:
  virtual ~Diagnostics() = default;
  /// `line` without a line break at its end.
  virtual void write(std::string_view line) = 0;
};

/// A stream of the process.
enum class DiagnosticStream { standardOutput, standardError };

/// Lines on one of the standard streams. Standard output is the library's custom; hosts whose
/// standard output is an answer choose standard error.
TONELAKE_API std::shared_ptr<Diagnostics> makeStreamDiagnostics(DiagnosticStream stream);

}  // namespace tonelake
