#include "Desktop/sqlite_database.h"

#include <sqlite3.h>

namespace desktop {
namespace {

int bindOne(sqlite3_stmt* statement, int index, const SqliteParameter& parameter) {
  // A null pointer would bind NULL instead of an empty value.
  const char* bytes = parameter.bytes.empty() ? "" : parameter.bytes.data();
  const auto size = static_cast<sqlite3_uint64>(parameter.bytes.size());
  switch (parameter.kind) {
    case SqliteParameter::Kind::text:
      return sqlite3_bind_text64(statement, index, bytes, size, SQLITE_STATIC, SQLITE_UTF8);
    case SqliteParameter::Kind::data:
      return sqlite3_bind_blob64(statement, index, bytes, size, SQLITE_STATIC);
    case SqliteParameter::Kind::number:
      break;
  }
  return sqlite3_bind_int64(statement, index, parameter.value);
}

}  // namespace

SqliteDatabase::Opening SqliteDatabase::open(const std::string& file, int longestRow) {
  sqlite3* connection = nullptr;
  // No mutex of its own: whoever shares the connection between threads has one.
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  const int result = sqlite3_open_v2(file.c_str(), &connection, flags, nullptr);
  std::unique_ptr<SqliteDatabase> database(new SqliteDatabase(connection));
  if (result != SQLITE_OK) return {nullptr, database->problem()};
  // Before any statement, since the very first one may meet a lock.
  sqlite3_busy_timeout(connection, static_cast<int>(patience.count()));
  sqlite3_limit(connection, SQLITE_LIMIT_LENGTH, longestRow);
  return {std::move(database), ""};
}

SqliteDatabase::~SqliteDatabase() {
  sqlite3_close(connection_);
}

bool SqliteDatabase::execute(const char* sql) {
  return sqlite3_exec(connection_, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::optional<std::int64_t> SqliteDatabase::number(const char* sql) {
  std::optional<std::int64_t> result;
  const auto keep = [](void* target, int columns, char** values, char**) {
    if (columns > 0 && values[0] != nullptr) {
      *static_cast<std::optional<std::int64_t>*>(target) = std::strtoll(values[0], nullptr, 10);
    }
    return 0;
  };
  return sqlite3_exec(connection_, sql, keep, &result, nullptr) == SQLITE_OK ? result
                                                                             : std::nullopt;
}

std::optional<std::string> SqliteDatabase::inTransaction(const std::function<bool()>& write) {
  if (execute("BEGIN IMMEDIATE") && write() && execute("COMMIT")) return std::nullopt;
  const std::string wrong = problem();
  execute("ROLLBACK");  // fails harmlessly where no transaction was begun
  return wrong;
}

std::string SqliteDatabase::problem() const {
  return sqlite3_errmsg(connection_);
}

bool SqliteDatabase::isBusy() const {
  return sqlite3_errcode(connection_) == SQLITE_BUSY;
}

std::string_view SqliteStatement::Row::bytes(int column) const {
  // The bytes first: asking for them may convert the value, which changes its length.
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement_, column));
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
  return bytes == nullptr ? std::string_view() : std::string_view(bytes, size);
}

SqliteStatement::~SqliteStatement() {
  sqlite3_finalize(statement_);
}

bool SqliteStatement::prepare() {
  return statement_ != nullptr ||
         sqlite3_prepare_v3(database_.connection_, sql_, -1, SQLITE_PREPARE_PERSISTENT, &statement_,
                            nullptr) == SQLITE_OK;
}

bool SqliteStatement::bind(std::initializer_list<SqliteParameter> parameters) {
  int index = 0;
  for (const SqliteParameter& parameter : parameters) {
    if (bindOne(statement_, ++index, parameter) != SQLITE_OK) return false;
  }
  return true;
}

bool SqliteStatement::run(std::initializer_list<SqliteParameter> parameters,
                          const std::function<void(const Row&)>& onRow) {
  if (!prepare()) return false;
  int result = SQLITE_ERROR;
  if (bind(parameters)) {
    while ((result = sqlite3_step(statement_)) == SQLITE_ROW) {
      if (onRow) onRow(Row(statement_));
    }
  }
  // Left as it is, the statement would keep its lock on the file. The values are the caller's.
  sqlite3_reset(statement_);
  sqlite3_clear_bindings(statement_);
  return result == SQLITE_DONE;
}

}  // namespace desktop
