#include "zyndle/chord_command.h"

#include <algorithm>
#include <charconv>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Desktop/ascii_text.h"
#include "Tonelake/fingering/chord_position_json.h"
#include "Tonelake/fingering/chord_positions.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/tuning_parsing.h"
#include "zyndle/chord_name.h"
#include "zyndle/chord_sheet.h"
#include "zyndle/command_error.h"
#include "zyndle/drawing.h"
#include "zyndle/host.h"
#include "zyndle/output.h"
#include "zyndle/output_options.h"
#include "zyndle/text_layout.h"

namespace zyndle {
namespace {

using tonelake::ChordPosition;
using tonelake::TuningNames;
using tonelake::WholeNumber;

constexpr const char* description = "Show a chord and how to play it";

constexpr const char* examples =
    R"(A name is written the way chord sheets have it: Am7, F#m7b5, Bbmaj7, C/E,
"C major 7th". Sharps and flats may be # and b.

A tuning is six notes, lowest string first, or the name of a common one:
standard, half step down, full step down, drop D, double drop D, drop C#,
drop C, DADGAD, open A, open C, open D, open D minor, open E, open G,
all fourths, new standard.

Examples:
  zyndle chord Am7
  zyndle chord D major 7th --limit 8
  zyndle chord G --tuning DADGAD
  zyndle chord A7 --tuning "Eb Ab Db Gb Bb Eb"
  zyndle chord E --tuning "open G" --left-handed
  zyndle chord F --svg - > f-major.svg)";

constexpr WholeNumber defaultLimit = 4;

struct ChordOptions {
  std::vector<std::string> name;  // the words of it
  std::optional<std::string> tuning;
  std::optional<std::string> limit;
  OutputOptions output;
};

struct ShownChord {
  ChordSheet sheet;
  TuningNames tuning;
  std::vector<ChordPosition> positions;
};

tonelake::Chord readChord(const ChordOptions& options) {
  const ParsedChordName parsed = parseChordName(tonelake::join(options.name, " "));
  if (!parsed.chord)
    refuse(options.output.ascii ? desktop::toAscii(parsed.problem) : parsed.problem);
  return *parsed.chord;
}

TuningNames readTuning(const ChordOptions& options) {
  if (!options.tuning) return tonelake::Tuning::standard;
  tonelake::ParsedTuning parsed = tonelake::Tuning::parseTuning(*options.tuning);
  if (parsed.names.empty()) refuse("--tuning: " + parsed.problem);
  return parsed.names;
}

WholeNumber readLimit(const ChordOptions& options) {
  if (!options.limit) return defaultLimit;
  const std::string& text = *options.limit;
  WholeNumber limit = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), limit);
  if (error != std::errc() || end != text.data() + text.size() || limit < 1) {
    refuse("--limit " + tonelake::quoted(text) + " is not a whole number from 1 up");
  }
  return limit;
}

std::string jsonOf(const ShownChord& shown) {
  tonelake::json::Value object;
  addChordSheet(object, shown.sheet);
  object["names"] = shown.sheet.names;
  object["tuning"] = shown.tuning;
  object["positions"] = tonelake::json::Value::array();
  object["instructions"] = tonelake::json::Value::array();
  for (const ChordPosition& position : shown.positions) {
    object["positions"].push_back(tonelake::encodeChordPosition(position));
  }
  if (!shown.positions.empty()) object["instructions"] = instructionsFor(shown.positions.front());
  return tonelake::json::write(object) + '\n';
}

// Names that are the same but for the writing of their signs are listed once.
std::vector<std::string> namesToList(const ChordSheet& sheet) {
  std::vector<std::string> kept;
  std::vector<std::string> seen{desktop::toAscii(sheet.title)};
  for (const std::string& name : sheet.names) {
    const std::string ascii = desktop::toAscii(name);
    if (std::find(seen.begin(), seen.end(), ascii) != seen.end()) continue;
    seen.push_back(ascii);
    kept.push_back(name);
  }
  return kept;
}

std::string textOf(const ShownChord& shown, const DrawingStyle& style) {
  const ChordSheet& sheet = shown.sheet;
  std::string text = emphasized(sheet.title, style) + '\n';
  text += labelledRow("Also", namesToList(sheet));
  text += labelledRow("Notes", sheet.notes);
  text += labelledRow("Intervals", sheet.intervals);
  if (shown.tuning != tonelake::Tuning::standard) text += labelledRow("Tuning", shown.tuning);
  text += '\n';
  if (shown.positions.empty()) return text + "No shape is known for it in this tuning.\n";
  if (sheet.chord.variant != 0) {
    text += "These shapes have the root, " + sheet.notes.front() + ", in the bass.\n\n";
  }
  text += drawInTerminal(sheet.chord, shown.positions, shown.tuning, style);
  const std::string instructions = listInstructions(shown.positions.front());
  if (instructions.empty()) return text;
  return text + (shown.positions.size() > 1 ? "\nThe first shape:\n" : "\n") + instructions;
}

void showChord(const ChordOptions& options) {
  checkOutputOptions(options.output);
  const WholeNumber limit = readLimit(options);
  const TuningNames tuning = readTuning(options);
  installHost(options.output.isForPrograms());
  const ChordSheet sheet = makeChordSheet(readChord(options));
  const ShownChord shown{sheet, tuning,
                         tonelake::Chords::getChordPositions(sheet.chord, limit, tuning)};
  const DrawingStyle style = drawingStyle(options.output);
  writeSvg(options.output, sheet.chord, shown.positions, tuning, style);
  if (options.output.svgFile == "-") return;
  writeText(options.output, options.output.json ? jsonOf(shown) : textOf(shown, style));
}

}  // namespace

void addChordCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<ChordOptions>();
  CLI::App& command = *app.add_subcommand("chord", description);
  command.footer(examples);
  command.add_option("NAME", options->name, "The chord's name, in one word or several")
      ->required()
      ->type_name("");
  command
      .add_option("--tuning", options->tuning, "The open strings, lowest first, or a tuning's name")
      ->type_name("TUNING");
  command.add_option("--limit", options->limit, "Shapes to show, at most (4)")->type_name("N");
  addOutputOptions(command, options->output);
  command.callback([options, &action] { action = [options] { showChord(*options); }; });
}

}  // namespace zyndle
