#include "zyndle/progression_command.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Tonelake/chords/chord_json.h"
#include "Tonelake/content/chord_progression_json.h"
#include "Tonelake/content/chord_progressions.h"
#include "zyndle/command_options.h"
#include "zyndle/connected_shapes.h"
#include "zyndle/drawing.h"
#include "zyndle/host.h"
#include "zyndle/instrument_options.h"
#include "zyndle/key_chords.h"
#include "zyndle/key_name.h"
#include "zyndle/output_options.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"
#include "zyndle/voicing_record.h"

namespace zyndle {
namespace {

using tonelake::Chord;
using tonelake::ChordProgression;
using tonelake::Voicings::Voicing;
namespace ChordProgressions = tonelake::ChordProgressions;

constexpr const char* description = message("Show the chords of a progression in a key");

constexpr const char* introduction =
    message(R"(A numeral is a chord on that step of the key, in capitals major, in small
letters minor; b and # before it lower and raise it. A key is a note, with
major or minor: without either it is minor when the progression has an i.
Known progressions, see zyndle progressions, are described in words. Every chord
is drawn in its easiest shape; zyndle connect finds shapes that lie close.

)");

constexpr const char* examples = message(R"(
Examples:
  zyndle progression "I-V-vi-IV" --key G
  zyndle progression I bVII IV I --key D
  zyndle progression i-VI-III-VII --key "F# minor"
  zyndle progression ii-V-I --key Bb --svg two-five-one.svg)");

// Learners meet progressions here: the shape that everybody knows counts for more than the shortest
// way to the next one, which zyndle connect finds.
constexpr tonelake::WholeNumber shapesToChooseFrom = 1;

struct ProgressionOptions {
  std::vector<std::string> numerals;
  std::optional<std::string> key;
  InstrumentOptions instrument;
  OutputOptions output;
};

struct ShownProgression {
  Chord key;
  ChordProgression progression;  // with no styles and no description where it is not known
  std::vector<Chord> chords;
  std::vector<Voicing> row;
  Instrument instrument;
};

ChordProgression lookUp(const std::string& progression, const Chord& key) {
  for (ChordProgression& known :
       ChordProgressions::getChordProgressionsDataForChordType(key.chordType)) {
    if (known.progression == progression) return known;
  }
  return {progression, "", {}};
}

ShownProgression makeShown(const ProgressionOptions& options, const Instrument& instrument) {
  const KeyChords read = readKeyChords(options.numerals, options.key);
  return {read.key, lookUp(read.progression, read.key), read.chords,
          connectShapes(read.chords, instrument, shapesToChooseFrom), instrument};
}

std::string headingOf(const ShownProgression& shown) {
  // TRANSLATORS: a progression in a key: "I-V-vi-IV in G major".
  return translated("{0} in {1}", shown.progression.progression, nameOfKey(shown.key));
}

std::string jsonOf(const ShownProgression& shown) {
  tonelake::json::Value object;
  object["key"] = tonelake::encodeChord(shown.key);
  ChordProgression described = shown.progression;
  described.description = ChordProgressions::getDescription(described, shown.key);
  object.update(tonelake::encodeChordProgression(described));
  object.update(encodeRow(shown.chords, shown.row, shown.instrument));
  return tonelake::json::write(object) + '\n';
}

std::string textOf(const ShownProgression& shown, const DrawingStyle& style) {
  const ChordProgression& progression = shown.progression;
  std::string text = emphasized(headingOf(shown), style) + '\n';
  text +=
      labelledRow(translated("Chords"), ChordProgressions::getChordTitles(progression, shown.key));
  std::vector<std::string> styles;
  for (const tonelake::MusicStyles known : progression.styles)
    styles.emplace_back(known.rawValue());
  if (!styles.empty()) text += labelledRow(translated("Styles"), styles);
  text += instrumentRows(shown.instrument) + '\n';
  if (!progression.description.empty()) {
    text += paragraph(ChordProgressions::getDescription(progression, shown.key)) + '\n';
  }
  return text + drawNamedInTerminal(nameShapes(shown.chords, shown.row),
                                    soundingStrings(shown.instrument), style);
}

void showProgression(const ProgressionOptions& options) {
  checkOutputOptions(options.output);
  const Instrument instrument = readInstrument(options.instrument);
  installHost(options.output.isForPrograms());
  const ShownProgression shown = makeShown(options, instrument);
  const DrawingStyle style = drawingStyle(options.output);
  writeSvgOfRow(options.output, headingOf(shown), nameShapes(shown.chords, shown.row),
                soundingStrings(instrument), style);
  if (options.output.svgFile == "-") return;
  writeText(options.output, options.output.json ? jsonOf(shown) : textOf(shown, style));
}

}  // namespace

void addProgressionCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<ProgressionOptions>();
  CLI::App& command = *app.add_subcommand("progression", translated(description));
  command.footer(translated(introduction) + instrumentHelp() + translated(examples));
  addArgument(command, "NUMERALS", options->numerals,
              message("The chords as Roman numerals, in their order"));
  addOption(command, "--key", options->key, message("The key (C, or A minor)"), "KEY");
  addInstrumentOptions(command, options->instrument);
  addTextOptions(command, options->output);
  addOption(command, "--svg", options->output.svgFile,
            message("Draw the shapes too; - for standard output"), "FILE");
  command.callback([options, &action] { action = [options] { showProgression(*options); }; });
}

}  // namespace zyndle
