#include "zyndle/today_command.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Tonelake/fingering/chord_position_json.h"
#include "Tonelake/fingering/chord_positions.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/platform.h"
#include "Tonelake/today/today_chord_library.h"
#include "zyndle/calendar_day.h"
#include "zyndle/category_option.h"
#include "zyndle/chord_sheet.h"
#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/drawing.h"
#include "zyndle/host.h"
#include "zyndle/output_options.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::Calendar;
using tonelake::ChordCategory;
using tonelake::ChordPosition;
using tonelake::Instant;

constexpr const char* description = message("Show the chord of the day");

constexpr const char* examples =
    message(R"(Every day of the year has a chord in each of three categories, the same every
year. The day is the one in your time zone (TZ is honoured).

Examples:
  zyndle today                          today's chord, in the category you set
  zyndle today --category jazz          today's jazz chord
  zyndle today --date 2024-02-29        the chord of another day
  zyndle today --svg chord.svg          the diagram as a drawing as well
  zyndle settings set todayChordCategory advanced
                                        another category from now on)");

struct TodayOptions {
  std::optional<std::string> category;
  std::optional<std::string> date;
  OutputOptions output;
};

// A chord of the day with everything that is told about it.
struct DailyChord {
  CalendarDay day;
  ChordCategory category;
  ChordSheet sheet;
  std::vector<ChordPosition> positions;  // the first one, if there is any
};

std::optional<CalendarDay> readDate(const TodayOptions& options) {
  if (!options.date) return std::nullopt;
  const std::optional<CalendarDay> day = parseDay(*options.date);
  if (!day) {
    refuse(translated(hasDayForm(*options.date) ? message("{0} {1} is not a day of the calendar")
                                                : message("{0} {1} is not of the form YYYY-MM-DD"),
                      "--date", tonelake::quoted(*options.date)));
  }
  return day;
}

Instant chosenMoment(const Calendar& calendar, const std::optional<CalendarDay>& day) {
  if (!day) return calendar.now();
  const std::optional<Instant> moment = momentOf(calendar, *day);
  if (!moment) {
    refuse(
        translated("there was no {0} in the time zone {1}", writeDay(*day), calendar.timeZone()));
  }
  return *moment;
}

DailyChord findDailyChord(const Calendar& calendar, Instant moment, ChordCategory category) {
  const std::optional<CalendarDay> day = dayOf(calendar, moment);
  const std::optional<tonelake::Chord> chord =
      tonelake::TodayChordLibrary().chordOfTheDay(moment, category);
  if (!day || !chord) fail(translated("the calendar cannot tell which day it is"));
  return {*day, category, makeChordSheetForToday(*chord),
          tonelake::Chords::getChordPositions(*chord, 1, tonelake::Tuning::standard)};
}

std::string jsonOf(const DailyChord& daily) {
  tonelake::json::Value object;
  object["date"] = writeDay(daily.day);
  object["category"] = daily.category.rawValue();
  addChordSheet(object, daily.sheet);
  object["position"] = nullptr;
  object["instructions"] = tonelake::json::Value::array();
  if (!daily.positions.empty()) {
    object["position"] = tonelake::encodeChordPosition(daily.positions.front());
    object["instructions"] = instructionsFor(daily.positions.front());
  }
  return tonelake::json::write(object) + '\n';
}

std::string textOf(const DailyChord& daily, const DrawingStyle& style) {
  // TRANSLATORS: {0} is a date, {1} a category: "Chord of the day 2024-02-29, Jazz".
  std::string text = translated("Chord of the day {0}, {1}", writeDay(daily.day),
                                daily.category.localizedTitle()) +
                     "\n\n";
  text += emphasized(daily.sheet.title, style) + '\n';
  // TRANSLATORS: the label of a chord's short name: "Short  Am7".
  text += labelledRow(translated("Short"), {daily.sheet.shortTitle});
  text += labelledRow(translated("Notes"), daily.sheet.notes);
  text += labelledRow(translated("Intervals"), daily.sheet.intervals) + '\n';
  if (daily.positions.empty()) return text + translated("No shape is known for it.") + '\n';
  text += drawInTerminal(daily.sheet.chord, daily.positions, tonelake::Tuning::standard, style);
  return text + '\n' + listInstructions(daily.positions.front());
}

void showToday(const TodayOptions& options) {
  checkOutputOptions(options.output);
  const std::optional<CalendarDay> day = readDate(options);
  const std::optional<ChordCategory> category = readCategory(options.category);
  installHost(options.output.isForPrograms());
  const tonelake::Platform& platform = tonelake::processPlatform();
  const DailyChord daily = findDailyChord(*platform.calendar, chosenMoment(*platform.calendar, day),
                                          category ? *category : categoryAsSet());
  const DrawingStyle style = drawingStyle(options.output);
  writeSvg(options.output, daily.sheet.chord, daily.positions, tonelake::Tuning::standard, style);
  if (options.output.svgFile == "-") return;
  writeText(options.output, options.output.json ? jsonOf(daily) : textOf(daily, style));
}

}  // namespace

void addTodayCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<TodayOptions>();
  CLI::App& command = *app.add_subcommand("today", translated(description));
  command.footer(translated(examples));
  addOption(command, "--category", options->category,
            message("beginner, advanced or jazz; else as set"), "CATEGORY");
  addOption(command, "--date", options->date, message("A day other than today"), "YYYY-MM-DD");
  addOutputOptions(command, options->output);
  command.callback([options, &action] { action = [options] { showToday(*options); }; });
}

}  // namespace zyndle
