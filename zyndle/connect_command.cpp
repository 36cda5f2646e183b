#include "zyndle/connect_command.h"

#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "zyndle/chord_row.h"
#include "zyndle/command_options.h"
#include "zyndle/connected_shapes.h"
#include "zyndle/drawing.h"
#include "zyndle/host.h"
#include "zyndle/instrument_options.h"
#include "zyndle/output_options.h"
#include "zyndle/translation.h"
#include "zyndle/voicing_record.h"

namespace zyndle {
namespace {

using tonelake::Chord;
using tonelake::Voicings::Voicing;

constexpr const char* description = message("Choose shapes that lie close for a row of chords");

constexpr const char* introduction =
    message(R"(Chords are written without blanks inside, with blanks, commas or bar lines
between them.

)");

constexpr const char* examples = message(R"(
Examples:
  zyndle connect "C G/B Am F"
  zyndle connect Dm7 G7 Cmaj7
  zyndle connect "| D | A | Bm | G |" --tuning "drop D"
  zyndle connect "G Em C D" --capo 2 --json)");

struct ConnectOptions {
  std::vector<std::string> names;
  InstrumentOptions instrument;
  OutputOptions output;
};

std::string textOf(const std::vector<Chord>& chords, const std::vector<Voicing>& row,
                   const Instrument& instrument, const DrawingStyle& style) {
  const std::string rows = instrumentRows(instrument);
  return rows + (rows.empty() ? "" : "\n") +
         drawNamedInTerminal(nameShapes(chords, row), soundingStrings(instrument), style);
}

void showConnected(const ConnectOptions& options) {
  checkOutputOptions(options.output);
  const Instrument instrument = readInstrument(options.instrument);
  installHost(options.output.isForPrograms());
  const std::vector<Chord> chords = readChordRow(options.names);
  const std::vector<Voicing> row = connectShapes(chords, instrument);
  writeText(options.output, options.output.json
                                ? tonelake::json::write(encodeRow(chords, row, instrument)) + '\n'
                                : textOf(chords, row, instrument, drawingStyle(options.output)));
}

}  // namespace

void addConnectCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<ConnectOptions>();
  CLI::App& command = *app.add_subcommand("connect", translated(description));
  command.footer(translated(introduction) + instrumentHelp() + translated(examples));
  addArgument(command, "CHORDS", options->names,
              message("The names of the chords, in their order"));
  addInstrumentOptions(command, options->instrument);
  addTextOptions(command, options->output);
  command.callback([options, &action] { action = [options] { showConnected(*options); }; });
}

}  // namespace zyndle
