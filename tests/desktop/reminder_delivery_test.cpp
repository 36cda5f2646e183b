// Keeping and delivering reminders, with a service that only notes what it is shown.

#include "Desktop/reminder_delivery.h"

#include <functional>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Desktop/gregorian_calendar.h"
#include "tests/desktop/temporary_folder.h"
#include "tests/support/recording_diagnostics.h"

namespace desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tonelake::LocalTime;

std::shared_ptr<const tonelake::Calendar> clockAt(const LocalTime& now, const std::string& zone) {
  const auto moment = *makeGregorianCalendar(zone)->instant(now);
  return makeGregorianCalendar(zone, [moment] { return moment; });
}

class NotingPoster final : public NotificationPoster {
 public:
  std::vector<std::string> posted;
  std::optional<std::string> problem;
  std::function<void()> whilePosting = [] {};

  std::optional<std::string> post(const StoredNotification& notification) override {
    whilePosting();
    if (!problem) posted.push_back(notification.request.identifier);
    return problem;
  }
};

class ReminderDelivery : public testing::Test {
 protected:
  std::unique_ptr<SqliteNotificationStore> open() const {
    auto [store, problem] = SqliteNotificationStore::open(folder.path("shared.sqlite"));
    EXPECT_NE(store, nullptr) << problem;
    return std::move(store);
  }

  void add(const std::string& identifier, const LocalTime& time) const {
    StoredNotification notification;
    notification.request.identifier = identifier;
    notification.request.time = time;
    EXPECT_EQ(open()->add(notification), std::nullopt);
  }

  std::vector<std::string> pending() const {
    std::vector<std::string> identifiers;
    for (const auto& each : open()->pending().notifications) {
      identifiers.push_back(each.request.identifier);
    }
    return identifiers;
  }

  Delivery deliver(const LocalTime& now, const std::string& zone = "UTC") {
    return deliverDueReminders(*open(), poster, *clockAt(now, zone), diagnostics);
  }

  TemporaryFolder folder;
  NotingPoster poster;
  tonelake::testing::RecordingDiagnostics diagnostics;
};

TEST_F(ReminderDelivery, PostsWhatIsDueByTheWallClock) {
  add("later", {2025, 3, 30, 8, 5, 1});
  add("due", {2025, 3, 30, 8, 5, 0});
  add("yesterday's", {2025, 3, 29, 8, 5, 0});
  add("missed", {2025, 3, 29, 8, 4, 59});
  add("never", {2011, 12, 30, 8, 0, 0});
  const Delivery delivery = deliver({2025, 3, 30, 8, 5, 0}, "Pacific/Apia");
  EXPECT_EQ(delivery.posted, 2);
  EXPECT_EQ(delivery.problem, std::nullopt);
  EXPECT_THAT(poster.posted, ElementsAre("yesterday's", "due"));
  EXPECT_THAT(diagnostics.lines(),
              ElementsAre("Reminder never dropped: its day does not exist in the time zone "
                          "Pacific/Apia",
                          "Reminder missed dropped: it was missed by more than a day"));
  EXPECT_EQ(deliver({2025, 3, 30, 8, 5, 0}, "Pacific/Apia").posted, 0);
  EXPECT_THAT(pending(), ElementsAre("later"));
  EXPECT_EQ(nextReminder(*open(), *makeGregorianCalendar("Asia/Tokyo")),
            makeGregorianCalendar("UTC")->instant({2025, 3, 29, 23, 5, 1}));
}

TEST_F(ReminderDelivery, KeepsWhatNobodyTakes) {
  add("a", {2025, 3, 7, 8, 0, 0});
  add("b", {2025, 3, 7, 8, 1, 0});
  poster.problem = "nobody there";
  const Delivery delivery = deliver({2025, 3, 7, 9, 0, 0});
  EXPECT_EQ(std::tie(delivery.posted, delivery.waiting, delivery.problem),
            std::make_tuple(0, 2, std::optional<std::string>("nobody there")));
  poster.problem = std::nullopt;
  EXPECT_EQ(deliver({2025, 3, 7, 9, 0, 0}).posted, 2) << "nothing keeps the next one waiting";
}

TEST_F(ReminderDelivery, ReplacesByIdentifier) {
  add("a", {2025, 3, 7, 8, 0, 0});
  EXPECT_EQ(deliver({2025, 3, 7, 8, 0, 0}).posted, 1);
  add("a", {2025, 3, 7, 8, 10, 0});
  // Replaced again just while the service shows it: the new one is still to come.
  poster.whilePosting = [this] { add("a", {2025, 3, 7, 8, 12, 0}); };
  EXPECT_EQ(deliver({2025, 3, 7, 8, 10, 0}).posted, 1);
  EXPECT_THAT(pending(), ElementsAre("a"));
}

TEST_F(ReminderDelivery, LosesNoneToADeliverersDeath) {
  add("a", {2025, 3, 7, 8, 0, 0});
  const auto store = open();
  StoredNotification dying = store->pending().notifications.at(0);
  EXPECT_TRUE(store->claim(dying, clockAt({2025, 3, 7, 8, 0, 0}, "UTC")->now()).isDone);
  EXPECT_EQ(deliver({2025, 3, 7, 8, 0, 30}).posted, 0) << "the claim holds";
  EXPECT_EQ(deliver({2025, 3, 7, 8, 0, 31}).posted, 1) << "it has lapsed";
  EXPECT_FALSE(store->markDelivered(dying).isDone);
  EXPECT_THAT(pending(), IsEmpty());
}

// Each thread has a store of its own, as processes have.
TEST_F(ReminderDelivery, PostsNothingTwice) {
  constexpr int count = 20;
  for (int i = 0; i < count; ++i) add(std::to_string(i), {2025, 3, 7, 8, 0, i});
  std::vector<NotingPoster> posters(4);
  std::vector<std::jthread> threads;
  for (NotingPoster& each : posters) {
    threads.emplace_back([&] {
      const auto clock = clockAt({2025, 3, 7, 9, 0, 0}, "UTC");
      EXPECT_EQ(deliverDueReminders(*open(), each, *clock, diagnostics).problem, std::nullopt);
    });
  }
  threads.clear();
  std::size_t posted = 0;
  for (const NotingPoster& each : posters) posted += each.posted.size();
  EXPECT_EQ(posted, std::size_t{count});
  EXPECT_THAT(pending(), IsEmpty());
}

}  // namespace
}  // namespace desktop
