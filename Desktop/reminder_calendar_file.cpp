#include "Desktop/reminder_calendar_file.h"

#include <chrono>
#include <cstdlib>
#include <new>

#include <libical/ical.h>

#include "Desktop/c_pointer.h"

namespace desktop {
namespace {

using Component = CPointer<icalcomponent, icalcomponent_free>;
using Text = CPointer<char, std::free>;

constexpr const char* version = "2.0";
constexpr const char* product = "-//Zyndle//Chord of the day//EN";

// A wall clock's time, in no zone.
icaltimetype floatingTime(const tonelake::LocalTime& time) {
  icaltimetype floating = icaltime_null_time();
  floating.year = time.year;
  floating.month = time.month;
  floating.day = time.day;
  floating.hour = time.hour;
  floating.minute = time.minute;
  floating.second = time.second;
  return floating;
}

icaltimetype utcTime(tonelake::Instant instant) {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(instant).time_since_epoch();
  return icaltime_from_timet_with_zone(seconds.count(), 0, icaltimezone_get_utc_timezone());
}

// At the event's start.
icalcomponent* makeAlarm(const tonelake::NotificationRequest& request) {
  return icalcomponent_vanew(ICAL_VALARM_COMPONENT, icalproperty_new_action(ICAL_ACTION_DISPLAY),
                             icalproperty_new_description(request.body.c_str()),
                             icalproperty_new_trigger(icaltriggertype_from_int(0)), nullptr);
}

icalcomponent* makeEvent(const CalendarReminder& reminder, const icaltimetype& written) {
  const tonelake::NotificationRequest& request = reminder.notification.request;
  icalcomponent* const event = icalcomponent_vanew(
      ICAL_VEVENT_COMPONENT, icalproperty_new_uid((request.identifier + "@zyndle").c_str()),
      icalproperty_new_dtstamp(written), icalproperty_new_dtstart(floatingTime(request.time)),
      icalproperty_new_sequence(static_cast<int>(reminder.sequence)),
      icalproperty_new_summary(request.title.c_str()),
      icalproperty_new_description(request.body.c_str()),
      // A reminder takes no time: it leaves its owner free.
      icalproperty_new_transp(ICAL_TRANSP_TRANSPARENT), makeAlarm(request), nullptr);
  if (!reminder.notification.link.empty()) {
    icalcomponent_add_property(event, icalproperty_new_url(reminder.notification.link.c_str()));
  }
  return event;
}

}  // namespace

std::string writeReminderCalendar(const std::vector<CalendarReminder>& reminders,
                                  tonelake::Instant now) {
  const Component calendar(icalcomponent_vanew(ICAL_VCALENDAR_COMPONENT,
                                               icalproperty_new_version(version),
                                               icalproperty_new_prodid(product), nullptr));
  const icaltimetype written = utcTime(now);
  for (const CalendarReminder& reminder : reminders) {
    icalcomponent_add_component(calendar.get(), makeEvent(reminder, written));
  }
  const Text text(icalcomponent_as_ical_string_r(calendar.get()));
  if (text == nullptr) throw std::bad_alloc();
  return text.get();
}

}  // namespace desktop
