#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// The library's packaged files: the daily lists and the patterns. The dictionary of chord types is
/// no matter of the host: it is always the one that is compiled in. Safe to call from any thread.
class TONELAKE_API ResourceBundle {
 public:
  virtual ~ResourceBundle() = default;

  /// The whole file `name` "." `extension`, for example ("jazz_chords", "json"); nothing when it
  /// is missing or cannot be read.
  virtual std::optional<std::string> load(std::string_view name,
                                          std::string_view extension) const = 0;
};

/// The files compiled into the library: nothing to find, nothing to install.
TONELAKE_API std::shared_ptr<const ResourceBundle> makeEmbeddedResourceBundle();

}  // namespace tonelake
