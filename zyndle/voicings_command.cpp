#include "zyndle/voicings_command.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Tonelake/fingering/voicings.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/chord_name.h"
#include "zyndle/chord_sheet.h"
#include "zyndle/command_options.h"
#include "zyndle/drawing.h"
#include "zyndle/host.h"
#include "zyndle/instrument_options.h"
#include "zyndle/number_option.h"
#include "zyndle/output_options.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"
#include "zyndle/voicing_record.h"

namespace zyndle {
namespace {

using tonelake::ChordPosition;
using tonelake::WholeNumber;
using tonelake::Voicings::Voicing;
using tonelake::Voicings::VoicingOptions;

constexpr const char* description = message("Show every way to play a chord, the easiest first");

constexpr const char* introduction =
    message(R"(Unlike the shapes of zyndle chord, these may have any note of the chord in the
bass and leave out strings inside: C/E, Bm7/A, E5.

)");

constexpr const char* examples = message(R"(
Examples:
  zyndle voicings C/E
  zyndle voicings F#m7b5 --limit 20 --max-fret 12
  zyndle voicings D --tuning DADGAD
  zyndle voicings Eb --capo 3
  zyndle voicings G13 --inner-mutes 2 --json)");

constexpr WholeNumber defaultLimit = 8;

struct CommandOptions {
  std::vector<std::string> name;  // the words of it
  InstrumentOptions instrument;
  std::optional<std::string> limit;
  std::optional<std::string> highestFret;
  std::optional<std::string> innerMutes;
  bool openStringsAboveFifthFret = false;
  OutputOptions output;
};

struct ShownVoicings {
  ChordSheet sheet;
  Instrument instrument;
  std::vector<Voicing> voicings;
  std::size_t count = 0;  // of all that there are
};

VoicingOptions readOptions(const CommandOptions& options, const Instrument& instrument) {
  const VoicingOptions usual;
  constexpr WholeNumber mostInnerMutes = 4;
  VoicingOptions read;
  read.highestFret =
      static_cast<int>(readNumber("--max-fret", options.highestFret, usual.highestFret, 0,
                                  tonelake::Voicings::highestFretOfAll));
  read.innerMutes = static_cast<int>(
      readNumber("--inner-mutes", options.innerMutes, usual.innerMutes, 0, mostInnerMutes));
  read.openStringsAboveFifthFret = options.openStringsAboveFifthFret;
  read.capo = instrument.capo;
  return read;
}

std::string jsonOf(const ShownVoicings& shown) {
  tonelake::json::Value object;
  addChordSheet(object, shown.sheet);
  object["tuning"] = shown.instrument.tuning;
  object["capo"] = shown.instrument.capo;
  object["count"] = shown.count;
  object["voicings"] = tonelake::json::Value::array();
  for (const Voicing& voicing : shown.voicings) {
    object["voicings"].push_back(encodeVoicing(voicing));
  }
  return tonelake::json::write(object) + '\n';
}

std::string textOf(const ShownVoicings& shown, const std::vector<ChordPosition>& positions,
                   const DrawingStyle& style) {
  std::string text = emphasized(shown.sheet.title, style) + '\n';
  text += labelledRow(translated("Notes"), shown.sheet.notes);
  text += instrumentRows(shown.instrument) + '\n';
  if (positions.empty())
    return text + translated("There is no way to play it within these bounds.") + '\n';
  text += drawInTerminal(shown.sheet.chord, positions, soundingStrings(shown.instrument), style);
  if (shown.count == positions.size()) return text;
  return text + "\n" +
         translated("{0} of {1} voicings; --limit shows more.", positions.size(), shown.count) +
         "\n";
}

void showVoicings(const CommandOptions& options) {
  checkOutputOptions(options.output);
  const WholeNumber limit = readNumber("--limit", options.limit, defaultLimit, 1);
  const Instrument instrument = readInstrument(options.instrument);
  const VoicingOptions voicingOptions = readOptions(options, instrument);
  installHost(options.output.isForPrograms());
  const tonelake::Chord chord = readChordName(tonelake::join(options.name, " "));
  ShownVoicings shown{makeChordSheet(chord), instrument,
                      tonelake::Voicings::findVoicings(chord, instrument.tuning, voicingOptions)};
  shown.count = shown.voicings.size();
  shown.voicings.resize(std::min(shown.count, static_cast<std::size_t>(limit)));
  std::vector<ChordPosition> positions;
  for (const Voicing& voicing : shown.voicings) positions.push_back(voicing.position);
  const DrawingStyle style = drawingStyle(options.output);
  writeSvg(options.output, chord, positions, soundingStrings(instrument), style);
  if (options.output.svgFile == "-") return;
  writeText(options.output, options.output.json ? jsonOf(shown) : textOf(shown, positions, style));
}

}  // namespace

void addVoicingsCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<CommandOptions>();
  CLI::App& command = *app.add_subcommand("voicings", translated(description));
  command.footer(translated(introduction) + instrumentHelp() + translated(examples));
  addArgument(command, "NAME", options->name, message("The chord's name, in one word or several"));
  addInstrumentOptions(command, options->instrument);
  addOption(command, "--limit", options->limit, message("Voicings to show, at most (8)"), "N");
  addOption(command, "--max-fret", options->highestFret, message("The highest fret to press (15)"),
            "N");
  addOption(command, "--inner-mutes", options->innerMutes,
            message("Strings that may be left out inside (1)"), "N");
  addFlag(command, "--high-open-strings", options->openStringsAboveFifthFret,
          message("Let open strings ring above the fifth fret"));
  addOutputOptions(command, options->output);
  command.callback([options, &action] { action = [options] { showVoicings(*options); }; });
}

}  // namespace zyndle
