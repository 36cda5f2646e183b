#pragma once

#include <optional>
#include <string>

#include "Tonelake/theory/tuning.h"

namespace CLI {
class App;
}

namespace zyndle {

/// The guitar that shapes are for; shared by every subcommand that lets the user choose one.
struct InstrumentOptions {
  std::optional<std::string> tuning;
  std::optional<std::string> capo;
};

struct Instrument {
  tonelake::TuningNames tuning = tonelake::Tuning::standard;
  int capo = 0;  ///< its fret, 0 for none
};

/// How a tuning and a capo are given, for the help of a subcommand; ends with a line break.
std::string instrumentHelp();

/// Adds --tuning and --capo to a subcommand. `options` has to live as long as the subcommand.
void addInstrumentOptions(CLI::App& command, InstrumentOptions& options);

/// What the options say. A CommandError when one of them cannot be read.
Instrument readInstrument(const InstrumentOptions& options);

/// What the open strings sound with the capo on: the tuning itself without one.
tonelake::TuningNames soundingStrings(const Instrument& instrument);

/// The rows "Tuning" and "Capo" of a table, each only where it is not the usual.
std::string instrumentRows(const Instrument& instrument);

}  // namespace zyndle
