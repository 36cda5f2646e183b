// A host whose clock and sleep are ours.

#include "zyndle/hosting/host_loop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TodayChordExtension/widgets/shared_settings.h"
#include "tests/support/fixed_calendar.h"
#include "zyndle/hosting/widget_timelines.h"

namespace zyndle {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;
using testing::ElementsAre;
using tonelake::Instant;

// What happens in a night: after a sleep of `slept`, or of as long as was asked for, the clock has
// moved on by `passed` (more after a suspend, less than nothing when it was set back).
struct Event {
  std::optional<WakeUp> reason;
  std::optional<milliseconds> slept;
  std::optional<milliseconds> passed;
};

class FakedNight final : public WakeUps {
 public:
  FakedNight(Instant start, std::vector<Event> events)
      : calendar(std::make_shared<MovedCalendar>(start)), events_(std::move(events)) {}

  class MovedCalendar final : public tonelake::testing::FixedCalendar {
   public:
    using FixedCalendar::FixedCalendar;
    Instant now() const override { return FixedCalendar::now() + moved; }
    std::chrono::microseconds moved{0};
  };

  std::function<void(WakeUp reason)> onWakeUp = [](WakeUp) {};

  std::optional<WakeUp> wait(milliseconds longest) override {
    sleeps.push_back(std::chrono::duration_cast<seconds>(longest));
    if (events_.empty()) return std::nullopt;
    const Event event = events_.front();
    events_.erase(events_.begin());
    const milliseconds slept = event.slept.value_or(longest);
    EXPECT_LE(slept, longest);
    calendar->moved += event.passed.value_or(slept);
    if (event.reason) onWakeUp(*event.reason);
    return event.reason;
  }

  std::shared_ptr<MovedCalendar> calendar;
  std::vector<seconds> sleeps;

 private:
  std::vector<Event> events_;
};

// The night of 31 December: ordinal 366, then 1.
const Instant evening = tonelake::testing::utc({2024, 12, 31, 23, 58, 30});

TEST(HostLoop, DrawsAnewAtMidnightAndForSettings) {
  FakedNight night(evening, {{WakeUp::time, {}, {}},                         // 23:59:30
                             {WakeUp::time, {}, {}},                         // 0:00:00
                             {WakeUp::time, {}, {}},                         // 0:01:00
                             {WakeUp::settings, milliseconds(10250), {}},    // 0:01:10
                             {WakeUp::time, {}, hours(30)},                  // suspended
                             {WakeUp::time, milliseconds(500), -hours(40)},  // set back
                             {WakeUp::time, {}, {}}});
  const auto settings = tonelake::makeMemorySettingsStore();
  const auto library = std::make_shared<tonelake::TodayChordLibrary>();
  WidgetTimelines timelines({night.calendar, settings, library});
  night.onWakeUp = [&](WakeUp reason) {
    if (reason == WakeUp::settings) settings->setText(todaychord::todayChordCategoryKey, "jazz");
  };
  std::vector<std::optional<tonelake::Chord>> drawn;
  const HostDuty draw = [&](WakeUp reason, Instant now) {
    if (timelines.refresh(reason, now)) {
      drawn.push_back(std::get<todaychord::ChordEntry>(timelines.shown().front().entry).chord);
    }
    return timelines.nextReload();
  };
  int beats = 0;  // of another duty, which waits for nothing
  const HostDuty beat = [&](WakeUp, Instant) {
    ++beats;
    return std::nullopt;
  };
  runHost({beat, draw}, *night.calendar, night);
  const auto& beginner = library->beginnerChords;
  const auto& jazz = library->jazzChords;
  EXPECT_THAT(drawn, ElementsAre(beginner[365], beginner[0], jazz[0], jazz[1], jazz[364 + 1]));
  EXPECT_THAT(night.sleeps, ElementsAre(seconds(60), seconds(30), seconds(60), seconds(60),
                                        seconds(60), seconds(60), seconds(60), seconds(60)));
  EXPECT_EQ(beats, 8);
}

TEST(HostLoop, SleepsUntilTheEarliestWishButNotInThePast) {
  FakedNight night(evening, {{WakeUp::time, {}, {}}, {WakeUp::time, {}, {}}});
  const HostDuty soon = [](WakeUp, Instant now) { return now + milliseconds(20500); };
  const HostDuty late = [](WakeUp, Instant now) { return now - minutes(5); };
  runHost({soon}, *night.calendar, night);
  runHost({soon, late}, *night.calendar, night);
  EXPECT_THAT(night.sleeps, ElementsAre(seconds(20), seconds(20), seconds(20), seconds(0)));
}

}  // namespace
}  // namespace zyndle
