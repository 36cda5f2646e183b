#include <memory>

#include "Tonelake/chords/chord_json.h"
#include "Tonelake/platform/notification_request_list.h"
#include "Tonelake/platform/platform.h"
#include "Tonelake/today/chord_category.h"
#include "zyndle/rpc/calendar_at.h"
#include "zyndle/rpc/encoding.h"
#include "zyndle/rpc/method_table.h"
#include "zyndle/rpc/parameters.h"

namespace zyndle {
namespace {

tonelake::ChordCategory decodeCategory(const json::Node& node) {
  const auto category = tonelake::ChordCategory::fromRawValue(node.text());
  if (!category) {
    node.fail("\"" + node.text() + R"(" is none of "beginner", "advanced" and "jazz")");
  }
  return *category;
}

json::Value chordOfTheDay(const json::Node& parameters, MethodContext& context) {
  const tonelake::Instant date = decodeInstant(parameters.member("for"));
  const tonelake::ChordCategory category = decodeCategory(parameters.member("category"));
  return encodeOptional(
      context.todayChordLibrary()->chordOfTheDay(date, category, *context.calendar(parameters)),
      tonelake::encodeChord);
}

json::Value getAllChords(const json::Node&, MethodContext& context) {
  return encodeList(context.todayChordLibrary()->getAllChords(), tonelake::encodeChord);
}

json::Value encodeRequest(const tonelake::NotificationRequest& request) {
  const tonelake::LocalTime& time = request.time;
  return {{"identifier", request.identifier},
          {"title", request.title},
          {"body", request.body},
          {"sound", request.sound},
          {"badge", request.badge},
          {"dateComponents",
           {{"year", time.year},
            {"month", time.month},
            {"day", time.day},
            {"hour", time.hour},
            {"minute", time.minute},
            {"second", time.second}}},
          {"repeats", false}};
}

json::Value scheduleChordNotificationsForMonth(const json::Node& parameters,
                                               MethodContext& context) {
  const auto category = decodeCategory(parameters.member("selectedCategory"));
  const auto monthOffset = parameters.member("monthOffset").wholeNumber();
  const auto requests = std::make_shared<tonelake::NotificationRequestList>();
  tonelake::Platform platform = tonelake::processPlatform();
  platform.notifications = requests;
  platform.calendar = context.calendar(parameters);
  if (const auto now = parameters.optionalMember("now")) {
    platform.calendar = calendarAt(decodeInstant(*now), platform.calendar);
  }
  tonelake::TodayChordLibrary::scheduleChordNotificationsForMonth(*context.todayChordLibrary(),
                                                                  category, monthOffset, platform);
  return encodeList(requests->requests, encodeRequest);
}

constexpr MethodRow rows[] = {
    {"chordOfTheDay", chordOfTheDay},
    {"getAllChords", getAllChords},
    {"scheduleChordNotificationsForMonth", scheduleChordNotificationsForMonth},
};

}  // namespace

std::span<const MethodRow> todayMethods() noexcept {
  return rows;
}

}  // namespace zyndle
