// The month of reminders, from a clock that stands still and dice that are loaded.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Desktop/gregorian_calendar.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/platform/notification_request_list.h"
#include "Tonelake/today/notification_identifier.h"
#include "Tonelake/today/notification_texts.h"
#include "Tonelake/today/today_chord_library.h"
#include "tests/support/fixed_calendar.h"
#include "tests/support/recording_diagnostics.h"
#include "tests/support/scripted_random.h"

namespace tonelake {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

// A number that becomes `result`, 0 to `bound` - 1.
std::uint64_t numberFor(std::uint64_t result, std::uint64_t bound) {
  return ~std::uint64_t{0} / bound * result + 5 * bound;
}

class MonthlyNotifications : public ::testing::Test {
 protected:
  MonthlyNotifications() {
    platform.notifications = center;
    platform.diagnostics = diagnostics;
  }

  const std::vector<NotificationRequest>& schedule(const std::string& zone, const LocalTime& now,
                                                   ChordCategory category, WholeNumber offset) {
    const Instant moment = *desktop::makeGregorianCalendar(zone)->instant(now);
    platform.calendar = desktop::makeGregorianCalendar(zone, [moment] { return moment; });
    center->requests.clear();
    TodayChordLibrary::scheduleChordNotificationsForMonth(library, category, offset, platform);
    return center->requests;
  }

  TodayChordLibrary library;
  std::shared_ptr<NotificationRequestList> center = std::make_shared<NotificationRequestList>();
  std::shared_ptr<testing::RecordingDiagnostics> diagnostics =
      std::make_shared<testing::RecordingDiagnostics>();
  Platform platform;
};

TEST_F(MonthlyNotifications, CoverWhatIsLeftOfTheMonth) {
  struct Row {
    const char* zone;
    LocalTime now;
    WholeNumber offset;
    std::size_t count;
    const char* first;
    const char* last;
  };
  const Row rows[] = {
      {"Europe/Berlin", {2025, 3, 10, 9, 0, 0}, 0, 21, "2025_3_11", "2025_3_31"},
      {"Europe/Berlin", {2025, 3, 10, 7, 0, 0}, 0, 22, "2025_3_10", "2025_3_31"},
      {"UTC", {2025, 12, 31, 23, 0, 0}, 1, 31, "2026_1_1", "2026_1_31"},
      {"UTC", {2025, 1, 31, 12, 0, 0}, 1, 28, "2025_2_1", "2025_2_28"},
      {"Asia/Tokyo", {2024, 1, 31, 12, 0, 0}, 1, 29, "2024_2_1", "2024_2_29"},
      {"UTC", {2025, 3, 10, 9, 0, 0}, -1, 0, "", ""},
      {"UTC", {2025, 3, 31, 9, 0, 0}, 0, 0, "", ""},
      {"UTC", {2025, 3, 31, 9, 0, 0}, INT64_MAX, 0, "", ""},
      {"UTC", {2025, 3, 31, 9, 0, 0}, INT64_MIN, 0, "", ""},
      // The zone went from the 29th straight to the 31st.
      {"Pacific/Apia", {2011, 12, 28, 9, 0, 0}, 0, 2, "2011_12_29", "2011_12_31"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.first) + " from " + std::to_string(row.now.day));
    const auto& requests = schedule(row.zone, row.now, ChordCategory::jazz, row.offset);
    ASSERT_THAT(requests, SizeIs(row.count));
    if (requests.empty()) continue;
    EXPECT_EQ(requests.front().identifier, std::string("chordOfTheDay_jazz_") + row.first);
    EXPECT_EQ(requests.back().identifier, std::string("chordOfTheDay_jazz_") + row.last);
    for (const auto& [identifier, title, body, sound, badge, time] : requests) {
      EXPECT_EQ(identifier,
                notificationIdentifier({ChordCategory::jazz, time.year, time.month, time.day}));
      EXPECT_TRUE(time.hour == 8 && time.minute <= 15 && time.second <= 59) << identifier;
      EXPECT_EQ(std::tie(sound, badge), std::make_tuple("default", 1));
      const Chord chord = *library.chordOfTheDay(*platform.calendar->instant(time),
                                                 ChordCategory::jazz, *platform.calendar);
      EXPECT_NE(body.find(Chords::getTitleForChord(chord, 10)), std::string::npos) << body;
    }
  }
  EXPECT_EQ(diagnostics->lines(), std::vector<std::string>());
}

TEST_F(MonthlyNotifications, DrawTimeTitleAndBodyInThisOrder) {
  const auto random = std::make_shared<testing::ScriptedRandom>();
  platform.random = random;
  // The 28 days before draw a time each and are over all the same.
  for (int day = 1; day < 29; ++day) random->numbers.insert(random->numbers.end(), {5, 5});
  random->numbers.insert(random->numbers.end(),
                         {numberFor(15, 16), numberFor(59, 60), numberFor(6, 7), numberFor(2, 7)});
  const auto& requests = schedule("UTC", {2024, 2, 29, 8, 15, 59}, ChordCategory::beginner, 0);
  ASSERT_THAT(requests, SizeIs(1)) << "a moment that is just now is not over";
  EXPECT_EQ(requests[0].time, (LocalTime{2024, 2, 29, 8, 15, 59}));
  EXPECT_EQ(requests[0].title, "Sharpen your guitar skills");
  EXPECT_EQ(requests[0].body, "Learn " + Chords::getTitleForChord(library.beginnerChords[59], 10) +
                                  " — a must-know chord!");
}

TEST_F(MonthlyNotifications, TellWhichOneWasNotTaken) {
  platform.notifications = Platform().notifications;
  platform.random = std::make_shared<testing::ScriptedRandom>();
  schedule("Asia/Tokyo", {2024, 2, 29, 0, 0, 0}, ChordCategory::beginner, 0);
  EXPECT_THAT(diagnostics->lines(),
              ElementsAre("Notification scheduling failed for 2024-02-28 23:00:00 +0000: there is "
                          "no notification service"));
}

TEST_F(MonthlyNotifications, CoverThirtyDaysOfAMonthWithoutAnEnd) {
  platform.calendar = std::make_shared<testing::FixedCalendar>(testing::utc({2025, 3, 1, 0, 0, 0}));
  TodayChordLibrary::scheduleChordNotificationsForMonth(library, ChordCategory::jazz, 0, platform);
  EXPECT_THAT(center->requests, SizeIs(30));
}

TEST_F(MonthlyNotifications, HaveIdentifiersThatAreReadBackInTheirOnlyForm) {
  const ReminderKey key{ChordCategory::jazz, 2025, 3, 7};
  EXPECT_EQ(notificationIdentifier(key), "chordOfTheDay_jazz_2025_3_7");
  EXPECT_EQ(parseNotificationIdentifier("chordOfTheDay_jazz_2025_3_7"), key);
  for (const char* text : {"", "chordOfTheDay_jazz_2025_03_7", "chordOfTheDay_Jazz_2025_3_7",
                           "chordOfTheDay_jazz_2025_3", "chordOfTheDay_jazz_2025_3_x"}) {
    EXPECT_EQ(parseNotificationIdentifier(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace tonelake
