#include "Desktop/sqlite_settings_store.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "Desktop/translation.h"

namespace desktop {
namespace {

using Parameter = SqliteParameter;

constexpr int fileFormat = 1;
// A row holds the setting, its type and a few bytes of the file's own.
constexpr int longestRow = static_cast<int>(SqliteSettingsStore::longestSetting) + 1024;

std::string_view nameOf(SettingType type) {
  switch (type) {
    case SettingType::text:
      return "text";
    case SettingType::boolean:
      return "bool";
    case SettingType::data:
      break;
  }
  return "data";
}

// A type that another program wrote there is taken for data.
SettingType typeNamed(std::string_view name) {
  if (name == nameOf(SettingType::text)) return SettingType::text;
  return name == nameOf(SettingType::boolean) ? SettingType::boolean : SettingType::data;
}

Setting settingIn(const SqliteStatement::Row& row) {
  Setting setting{std::string(row.bytes(0)), typeNamed(row.bytes(1)), std::string(row.bytes(2))};
  if (setting.type == SettingType::boolean) setting.value = setting.value == "1" ? "true" : "false";
  return setting;
}

// Makes the table in a file that is still empty. Several processes may be at it at once: each
// step leaves alone what another has done.
bool createTable(SqliteDatabase& database) {
  // Readers then never wait for a writer. It is a property of the file, hence set only here.
  if (!database.execute("PRAGMA journal_mode = WAL")) return false;
  static_assert(fileFormat == 1, "the text below and this number belong together");
  return database.execute(
      "BEGIN IMMEDIATE;"
      "CREATE TABLE IF NOT EXISTS settings("
      "  key TEXT PRIMARY KEY NOT NULL, type TEXT NOT NULL, value NOT NULL);"
      "PRAGMA user_version = 1;"
      "COMMIT");
}

// Nothing when the file is ready for use, else what is wrong with it.
std::optional<std::string> prepareFile(SqliteDatabase& database) {
  // Every commit waits until the disk has it.
  if (!database.execute("PRAGMA synchronous = FULL")) return database.problem();
  // The tables first: they and the format number appear in one transaction, so that whoever sees
  // a table of ours sees the number too.
  const auto tables = database.number("SELECT count(*) FROM sqlite_schema");
  const auto format = tables ? database.number("PRAGMA user_version") : std::nullopt;
  if (!format) return database.problem();
  if (*format > fileFormat) {
    return translated(
        "written by a newer version of this program (format {0}, this version knows {1})", *format,
        fileFormat);
  }
  if (*format == fileFormat) return std::nullopt;
  if (*format < 0 || *tables > 0) return translated("a database, but not one of settings");
  return createTable(database) ? std::nullopt : std::optional(database.problem());
}

// Two processes that make the same file block each other while its journal changes, and of those
// SQLite turns one away without any waiting. By the next attempt the other is done.
std::optional<std::string> prepareFilePatiently(SqliteDatabase& database) {
  const auto deadline = std::chrono::steady_clock::now() + SqliteDatabase::patience;
  for (;;) {
    auto wrong = prepareFile(database);
    const bool isWorthAnotherTry =
        wrong && database.isBusy() && std::chrono::steady_clock::now() < deadline;
    // A table that is made but not committed must not look as if it were there.
    if (wrong) database.execute("ROLLBACK");
    if (!isWorthAnotherTry) return wrong;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

}  // namespace

SqliteSettingsStore::Opening SqliteSettingsStore::open(
    const std::string& file, std::shared_ptr<tonelake::Diagnostics> diagnostics) {
  auto [database, problem] = SqliteDatabase::open(file, longestRow);
  if (database == nullptr) return {nullptr, file + ": " + problem};
  if (const auto wrong = prepareFilePatiently(*database)) return {nullptr, file + ": " + *wrong};
  return {std::shared_ptr<SqliteSettingsStore>(
              new SqliteSettingsStore(file, std::move(database), std::move(diagnostics))),
          ""};
}

SqliteSettingsStore::SqliteSettingsStore(std::string file, std::unique_ptr<SqliteDatabase> database,
                                         std::shared_ptr<tonelake::Diagnostics> diagnostics)
    : file_(std::move(file)),
      diagnostics_(std::move(diagnostics)),
      database_(std::move(database)),
      selectValue_(*database_, "SELECT value FROM settings WHERE key = ?1 AND type = ?2"),
      selectSetting_(*database_, "SELECT key, type, value FROM settings WHERE key = ?1"),
      selectAll_(*database_, "SELECT key, type, value FROM settings ORDER BY key"),
      upsert_(*database_,
              "INSERT INTO settings(key, type, value) VALUES(?1, ?2, ?3) "
              "ON CONFLICT(key) DO UPDATE SET type = excluded.type, value = excluded.value"),
      delete_(*database_, "DELETE FROM settings WHERE key = ?1") {}

std::string SqliteSettingsStore::problem() const {
  return file_ + ": " + database_->problem();
}

void SqliteSettingsStore::report(const std::optional<std::string>& problem) const {
  if (problem) std::call_once(reported_, [&] { diagnostics_->write(*problem); });
}

std::optional<std::string> SqliteSettingsStore::inTransaction(const std::function<bool()>& write) {
  const std::lock_guard lock(mutex_);
  const auto wrong = database_->inTransaction(write);
  return wrong ? std::optional(file_ + ": " + *wrong) : std::nullopt;
}

std::optional<std::string> SqliteSettingsStore::lengthProblem(std::string_view key,
                                                              std::string_view value) const {
  if (key.size() + value.size() <= longestSetting) return std::nullopt;
  return translated("{0}: the setting {1} is longer than {2} bytes", file_,
                    '"' + std::string(key.substr(0, 64)) + '"', longestSetting);
}

std::optional<std::string> SqliteSettingsStore::store(std::string_view key, SettingType type,
                                                      const SqliteParameter& value) {
  if (auto wrong = lengthProblem(key, value.bytes)) return wrong;
  return inTransaction([&] {
    return upsert_.run({Parameter::text(key), Parameter::text(nameOf(type)), value});
  });
}

std::optional<std::string> SqliteSettingsStore::write(const Setting& setting) {
  switch (setting.type) {
    case SettingType::text:
      return store(setting.key, setting.type, Parameter::text(setting.value));
    case SettingType::boolean:
      return store(setting.key, setting.type, Parameter::number(setting.value == "true" ? 1 : 0));
    case SettingType::data:
      break;
  }
  return store(setting.key, setting.type, Parameter::data(setting.value));
}

std::optional<std::string> SqliteSettingsStore::erase(std::string_view key) {
  return inTransaction([&] { return delete_.run({Parameter::text(key)}); });
}

std::optional<std::string> SqliteSettingsStore::editData(
    std::string_view key,
    const std::function<std::optional<std::string>(const std::optional<std::string>&)>& change) {
  const Parameter name = Parameter::text(key);
  const Parameter type = Parameter::text(nameOf(SettingType::data));
  std::optional<std::string> tooLong;
  const auto edit = [&] {
    std::optional<std::string> data;
    const auto keep = [&](const SqliteStatement::Row& row) { data = row.bytes(0); };
    if (!selectValue_.run({name, type}, keep)) return false;
    const std::optional<std::string> changed = change(data);
    if (changed) tooLong = lengthProblem(key, *changed);
    return !changed || tooLong || upsert_.run({name, type, Parameter::data(*changed)});
  };
  const std::optional<std::string> wrong = inTransaction(edit);
  return wrong ? wrong : tooLong;
}

SqliteSettingsStore::Answer<std::optional<Setting>> SqliteSettingsStore::find(
    std::string_view key) const {
  const std::lock_guard lock(mutex_);
  Answer<std::optional<Setting>> answer;
  const auto keep = [&](const SqliteStatement::Row& row) { answer.value = settingIn(row); };
  if (!selectSetting_.run({Parameter::text(key)}, keep)) answer.problem = problem();
  return answer;
}

SqliteSettingsStore::Answer<std::vector<Setting>> SqliteSettingsStore::list() const {
  const std::lock_guard lock(mutex_);
  Answer<std::vector<Setting>> answer;
  const auto keep = [&](const SqliteStatement::Row& row) {
    answer.value.push_back(settingIn(row));
  };
  if (!selectAll_.run({}, keep)) answer.problem = problem();
  return answer;
}

std::optional<std::string> SqliteSettingsStore::value(std::string_view key,
                                                      SettingType type) const {
  std::optional<std::string> result;
  std::optional<std::string> wrong;
  {
    const std::lock_guard lock(mutex_);
    const auto keep = [&](const SqliteStatement::Row& row) { result = row.bytes(0); };
    if (!selectValue_.run({Parameter::text(key), Parameter::text(nameOf(type))}, keep)) {
      wrong = problem();
    }
  }
  report(wrong);
  return wrong ? std::nullopt : result;
}

std::optional<std::string> SqliteSettingsStore::text(std::string_view key) const {
  return value(key, SettingType::text);
}

std::optional<bool> SqliteSettingsStore::boolean(std::string_view key) const {
  const auto number = value(key, SettingType::boolean);
  return number ? std::optional<bool>(*number == "1") : std::nullopt;
}

std::optional<std::string> SqliteSettingsStore::data(std::string_view key) const {
  return value(key, SettingType::data);
}

void SqliteSettingsStore::setText(std::string_view key, std::string_view value) {
  report(store(key, SettingType::text, Parameter::text(value)));
}

void SqliteSettingsStore::setBoolean(std::string_view key, bool value) {
  report(store(key, SettingType::boolean, Parameter::number(value ? 1 : 0)));
}

void SqliteSettingsStore::setData(std::string_view key, std::string_view value) {
  report(store(key, SettingType::data, Parameter::data(value)));
}

void SqliteSettingsStore::setAllData(
    const std::map<std::string, std::string, std::less<>>& pieces) {
  report(inTransaction([&] {
    return std::all_of(pieces.begin(), pieces.end(), [&](const auto& piece) {
      return upsert_.run({Parameter::text(piece.first), Parameter::text(nameOf(SettingType::data)),
                          Parameter::data(piece.second)});
    });
  }));
}

void SqliteSettingsStore::remove(std::string_view key) {
  report(erase(key));
}

}  // namespace desktop
