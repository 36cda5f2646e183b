#include "zyndle/recent_command.h"

#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "TodayChordExtension/widgets/shared_data.h"
#include "TodayChordExtension/widgets/shared_settings.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/chord_name.h"
#include "zyndle/command_options.h"
#include "zyndle/host.h"
#include "zyndle/output.h"
#include "zyndle/shared_list.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr const char* description = message("List and add recently viewed chords");

constexpr const char* examples =
    message(R"(The widget with the recently viewed chords shows the first eight of them.

Examples:
  zyndle recent add F#m7b5
  zyndle recent add C major 7th
  zyndle recent list
  zyndle recent clear)");

constexpr SharedList recentChords{todaychord::recentlyViewedChordsKey, "recent"};

using Words = std::vector<std::string>;

void addRecentChord(const Words& name) {
  installHost(false);
  const tonelake::Chord chord = readChordName(tonelake::join(name, " "));
  recentChords.edit([&](const std::optional<std::string>& data) {
    return todaychord::addRecentlyViewedChord(data, chord);
  });
}

void listRecentChords() {
  installHost(false);
  recentChords.read([](const std::optional<std::string>& data) {
    std::string text;
    for (const tonelake::Chord& chord : todaychord::decodeRecentlyViewedChords(data)) {
      text += printable(describeChord(chord)) + '\n';
    }
    writeStandardOutput(text.empty() ? translated("(none)") + '\n' : text);
  });
}

}  // namespace

void addRecentCommand(CLI::App& app, Action& action) {
  CLI::App& command = *app.add_subcommand("recent", translated(description));
  command.footer(translated(examples));
  command.require_subcommand(1);

  CLI::App& add =
      *command.add_subcommand("add", translated("Put a chord first, as if it had been viewed"));
  const auto name = std::make_shared<Words>();
  addArgument(add, "CHORD", *name, message("The chord's name, in one word or several"));
  add.callback([name, &action] { action = [name] { addRecentChord(*name); }; });

  CLI::App& list =
      *command.add_subcommand("list", translated("List the chords, the latest one first"));
  list.callback([&action] { action = listRecentChords; });

  CLI::App& clear = *command.add_subcommand("clear", translated("Forget them all"));
  clear.callback([&action] { action = [] { recentChords.clear(); }; });
}

}  // namespace zyndle
