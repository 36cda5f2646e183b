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
#include "Tonelake/theory/octave.h"
#include "zyndle/chord_name.h"
#include "zyndle/chord_sheet.h"
#include "zyndle/chord_words.h"
#include "zyndle/command_options.h"
#include "zyndle/drawing.h"
#include "zyndle/host.h"
#include "zyndle/instrument_options.h"
#include "zyndle/number_option.h"
#include "zyndle/output_options.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::Chord;
using tonelake::ChordPosition;
using tonelake::WholeNumber;

constexpr const char* description = message("Show a chord and how to play it");

constexpr const char* introduction =
    message(R"(A name is written the way chord sheets have it: Am7, F#m7b5, Bbmaj7, C/E,
"C major 7th". Sharps and flats may be # and b.

)");

constexpr const char* examples = message(R"(
Examples:
  zyndle chord Am7
  zyndle chord D major 7th --limit 8
  zyndle chord G --tuning DADGAD
  zyndle chord A7 --tuning "Eb Ab Db Gb Bb Eb"
  zyndle chord E --tuning "open G" --left-handed
  zyndle chord Eb --capo 3
  zyndle chord F --svg - > f-major.svg)");

constexpr WholeNumber defaultLimit = 4;

struct ChordOptions {
  std::vector<std::string> name;  // the words of it
  InstrumentOptions instrument;
  std::optional<std::string> limit;
  OutputOptions output;
};

struct ShownChord {
  ChordSheet sheet;
  ChordWords words;
  Instrument instrument;
  std::vector<ChordPosition> positions;
};

// The chord whose shapes, counted from the capo, sound `chord`: A major for C major with the capo
// on fret 3.
Chord playedChord(Chord chord, int capo) {
  using tonelake::octave;
  if (capo % octave == 0) return chord;
  chord.rootNote =
      tonelake::Note::sharpOfPitchClass(chord.rootNote.pitchClass() + octave - capo % octave);
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
  addChordWords(object, shown.words);
  return tonelake::json::write(object) + '\n';
}

// What is told about the chord below its shapes.
std::string paragraphsOf(const ChordWords& words) {
  std::string text;
  for (const auto& told : {words.description, words.jazzDescription}) {
    if (told) text += '\n' + paragraph(*told);
  }
  return text;
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

std::string shapesOf(const ShownChord& shown, const DrawingStyle& style) {
  if (shown.positions.empty()) return translated("No shape is known for it in this tuning.") + '\n';
  std::string text =
      drawInTerminal(shown.sheet.chord, shown.positions, soundingStrings(shown.instrument), style);
  const std::string instructions = listInstructions(shown.positions.front());
  if (instructions.empty()) return text;
  const std::string heading =
      shown.positions.size() > 1 ? translated("The first shape:") + '\n' : "";
  return text + '\n' + heading + instructions;
}

std::string textOf(const ShownChord& shown, const DrawingStyle& style) {
  const ChordSheet& sheet = shown.sheet;
  std::string text = emphasized(sheet.title, style) + '\n';
  // TRANSLATORS: the label of further names of a chord: "Also  Am7, Amin7".
  text += labelledRow(translated("Also"), namesToList(sheet));
  // TRANSLATORS: the label of the notes that a chord consists of: "Notes  C, E, G".
  text += labelledRow(translated("Notes"), sheet.notes);
  text += labelledRow(translated("Intervals"), sheet.intervals);
  // TRANSLATORS: the label of adjectives: "Character  happy, bright, stable, uplifting".
  text += labelledRow(translated("Character"), {shown.words.character.value_or("")});
  text += labelledRow(translated("Genres"), {shown.words.genre.value_or("")});
  text += instrumentRows(shown.instrument) + '\n';
  return text + shapesOf(shown, style) + paragraphsOf(shown.words);
}

void showChord(const ChordOptions& options) {
  checkOutputOptions(options.output);
  const WholeNumber limit = readNumber("--limit", options.limit, defaultLimit, 1);
  const Instrument instrument = readInstrument(options.instrument);
  installHost(options.output.isForPrograms());
  const ChordSheet sheet = makeChordSheet(readChordName(tonelake::join(options.name, " ")));
  const ShownChord shown{sheet, describeInWords(sheet.chord), instrument,
                         findPositions(sheet.chord, limit, instrument)};
  const DrawingStyle style = drawingStyle(options.output);
  writeSvg(options.output, sheet.chord, shown.positions, soundingStrings(instrument), style);
  if (options.output.svgFile == "-") return;
  writeText(options.output, options.output.json ? jsonOf(shown) : textOf(shown, style));
}

}  // namespace

void addChordCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<ChordOptions>();
  CLI::App& command = *app.add_subcommand("chord", translated(description));
  command.footer(translated(introduction) + instrumentHelp() + translated(examples));
  addArgument(command, "NAME", options->name, message("The chord's name, in one word or several"));
  addInstrumentOptions(command, options->instrument);
  addOption(command, "--limit", options->limit, message("Shapes to show, at most (4)"), "N");
  addOutputOptions(command, options->output);
  command.callback([options, &action] { action = [options] { showChord(*options); }; });
}

}  // namespace zyndle
