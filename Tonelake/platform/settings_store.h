#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// A named collection of settings: texts, truth values and data by key. Asking for a key under
/// another type than it was written with gives nothing. A store that cannot keep a value says so
/// once, by its own means, and goes on. Implementations are safe to call from any thread.
class TONELAKE_API SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// The text of a key; nothing where there is none.
  virtual std::optional<std::string> text(std::string_view key) const = 0;
  /// The truth value of a key; nothing where there is none.
  virtual std::optional<bool> boolean(std::string_view key) const = 0;
  /// The data of a key, any bytes; nothing where there is none.
  virtual std::optional<std::string> data(std::string_view key) const = 0;

  /// Stores a text in place of whatever the key held, of whatever type.
  virtual void setText(std::string_view key, std::string_view value) = 0;
  /// Stores a truth value in the same way.
  virtual void setBoolean(std::string_view key, bool value) = 0;
  /// Stores data, any bytes, in the same way.
  virtual void setData(std::string_view key, std::string_view value) = 0;
  /// Forgets what the key holds; nothing happens where it holds nothing.
  virtual void remove(std::string_view key) = 0;
};

/// A store that lives in memory and is gone with the process.
TONELAKE_API std::shared_ptr<SettingsStore> makeMemorySettingsStore();

}  // namespace tonelake
