#include "zyndle/collections_command.h"

#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "TodayChordExtension/widgets/shared_data.h"
#include "TodayChordExtension/widgets/shared_settings.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/foundation/uuid.h"
#include "zyndle/chord_name.h"
#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/host.h"
#include "zyndle/output.h"
#include "zyndle/shared_list.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using todaychord::WidgetChordCollection;

constexpr const char* description = message("List and add your own chord collections");

constexpr const char* examples =
    message(R"(The widget with the collections shows the first seven of yours, and curated
packs where there are fewer.

Examples:
  zyndle collections add "Warm-up" C Am F G7
  zyndle collections add Dreamy Cmaj7 "E minor 7th"
  zyndle collections list
  zyndle collections clear)");

constexpr SharedList collections{todaychord::chordCollectionsKey, "collections"};

struct CollectionOptions {
  std::string title;
  std::vector<std::string> chords;
};

WidgetChordCollection readCollection(const CollectionOptions& options) {
  if (options.title.find_first_not_of(" \t\n") == std::string::npos)
    refuse(translated("{} is empty", "TITLE"));
  if (!tonelake::isValidUtf8(options.title)) {
    refuse(translated("{0} {1} is not valid UTF-8", "TITLE", tonelake::quoted(options.title)));
  }
  WidgetChordCollection collection{tonelake::Uuid::random().text(), options.title, "", {}};
  for (const std::string& name : options.chords) collection.chords.push_back(readChordName(name));
  return collection;
}

void addCollection(const CollectionOptions& options) {
  installHost(false);
  const WidgetChordCollection collection = readCollection(options);
  collections.edit([&](const std::optional<std::string>& data) {
    return todaychord::addChordCollection(data, collection);
  });
}

// The title and, below it, the chords.
std::string describe(const WidgetChordCollection& collection) {
  std::vector<std::string> chords;
  for (const tonelake::Chord& chord : collection.chords) chords.push_back(describeChord(chord));
  const std::string list =
      chords.empty() ? translated("(no chords)") : tonelake::join(chords, ", ");
  return printable(collection.title) + "\n  " + printable(list) + '\n';
}

void listCollections() {
  installHost(false);
  collections.read([](const std::optional<std::string>& data) {
    std::string text;
    for (const auto& collection : todaychord::decodeChordCollections(data)) {
      text += describe(collection);
    }
    writeStandardOutput(text.empty() ? translated("(none)") + '\n' : text);
  });
}

}  // namespace

void addCollectionsCommand(CLI::App& app, Action& action) {
  CLI::App& command = *app.add_subcommand("collections", translated(description));
  command.footer(translated(examples));
  command.require_subcommand(1);

  CLI::App& add = *command.add_subcommand("add", translated("Add a collection at the end"));
  const auto options = std::make_shared<CollectionOptions>();
  addArgument(add, "TITLE", options->title, message("What the collection is called"));
  addArgument(add, "CHORD", options->chords, message("The names of its chords, each one argument"));
  add.callback([options, &action] { action = [options] { addCollection(*options); }; });

  CLI::App& list =
      *command.add_subcommand("list", translated("List the collections with their chords"));
  list.callback([&action] { action = listCollections; });

  CLI::App& clear = *command.add_subcommand("clear", translated("Forget them all"));
  clear.callback([&action] { action = [] { collections.clear(); }; });
}

}  // namespace zyndle
