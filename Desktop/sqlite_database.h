#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace desktop {

/// A connection to one SQLite file. Not for several threads at once.
class SqliteDatabase {
 public:
  struct Opening {
    std::unique_ptr<SqliteDatabase> database;  ///< nullptr on failure
    std::string problem;
  };

  /// How long what another process has locked is waited for.
  static constexpr std::chrono::milliseconds patience = std::chrono::seconds(5);

  /// Opens or creates the file. Rows longer than `longestRow` bytes are refused. A file that is no
  /// database is found out by the first statement only.
  static Opening open(const std::string& file, int longestRow);

  SqliteDatabase(const SqliteDatabase&) = delete;
  SqliteDatabase& operator=(const SqliteDatabase&) = delete;
  ~SqliteDatabase();

  /// Runs statements that give no rows; false on failure.
  bool execute(const char* sql);

  /// The first column of the first row; nothing on failure or without a row.
  std::optional<std::int64_t> number(const char* sql);

  /// Lets `write` run statements, which tells whether they succeeded, and keeps all they wrote or
  /// none of it: nothing on success, else what went wrong. It takes the file's lock for writing at
  /// once: a transaction that began by reading could find itself behind another process's write
  /// and fail without waiting.
  std::optional<std::string> inTransaction(const std::function<bool()>& write);

  /// What was wrong with the call that failed last, for example "database is locked".
  std::string problem() const;

  /// Whether that call failed because another connection stood in its way.
  bool isBusy() const;

 private:
  friend class SqliteStatement;
  explicit SqliteDatabase(sqlite3* connection) : connection_(connection) {}

  sqlite3* connection_;
};

/// One value for a statement's ?1, ?2, … Refers to the bytes.
struct SqliteParameter {
  enum class Kind { text, data, number };

  static SqliteParameter text(std::string_view bytes) { return {Kind::text, bytes, 0}; }
  static SqliteParameter data(std::string_view bytes) { return {Kind::data, bytes, 0}; }
  static SqliteParameter number(std::int64_t value) { return {Kind::number, {}, value}; }

  Kind kind;
  std::string_view bytes;
  std::int64_t value;
};

/// A statement that is compiled on first use and kept.
class SqliteStatement {
 public:
  /// One row of an answer. Its views last until the next row.
  class Row {
   public:
    explicit Row(sqlite3_stmt* statement) : statement_(statement) {}
    std::string_view bytes(int column) const;

   private:
    sqlite3_stmt* statement_;
  };

  /// `database` outlives the statement; `sql` is a literal.
  SqliteStatement(SqliteDatabase& database, const char* sql) : database_(database), sql_(sql) {}
  SqliteStatement(const SqliteStatement&) = delete;
  SqliteStatement& operator=(const SqliteStatement&) = delete;
  ~SqliteStatement();

  /// Runs the statement to its end, handing over each row; false on failure, where
  /// SqliteDatabase::problem() says why.
  bool run(std::initializer_list<SqliteParameter> parameters = {},
           const std::function<void(const Row&)>& onRow = {});

 private:
  bool prepare();
  bool bind(std::initializer_list<SqliteParameter> parameters);

  SqliteDatabase& database_;
  const char* sql_;
  sqlite3_stmt* statement_ = nullptr;
};

}  // namespace desktop
