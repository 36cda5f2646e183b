#include "zyndle/chord_command.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Desktop/ascii_text.h"
#include "Tonelake/fingering/chord_position_json.h"
#include "Tonelake/fingering/chord_positions.h"
#include "Tonelake/fingering/voicings.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/note.h"
#include "Tonelake/theory/spelling_tables.h"
#include "zyndle/chord_name.h"
#include "zyndle/chord_sheet.h"
#include "zyndle/drawing.h"
#include "zyndle/host.h"
#include "zyndle/instrument_options.h"
#include "zyndle/number_option.h"
#include "zyndle/output_options.h"
#include "zyndle/text_layout.h"

namespace zyndle {
namespace {

using tonelake::Chord;
using tonelake::ChordPosition;
using tonelake::WholeNumber;

constexpr const char* description = "Show a chord and how to play it";

constexpr const char* introduction =
    R"(A name is written the way chord sheets have it: Am7, F#m7b5, Bbmaj7, C/E,
"C major 7th". Sharps and flats may be # and b.

)";

constexpr const char* examples = R"(
Examples:
  zyndle chord Am7
  zyndle chord D major 7th --limit 8
  zyndle chord G --tuning DADGAD
  zyndle chord A7 --tuning "Eb Ab Db Gb Bb Eb"
  zyndle chord E --tuning "open G" --left-handed
  zyndle chord Eb --capo 3
  zyndle chord F --svg - > f-major.svg)";

constexpr WholeNumber defaultLimit = 4;

struct ChordOptions {
  std::vector<std::string> name;  // the words of it
  InstrumentOptions instrument;
  std::optional<std::string> limit;
  OutputOptions output;
};

struct ShownChord {
  ChordSheet sheet;
  Instrument instrument;
  std::vector<ChordPosition> positions;
};

// The chord whose shapes, counted from the capo, sound `chord`: A major for C major with the capo
// on fret 3.
Chord playedChord(Chord chord, int capo) {
  constexpr int octave = 12;
  if (capo % octave == 0) return chord;
  const auto pitch =
      static_cast<std::size_t>((chord.rootNote.pitchClass() + octave - capo) % octave);
  chord.rootNote = *tonelake::Note::fromRawValue(tonelake::notesArrayRegular[pitch]);
  return chord;
}

// Shapes of the generator have the root in the bass. A slash chord is about another bass.
std::vector<ChordPosition> findPositions(const Chord& chord, WholeNumber limit,
                                         const Instrument& instrument) {
  if (chord.variant == 0) {
    return tonelake::Chords::getChordPositions(playedChord(chord, instrument.capo), limit,
                                               instrument.tuning);
  }
  tonelake::Voicings::VoicingOptions options;
  options.limit = limit;
  options.capo = instrument.capo;
  std::vector<ChordPosition> positions;
  for (const auto& voicing : tonelake::Voicings::findVoicings(chord, instrument.tuning, options)) {
    positions.push_back(voicing.position);
  }
  return positions;
}

std::string jsonOf(const ShownChord& shown) {
  tonelake::json::Value object;
  addChordSheet(object, shown.sheet);
  object["names"] = shown.sheet.names;
  object["tuning"] = shown.instrument.tuning;
  object["capo"] = shown.instrument.capo;
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
  text += instrumentRows(shown.instrument) + '\n';
  if (shown.positions.empty()) return text + "No shape is known for it in this tuning.\n";
  text += drawInTerminal(sheet.chord, shown.positions, soundingStrings(shown.instrument), style);
  const std::string instructions = listInstructions(shown.positions.front());
  if (instructions.empty()) return text;
  return text + (shown.positions.size() > 1 ? "\nThe first shape:\n" : "\n") + instructions;
}

void showChord(const ChordOptions& options) {
  checkOutputOptions(options.output);
  const WholeNumber limit = readNumber("--limit", options.limit, defaultLimit, 1);
  const Instrument instrument = readInstrument(options.instrument);
  installHost(options.output.isForPrograms());
  const ChordSheet sheet =
      makeChordSheet(readChordName(tonelake::join(options.name, " "), options.output.ascii));
  const ShownChord shown{sheet, instrument, findPositions(sheet.chord, limit, instrument)};
  const DrawingStyle style = drawingStyle(options.output);
  writeSvg(options.output, sheet.chord, shown.positions, soundingStrings(instrument), style);
  if (options.output.svgFile == "-") return;
  writeText(options.output, options.output.json ? jsonOf(shown) : textOf(shown, style));
}

}  // namespace

void addChordCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<ChordOptions>();
  CLI::App& command = *app.add_subcommand("chord", description);
  command.footer(std::string(introduction) + instrumentHelp + examples);
  command.add_option("NAME", options->name, "The chord's name, in one word or several")
      ->required()
      ->type_name("");
  addInstrumentOptions(command, options->instrument);
  command.add_option("--limit", options->limit, "Shapes to show, at most (4)")->type_name("N");
  addOutputOptions(command, options->output);
  command.callback([options, &action] { action = [options] { showChord(*options); }; });
}

}  // namespace zyndle
