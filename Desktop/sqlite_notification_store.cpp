#include "Desktop/sqlite_notification_store.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "Desktop/settings_files.h"

namespace desktop {
namespace {

using Parameter = SqliteParameter;

constexpr int longestRow = 1 << 20;

// Desktops show no badge: it is kept for whoever reads the table.
//
// Other programs' settings are in the file, too: nothing of theirs is touched, and a version of
// this program that knows no notifications goes on reading it.
bool makeTables(SqliteDatabase& database) {
  const auto tables = database.number(
      "SELECT count(*) FROM sqlite_schema WHERE name IN ('notifications', 'calendar_exports')");
  if (tables == 2) return true;
  return database.execute(
      "BEGIN IMMEDIATE;"
      "CREATE TABLE IF NOT EXISTS notifications("
      "  identifier TEXT PRIMARY KEY NOT NULL,"
      "  title TEXT NOT NULL, body TEXT NOT NULL, sound TEXT NOT NULL, badge INTEGER NOT NULL,"
      "  year INTEGER NOT NULL, month INTEGER NOT NULL, day INTEGER NOT NULL,"
      "  hour INTEGER NOT NULL, minute INTEGER NOT NULL, second INTEGER NOT NULL,"
      "  link TEXT NOT NULL,"
      "  revision INTEGER NOT NULL,"
      "  claimed INTEGER NOT NULL DEFAULT 0,"     // seconds from 1970, 0 for not
      "  delivered INTEGER NOT NULL DEFAULT 0);"  // 1 once a service took it
      "CREATE TABLE IF NOT EXISTS calendar_exports("
      "  identifier TEXT PRIMARY KEY NOT NULL, sequence INTEGER NOT NULL);"
      "COMMIT");
}

// 0 for what another program may have written there that is no number.
template <typename Number>
void read(const SqliteStatement::Row& row, int column, Number& number) {
  const std::string_view digits = row.bytes(column);
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
}

// The columns of selectPending_.
StoredNotification notificationIn(const SqliteStatement::Row& row) {
  StoredNotification notification;
  tonelake::NotificationRequest& request = notification.request;
  request.identifier = row.bytes(0);
  request.title = row.bytes(1);
  request.body = row.bytes(2);
  request.sound = row.bytes(3);
  read(row, 4, request.badge);
  int column = 5;
  for (int* part : {&request.time.year, &request.time.month, &request.time.day, &request.time.hour,
                    &request.time.minute, &request.time.second}) {
    read(row, column++, *part);
  }
  notification.link = row.bytes(11);
  read(row, 12, notification.revision);
  return notification;
}

std::int64_t secondsOf(tonelake::Instant instant) {
  return std::chrono::floor<std::chrono::seconds>(instant.time_since_epoch()).count();
}

}  // namespace

SqliteNotificationStore::Opening SqliteNotificationStore::open(const std::string& file) {
  // Makes the file and its folder where there are none, and refuses what is no file of settings.
  const auto settings =
      openSettingsFile(file, makeStreamDiagnostics(tonelake::DiagnosticStream::standardError));
  if (settings.store == nullptr) return {nullptr, settings.problem};
  auto [database, problem] = SqliteDatabase::open(file, longestRow);
  if (database == nullptr) return {nullptr, file + ": " + problem};
  if (!database->execute("PRAGMA synchronous = FULL") || !makeTables(*database)) {
    return {nullptr, file + ": " + database->problem()};
  }
  return {std::unique_ptr<SqliteNotificationStore>(
              new SqliteNotificationStore(file, std::move(database))),
          ""};
}

SqliteNotificationStore::SqliteNotificationStore(std::string file,
                                                 std::unique_ptr<SqliteDatabase> database)
    : file_(std::move(file)),
      database_(std::move(database)),
      upsert_(*database_,
              "INSERT OR REPLACE INTO notifications(identifier, title, body, sound, badge,"
              "  year, month, day, hour, minute, second, link, revision) "
              "VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, random())"),
      forgetDelivered_(*database_,
                       "DELETE FROM notifications "
                       "WHERE delivered = 1 AND (year, month, day) < (?1, ?2, ?3)"),
      selectPending_(*database_,
                     "SELECT identifier, title, body, sound, badge,"
                     "  year, month, day, hour, minute, second, link, revision "
                     "FROM notifications WHERE delivered = 0 "
                     "ORDER BY year, month, day, hour, minute, second, identifier"),
      // A claim from the future was made before the clock was set back.
      claim_(*database_,
             "UPDATE notifications SET claimed = ?3, revision = random() "
             "WHERE identifier = ?1 AND revision = ?2 AND delivered = 0 "
             "  AND claimed NOT BETWEEN ?3 - ?4 AND ?3 + ?4 "
             "RETURNING revision"),
      mark_(*database_,
            "UPDATE notifications SET delivered = 1, revision = random() "
            "WHERE identifier = ?1 AND revision = ?2 RETURNING 1"),
      release_(*database_,
               "UPDATE notifications SET claimed = 0, revision = random() "
               "WHERE identifier = ?1 AND revision = ?2 RETURNING 1"),
      remove_(*database_,
              "DELETE FROM notifications WHERE identifier = ?1 AND revision = ?2 RETURNING 1"),
      raiseSequence_(*database_,
                     "INSERT INTO calendar_exports VALUES(?1, 0) "
                     "ON CONFLICT(identifier) DO UPDATE SET sequence = sequence + 1 "
                     "RETURNING sequence") {}

SqliteNotificationStore::Problem SqliteNotificationStore::inTransaction(
    const std::function<bool()>& write) {
  const auto wrong = database_->inTransaction(write);
  return wrong ? std::optional(file_ + ": " + *wrong) : std::nullopt;
}

SqliteNotificationStore::Change SqliteNotificationStore::change(
    SqliteStatement& statement, std::initializer_list<SqliteParameter> parameters,
    const std::function<void(const SqliteStatement::Row&)>& onRow) {
  Change change;
  const auto onChanged = [&](const SqliteStatement::Row& row) {
    change.isDone = true;
    if (onRow) onRow(row);
  };
  change.problem = inTransaction([&] { return statement.run(parameters, onChanged); });
  if (change.problem) change.isDone = false;
  return change;
}

SqliteNotificationStore::Problem SqliteNotificationStore::add(
    const StoredNotification& notification) {
  const tonelake::NotificationRequest& request = notification.request;
  const tonelake::LocalTime& time = request.time;
  return inTransaction([&] {
    return forgetDelivered_.run({Parameter::number(time.year), Parameter::number(time.month),
                                 Parameter::number(time.day)}) &&
           upsert_.run({Parameter::text(request.identifier), Parameter::text(request.title),
                        Parameter::text(request.body), Parameter::text(request.sound),
                        Parameter::number(request.badge), Parameter::number(time.year),
                        Parameter::number(time.month), Parameter::number(time.day),
                        Parameter::number(time.hour), Parameter::number(time.minute),
                        Parameter::number(time.second), Parameter::text(notification.link)});
  });
}

SqliteNotificationStore::Pending SqliteNotificationStore::pending() {
  Pending pending;
  const auto keep = [&](const SqliteStatement::Row& row) {
    pending.notifications.push_back(notificationIn(row));
  };
  if (!selectPending_.run({}, keep)) pending.problem = file_ + ": " + database_->problem();
  return pending;
}

SqliteNotificationStore::Change SqliteNotificationStore::claim(StoredNotification& notification,
                                                               tonelake::Instant now) {
  return change(
      claim_,
      {Parameter::text(notification.request.identifier), Parameter::number(notification.revision),
       Parameter::number(secondsOf(now)), Parameter::number(claimLength.count())},
      [&](const SqliteStatement::Row& row) { read(row, 0, notification.revision); });
}

SqliteNotificationStore::Change SqliteNotificationStore::markDelivered(
    const StoredNotification& claimed) {
  return change(mark_,
                {Parameter::text(claimed.request.identifier), Parameter::number(claimed.revision)});
}

SqliteNotificationStore::Change SqliteNotificationStore::release(
    const StoredNotification& claimed) {
  return change(release_,
                {Parameter::text(claimed.request.identifier), Parameter::number(claimed.revision)});
}

SqliteNotificationStore::Change SqliteNotificationStore::remove(
    const StoredNotification& notification) {
  return change(remove_, {Parameter::text(notification.request.identifier),
                          Parameter::number(notification.revision)});
}

SqliteNotificationStore::Sequences SqliteNotificationStore::nextSequences(
    const std::vector<std::string>& identifiers) {
  Sequences result;
  result.problem = inTransaction([&] {
    return std::all_of(identifiers.begin(), identifiers.end(), [&](const std::string& identifier) {
      return raiseSequence_.run(
          {Parameter::text(identifier)},
          [&](const SqliteStatement::Row& row) { read(row, 0, result.sequences[identifier]); });
    });
  });
  return result;
}

}  // namespace desktop
