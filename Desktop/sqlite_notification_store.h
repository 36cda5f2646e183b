#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Desktop/sqlite_database.h"
#include "Desktop/stored_notification.h"
#include "Tonelake/platform/instant.h"

namespace desktop {

/// The pending notifications in the file of the shared settings, for several processes at once.
/// What a call has stored survives the process and the machine's power. One object is for one
/// thread.
///
/// Two tables stand beside that of the settings. notifications: a row for each identifier, its
/// moment in columns as the wall clock shows it, since a traveller's reminder is due at eight
/// wherever he wakes up. calendar_exports: how often each identifier was written to a calendar.
class SqliteNotificationStore {
 public:
  struct Opening {
    std::unique_ptr<SqliteNotificationStore> store;  ///< nullptr on failure
    std::string problem;                             ///< on failure, with the name of the file
  };

  /// How long a claim keeps others from delivering, unless it is given back before: longer than a
  /// delivery takes, and short for a reminder whose deliverer was killed.
  static constexpr std::chrono::seconds claimLength{30};

  static Opening open(const std::string& file);

  SqliteNotificationStore(const SqliteNotificationStore&) = delete;
  SqliteNotificationStore& operator=(const SqliteNotificationStore&) = delete;

  // All that follow return what went wrong, with the name of the file, in `problem` or as their
  // result; nothing on success.
  using Problem = std::optional<std::string>;

  /// Keeps a notification and replaces the one with its identifier, delivered or not. What was
  /// delivered on an earlier day than the new one's is forgotten.
  Problem add(const StoredNotification& notification);

  struct Pending {
    std::vector<StoredNotification> notifications;
    Problem problem;
  };
  /// What is not delivered yet, by time.
  Pending pending();

  /// Whether a notification was still as it had been read, and was changed.
  struct Change {
    bool isDone = false;
    Problem problem;
  };
  /// Takes a notification for delivery: until it is marked or released, or the claim has lapsed,
  /// nobody else gets it. On success `notification` gets its new revision.
  Change claim(StoredNotification& notification, tonelake::Instant now);
  Change markDelivered(const StoredNotification& claimed);
  Change release(const StoredNotification& claimed);
  /// Forgets it undelivered.
  Change remove(const StoredNotification& notification);

  struct Sequences {
    std::map<std::string, std::int64_t> sequences;
    Problem problem;
  };
  /// For each identifier a number that is higher than every one it was given before; 0 at first.
  Sequences nextSequences(const std::vector<std::string>& identifiers);

 private:
  SqliteNotificationStore(std::string file, std::unique_ptr<SqliteDatabase> database);

  Problem inTransaction(const std::function<bool()>& write);
  Change change(SqliteStatement& statement, std::initializer_list<SqliteParameter> parameters,
                const std::function<void(const SqliteStatement::Row&)>& onRow = {});

  const std::string file_;
  const std::unique_ptr<SqliteDatabase> database_;  // outlives the statements
  SqliteStatement upsert_;
  SqliteStatement forgetDelivered_;
  SqliteStatement selectPending_;
  SqliteStatement claim_;
  SqliteStatement mark_;
  SqliteStatement release_;
  SqliteStatement remove_;
  SqliteStatement raiseSequence_;
};

}  // namespace desktop
