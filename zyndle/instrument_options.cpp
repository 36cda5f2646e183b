#include "zyndle/instrument_options.h"

#include "Tonelake/fingering/voicing.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/note.h"
#include "Tonelake/theory/spelling_tables.h"
#include "Tonelake/theory/tuning_parsing.h"
#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/number_option.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"

namespace zyndle {

using tonelake::TuningNames;

namespace {

// TRANSLATORS: {} are names of tunings, on lines of their own.
constexpr const char* help =
    message(R"(A tuning is six notes, lowest string first, or the name of a common one:
{}
With a capo, shapes are counted from it and the names are what sounds.
)");

}  // namespace

std::string instrumentHelp() {
  constexpr const char* unbreakable = "\u00A0";  // keeps a line from ending inside a name
  std::string names;
  for (const tonelake::NamedTuning& tuning : tonelake::Tuning::namedTunings()) {
    const std::string name = tonelake::replaceAll(std::string(tuning.name), " ", unbreakable);
    names += (names.empty() ? "" : ", ") + tonelake::replaceAll(name, "♯", "#");
  }
  return translated(help, tonelake::replaceAll(paragraph(names + '.'), unbreakable, " "));
}

void addInstrumentOptions(CLI::App& command, InstrumentOptions& options) {
  addOption(command, "--tuning", options.tuning,
            message("The open strings, lowest first, or a tuning's name"), "TUNING");
  addOption(command, "--capo", options.capo, message("The capo's fret, 0 to 12 (0)"), "N");
}

Instrument readInstrument(const InstrumentOptions& options) {
  Instrument instrument;
  if (options.tuning) {
    tonelake::ParsedTuning parsed = tonelake::Tuning::parseTuning(*options.tuning);
    if (parsed.names.empty()) refuse("--tuning: " + parsed.problem);
    instrument.tuning = std::move(parsed.names);
  }
  instrument.capo =
      static_cast<int>(readNumber("--capo", options.capo, 0, 0, tonelake::Voicings::highestCapo));
  return instrument;
}

TuningNames soundingStrings(const Instrument& instrument) {
  if (instrument.capo == 0) return instrument.tuning;
  TuningNames names;
  for (const std::string& open : instrument.tuning) {
    const int pitch = tonelake::noteIndexByName().at(open) + instrument.capo;
    names.emplace_back(tonelake::Note::sharpOfPitchClass(pitch).rawValue());
  }
  return names;
}

std::string instrumentRows(const Instrument& instrument) {
  std::string rows;
  if (instrument.tuning != tonelake::Tuning::standard) {
    rows += labelledRow(translated("Tuning"), instrument.tuning);
  }
  if (instrument.capo != 0)
    rows += labelledRow(translated("Capo"), {std::to_string(instrument.capo)});
  return rows;
}

}  // namespace zyndle
