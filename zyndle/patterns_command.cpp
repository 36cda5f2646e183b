#include "zyndle/patterns_command.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Tonelake/accompaniment/pattern_repetition.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/patterns/pattern_json.h"
#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/host.h"
#include "zyndle/output.h"
#include "zyndle/pattern_grid.h"
#include "zyndle/pattern_names.h"
#include "zyndle/text_columns.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::PatternLibrary;
using tonelake::WholeNumber;

constexpr const char* description = message("Show ways to pick, bass lines and grooves");

constexpr const char* introduction =
    message(R"(Without a NAME it lists all patterns; with one it draws the pattern as a grid
and tells how to play it and what goes with it.

With --json it writes the pattern as a library of its own. Edit it and hear
your version with zyndle jam --library FILE.

)");

constexpr const char* examples = message(R"(Examples:
  zyndle patterns
  zyndle patterns "Campfire Strum"
  zyndle patterns "bossa nova"
  zyndle patterns "Rolling Six" --json > mine.json)");

struct PatternsOptions {
  std::vector<std::string> name;  // the words of it
  std::optional<std::string> library;
  bool json = false;
};

// "4/4, 2 bars".
template <typename Step>
std::string timingOf(const std::vector<Step>& steps, tonelake::TimeSignature timeSignature) {
  WholeNumber length = 0;
  for (const Step& step : steps) length += tonelake::lengthOf(step);
  const WholeNumber bar = tonelake::ticksOfBar(timeSignature);
  const WholeNumber bars = (length + bar - 1) / bar;
  const auto signature = tonelake::rawValue(timeSignature);
  // TRANSLATORS: a time signature and a length: "4/4, 2 bars".
  return bars == 1 ? translated("{}, 1 bar", signature)
                   : translated("{0}, {1} bars", signature, bars);
}

std::string timing(const tonelake::ArpeggioSequence& pattern) {
  return timingOf(pattern.sequence, pattern.timeSignature);
}

std::string timing(const tonelake::BassPattern& pattern) {
  return timingOf(pattern.bassNotes, pattern.timeSignature);
}

std::string timing(const tonelake::DrumPattern& pattern) {
  return timingOf(pattern.drumNotes, pattern.timeSignature);
}

template <typename Pattern>
std::string listOf(const std::string& title, const std::vector<Pattern>& patterns) {
  constexpr std::size_t nameWidth = 28;
  std::string text = title + "\n";
  for (const Pattern& pattern : patterns) {
    std::string line = "  " + printable(pattern.name);
    const std::size_t width = countColumns(line);
    line.append(width < nameWidth ? nameWidth - width : 1, ' ');
    text += line + timing(pattern) + "\n";
  }
  return text;
}

std::string listAll(const PatternLibrary& library) {
  return listOf(translated("Ways to pick and strum"), library.arpeggios.sequences) + "\n" +
         listOf(translated("Bass lines"), library.basses.bassPatterns) + "\n" +
         listOf(translated("Grooves"), library.drums.drumPatterns);
}

template <typename Pattern>
std::string sheetOf(const Pattern& pattern) {
  return printable(pattern.name) + " (" + timing(pattern) + ")\n\n" +
         paragraph(printable(pattern.description)) + "\n" + drawGrid(pattern) + "\n" + gridLegend();
}

// "Bossa Bass (1)": a linked pattern and its complexity.
std::string linkText(const std::string& name, int complexity) {
  return printable(name) + " (" + std::to_string(complexity) + ")";
}

std::string companionsOf(const tonelake::ArpeggioSequence& arpeggio) {
  std::vector<std::string> basses;
  for (const auto& link : arpeggio.associatedBassPatterns) {
    basses.push_back(linkText(link.bassPattern.name, link.complexity));
  }
  std::vector<std::string> drums;
  for (const auto& link : arpeggio.associatedDrumPatterns) {
    drums.push_back(linkText(link.drumPattern.name, link.complexity));
  }
  if (basses.empty() && drums.empty()) return "";
  // TRANSLATORS: a line above names of bass lines and grooves: "Bossa Bass (1), Busy Bossa (3)".
  return '\n' + translated("With it go, by complexity,") + '\n' +
         (basses.empty() ? "" : labelledRow(translated("Bass"), basses)) +
         (drums.empty() ? "" : labelledRow(translated("Drums"), drums));
}

template <typename Library>
std::string jsonOf(const Library& library) {
  return tonelake::json::write(tonelake::encodePattern(library)) + "\n";
}

std::string jsonOf(const PatternLibrary& library) {
  tonelake::json::Value object = tonelake::encodePattern(library.arpeggios);
  object.update(tonelake::encodePattern(library.basses));
  object.update(tonelake::encodePattern(library.drums));
  return tonelake::json::write(object) + "\n";
}

[[noreturn]] void refuseName(const std::string& name, const PatternLibrary& library) {
  std::vector<std::string> names;
  addNames(names, library.arpeggios.sequences);
  addNames(names, library.basses.bassPatterns);
  addNames(names, library.drums.drumPatterns);
  refuse(translated("no pattern is named {}", tonelake::quoted(name)) +
         describeNearest(name, names));
}

std::string show(const PatternLibrary& library, const std::string& name, bool json) {
  if (const auto* arpeggio = findPattern(library.arpeggios.sequences, name)) {
    return json ? jsonOf(tonelake::ArpeggioSequences{{*arpeggio}})
                : sheetOf(*arpeggio) + companionsOf(*arpeggio);
  }
  if (const auto* bass = findPattern(library.basses.bassPatterns, name)) {
    return json ? jsonOf(tonelake::BassPatterns{{*bass}}) : sheetOf(*bass);
  }
  if (const auto* drums = findPattern(library.drums.drumPatterns, name)) {
    return json ? jsonOf(tonelake::DrumPatterns{{*drums}}) : sheetOf(*drums);
  }
  refuseName(name, library);
}

void showPatterns(const PatternsOptions& options) {
  installHost(options.json);
  const PatternLibrary library = readLibrary(options.library);
  if (!options.name.empty()) {
    return writeStandardOutput(show(library, tonelake::join(options.name, " "), options.json));
  }
  writeStandardOutput(options.json ? jsonOf(library) : listAll(library));
}

}  // namespace

void addPatternsCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<PatternsOptions>();
  CLI::App& command = *app.add_subcommand("patterns", translated(description));
  command.footer(translated(introduction) + translated(examples));
  addArgument(command, "NAME", options->name, message("The pattern's name, in one word or several"))
      .required(false);
  addOption(command, "--library", options->library, message("Read patterns from a JSON file"),
            "FILE");
  addFlag(command, "--json", options->json, message("Write a library in JSON"));
  command.callback([options, &action] { action = [options] { showPatterns(*options); }; });
}

}  // namespace zyndle
