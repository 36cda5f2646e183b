#include "zyndle/status_command.h"

#include <CLI/CLI.hpp>

#include "TodayChordExtension/widgets/chord_provider.h"
#include "TodayChordExtension/widgets/widget_chord.h"
#include "zyndle/host.h"
#include "zyndle/output.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr const char* description = message("Write today's chord in as few letters as possible");

constexpr const char* examples =
    message(R"(One line for a status bar, such as "Cmaj7"; the text of the widget's family
accessoryInline.

Examples:
  zyndle status
  zyndle settings set todayChordCategory jazz   from another category)");

void showStatus() {
  installHost(true);
  todaychord::ChordProvider().getSnapshot([](const todaychord::ChordEntry& entry) {
    writeStandardOutput(todaychord::inlineTitle(entry.chord) + '\n');
  });
}

}  // namespace

void addStatusCommand(CLI::App& app, Action& action) {
  CLI::App& command = *app.add_subcommand("status", translated(description));
  command.footer(translated(examples));
  command.callback([&action] { action = showStatus; });
}

}  // namespace zyndle
