#include "zyndle/packs_command.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "Tonelake/chords/chord_json.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/content/curated_chord_lists.h"
#include "Tonelake/fingering/chord_position_json.h"
#include "Tonelake/fingering/chord_positions.h"
#include "Tonelake/fingering/finger_assignment.h"
#include "Tonelake/foundation/json.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/drawing.h"
#include "zyndle/host.h"
#include "zyndle/output.h"
#include "zyndle/output_options.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::ChordList;
using tonelake::ChordListCategory;
using tonelake::ChordPosition;
using tonelake::curatedChordLists;

constexpr const char* listDescription =
    message("List the packs of chords for a style or a purpose");
constexpr const char* description = message("Show the chords of a pack");

constexpr const char* examples = message(R"(Examples:
  zyndle packs
  zyndle pack jazzChords
  zyndle pack metal --left-handed
  zyndle pack folk --json)");

constexpr std::size_t nameWidth = 22;

struct PackOptions {
  std::string name;
  OutputOptions output;
};

ChordListCategory readPack(const std::string& name) {
  const auto category = ChordListCategory::fromRawValue(name);
  if (category && curatedChordLists().contains(*category)) return *category;
  std::vector<std::string> names;
  for (const auto& [known, list] : curatedChordLists()) names.emplace_back(known.rawValue());
  refuse(translated("there is no pack {0}; there are {1}", tonelake::quoted(name),
                    tonelake::join(names, ", ")));
}

ChordPosition positionOf(const tonelake::WholeNumbers& pinned) {
  tonelake::Frets frets{};
  for (std::size_t string = 0; string < std::min(frets.size(), pinned.size()); ++string) {
    frets[string] = static_cast<std::int8_t>(pinned[string]);
  }
  return {frets, tonelake::findFingers(frets).value_or(tonelake::Fingers{})};
}

// The pinned shape of a chord in its list, or the one it usually has; none for a chord that cannot
// be played.
std::vector<NamedShape> shapesOf(const ChordList& list) {
  std::vector<NamedShape> shapes;
  for (const tonelake::Chord& chord : list.chords) {
    const auto pinned = list.preferredPositions.find(chord);
    if (pinned != list.preferredPositions.end()) {
      shapes.push_back({chord, positionOf(pinned->second)});
      continue;
    }
    for (const ChordPosition& position :
         tonelake::Chords::getChordPositions(chord, 1, tonelake::Tuning::standard)) {
      shapes.push_back({chord, position});
    }
  }
  return shapes;
}

void listPacks() {
  installHost(false);
  std::string text;
  for (const auto& [category, list] : curatedChordLists()) {
    text += fmt::format("{:{}} {}\n", category.rawValue(), nameWidth, list.title);
  }
  writeStandardOutput(text);
}

std::string jsonOf(ChordListCategory category, const ChordList& list) {
  tonelake::json::Value object;
  object["category"] = category.rawValue();
  object["title"] = list.title;
  object["description"] = list.description;
  object["chords"] = tonelake::json::Value::array();
  for (const NamedShape& shape : shapesOf(list)) {
    tonelake::json::Value& entry = object["chords"].emplace_back();
    entry["chord"] = tonelake::encodeChord(shape.chord);
    entry["title"] = tonelake::Chords::getTitleForChord(shape.chord);
    entry["position"] = tonelake::encodeChordPosition(shape.position);
  }
  return tonelake::json::write(object) + '\n';
}

std::string textOf(const ChordList& list, const DrawingStyle& style) {
  return emphasized(list.title, style) + '\n' + paragraph(list.description) + '\n' +
         drawNamedInTerminal(shapesOf(list), tonelake::Tuning::standard, style);
}

void showPack(const PackOptions& options) {
  checkOutputOptions(options.output);
  installHost(options.output.isForPrograms());
  const ChordListCategory category = readPack(options.name);
  const ChordList& list = curatedChordLists().at(category);
  writeText(options.output, options.output.json ? jsonOf(category, list)
                                                : textOf(list, drawingStyle(options.output)));
}

}  // namespace

void addPacksCommands(CLI::App& app, Action& action) {
  CLI::App& packs = *app.add_subcommand("packs", translated(listDescription));
  packs.footer(translated(examples));
  packs.callback([&action] { action = listPacks; });

  const auto options = std::make_shared<PackOptions>();
  CLI::App& pack = *app.add_subcommand("pack", translated(description));
  pack.footer(translated(examples));
  addArgument(pack, "NAME", options->name, message("The name of a pack, as zyndle packs has it"));
  addTextOptions(pack, options->output);
  pack.callback([options, &action] { action = [options] { showPack(*options); }; });
}

}  // namespace zyndle
