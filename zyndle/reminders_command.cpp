#include "zyndle/reminders_command.h"

#include <memory>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include "zyndle/command_options.h"
#include "zyndle/reminder_export.h"
#include "zyndle/reminder_installation.h"
#include "zyndle/reminder_posting.h"
#include "zyndle/reminder_scheduling.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr const char* description = message("Be reminded of the chord of the day every morning");

constexpr const char* examples =
    message(R"(A reminder a day and category, at some moment between 08:00 and 08:16. They are
scheduled a month at a time; scheduling a month again replaces its reminders.

Examples:
  zyndle reminders schedule                  the rest of this month
  zyndle reminders schedule --month-offset 1 --category jazz
                                             next month's jazz chords
  zyndle reminders list
  zyndle reminders cancel --category jazz
  zyndle reminders install                   from now on, a timer delivers them
  zyndle reminders deliver --wait            deliver while this runs; a click on
                                             a reminder opens its chord
  zyndle reminders export -o chords.ics      for a calendar, on a telephone say)");

void addMonthOptions(CLI::App& command, MonthOptions& options) {
  addOption(command, "--month-offset", options.monthOffset,
            message("Months from now; else 0, this month"), "N");
  addOption(command, "--category", options.category,
            message("beginner, advanced or jazz; else as set"), "CATEGORY");
}

void addDelivery(CLI::App& command, Action& action) {
  CLI::App& deliver =
      *command.add_subcommand("deliver", translated("Show the reminders that are due"));
  const auto wait = std::make_shared<bool>(false);
  addFlag(deliver, "--wait", *wait,
          message("Stay, show each in its time and open what is clicked"));
  deliver.callback([wait, &action] { action = [wait] { deliverReminders(*wait); }; });

  CLI::App& install =
      *command.add_subcommand("install", translated("Have a systemd timer deliver them"));
  install.callback([&action] { action = installReminders; });

  CLI::App& uninstall = *command.add_subcommand("uninstall", translated("Remove that timer"));
  uninstall.callback([&action] { action = uninstallReminders; });
}

void addExport(CLI::App& command, Action& action) {
  CLI::App& app =
      *command.add_subcommand("export", translated("Write a month's reminders for a calendar"));
  const auto options = std::make_shared<MonthOptions>();
  const auto file = std::make_shared<std::string>();
  addMonthOptions(app, *options);
  addOption(app, "-o,--output", *file,
            message("The iCalendar file to write, - for standard output"), "FILE")
      .required();
  app.callback(
      [options, file, &action] { action = [options, file] { exportReminders(*options, *file); }; });
}

}  // namespace

void addRemindersCommand(CLI::App& app, Action& action) {
  CLI::App& command = *app.add_subcommand("reminders", translated(description));
  command.footer(translated(examples));
  command.require_subcommand(1);

  CLI::App& schedule =
      *command.add_subcommand("schedule", translated("Schedule the days left of a month"));
  const auto options = std::make_shared<MonthOptions>();
  addMonthOptions(schedule, *options);
  schedule.callback([options, &action] { action = [options] { scheduleReminders(*options); }; });

  CLI::App& list = *command.add_subcommand("list", translated("List those that are still to come"));
  list.callback([&action] { action = listReminders; });

  CLI::App& cancel = *command.add_subcommand("cancel", translated("Forget them"));
  const auto category = std::make_shared<std::optional<std::string>>();
  addOption(cancel, "--category", *category, message("Only those of beginner, advanced or jazz"),
            "CATEGORY");
  cancel.callback([category, &action] { action = [category] { cancelReminders(*category); }; });

  addDelivery(command, action);
  addExport(command, action);
}

}  // namespace zyndle
