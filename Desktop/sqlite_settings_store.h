#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Desktop/sqlite_database.h"
#include "Tonelake/platform/diagnostics.h"
#include "Tonelake/platform/settings_store.h"

namespace desktop {

enum class SettingType { text, boolean, data };

struct Setting {
  std::string key;
  SettingType type = SettingType::text;
  std::string value;  ///< "true" or "false" for a truth value

  friend bool operator==(const Setting&, const Setting&) = default;
};

/// A settings store in an SQLite file, for several processes at once. What a write has stored
/// survives the process and the machine's power.
///
/// Its table is settings(key, type, value), where `type` is 'text', 'bool' or 'data' and `value` a
/// text, 0 or 1, or a blob. Do not change it without a new format number. Others may keep tables of
/// their own beside it.
class SqliteSettingsStore final : public tonelake::SettingsStore {
 public:
  struct Opening {
    std::shared_ptr<SqliteSettingsStore> store;  ///< nullptr on failure
    std::string problem;  ///< on failure, for example "/home/ada/x.sqlite: file is not a database"
  };

  /// Bytes that a key and its value may have together.
  static constexpr std::size_t longestSetting = 1 << 20;

  /// Opens or creates `file`, whose folder exists. Refused: what is no database, another
  /// program's database, and a format newer than this program's.
  static Opening open(const std::string& file, std::shared_ptr<tonelake::Diagnostics> diagnostics);

  /// Like the port's functions, for callers that want to know: nothing on success, else what
  /// went wrong, with the name of the file.
  std::optional<std::string> write(const Setting& setting);
  std::optional<std::string> erase(std::string_view key);

  /// Lets `change` make new data of what a key holds as data, nothing where it holds none, or
  /// leave it with nothing. No other process writes in between. `change` must not throw.
  std::optional<std::string> editData(
      std::string_view key,
      const std::function<std::optional<std::string>(const std::optional<std::string>&)>& change);

  template <typename Value>
  struct Answer {
    Value value;
    std::optional<std::string> problem;
  };
  /// The setting of whatever type; no value without a problem means that there is none.
  Answer<std::optional<Setting>> find(std::string_view key) const;
  /// All settings, by key.
  Answer<std::vector<Setting>> list() const;

  // The port. The first problem goes to the diagnostics, later ones nowhere.
  std::optional<std::string> text(std::string_view key) const override;
  std::optional<bool> boolean(std::string_view key) const override;
  std::optional<std::string> data(std::string_view key) const override;
  void setText(std::string_view key, std::string_view value) override;
  void setBoolean(std::string_view key, bool value) override;
  void setData(std::string_view key, std::string_view value) override;
  void remove(std::string_view key) override;

  /// Several pieces of data, by key, in one transaction: all of them or none. Problems as above.
  void setAllData(const std::map<std::string, std::string, std::less<>>& pieces);

 private:
  SqliteSettingsStore(std::string file, std::unique_ptr<SqliteDatabase> database,
                      std::shared_ptr<tonelake::Diagnostics> diagnostics);

  // As in SqliteDatabase, for one thread at a time.
  std::optional<std::string> inTransaction(const std::function<bool()>& write);
  std::optional<std::string> store(std::string_view key, SettingType type,
                                   const SqliteParameter& value);
  std::optional<std::string> lengthProblem(std::string_view key, std::string_view value) const;
  std::optional<std::string> value(std::string_view key, SettingType type) const;
  std::string problem() const;
  void report(const std::optional<std::string>& problem) const;

  const std::string file_;
  const std::shared_ptr<tonelake::Diagnostics> diagnostics_;
  mutable std::once_flag reported_;

  // Guards all that follows. The statements are gone before their database.
  mutable std::mutex mutex_;
  const std::unique_ptr<SqliteDatabase> database_;
  mutable SqliteStatement selectValue_;
  mutable SqliteStatement selectSetting_;
  mutable SqliteStatement selectAll_;
  SqliteStatement upsert_;
  SqliteStatement delete_;
};

}  // namespace desktop
