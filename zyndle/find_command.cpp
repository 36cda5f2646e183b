#include "zyndle/find_command.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Tonelake/chords/chord_json.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/chords/inversion.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/spelling_tables.h"
#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/drawing.h"
#include "zyndle/found_chords.h"
#include "zyndle/fret_list.h"
#include "zyndle/host.h"
#include "zyndle/instrument_options.h"
#include "zyndle/note_name.h"
#include "zyndle/number_option.h"
#include "zyndle/output_options.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::Note;
using tonelake::WholeNumber;

constexpr const char* description = message("Name the chord that some notes or a shape are");

constexpr const char* introduction =
    message(R"(The first note is the bass. Where no chord has exactly these notes, the nearest
are told, with what they lack or have besides: people often leave out a note.

A shape is a fret for each string, lowest string first, x for a muted one.

)");

constexpr const char* examples = message(R"(
Examples:
  zyndle find "E, G, C"
  zyndle find C Eb Gb A
  zyndle find "C E Bb" --limit 20
  zyndle find --frets x32010
  zyndle find --frets "8 10 10 9 8 8"
  zyndle find --frets 000232 --tuning DADGAD)");

constexpr WholeNumber defaultLimit = 8;

struct FindOptions {
  std::vector<std::string> notes;
  std::optional<std::string> frets;
  InstrumentOptions instrument;
  std::optional<std::string> limit;
  OutputOptions output;
};

struct Answer {
  std::vector<std::string> names;  // of the notes that sound, the bass first
  std::vector<FoundChord> exact;
  std::vector<FoundChord> near;  // only where none is exact
};

std::vector<Note> notesOnStrings(const tonelake::Frets& frets, const Instrument& instrument) {
  const tonelake::TuningNames open = soundingStrings(instrument);
  std::vector<Note> notes;
  for (std::size_t string = 0; string < frets.size(); ++string) {
    if (frets[string] == tonelake::mutedString) continue;
    const int pitch = tonelake::noteIndexByName().at(open[string]) + frets[string];
    notes.push_back(Note::sharpOfPitchClass(pitch));
  }
  return notes;
}

// A note of a shape has no spelling of its own: the chord lends it the one of its tone.
std::string spelledBy(const FoundChord& found, Note note) {
  for (const std::string& tone : found.tones) {
    const std::optional<Note> spelled = Note::fromRawValue(tone);
    if (spelled && spelled->pitchClass() == note.pitchClass()) return tone;
  }
  return std::string(note.rawValue());
}

Answer findAnswer(const std::vector<Note>& sounding, bool areSpelled) {
  const SoughtNotes sought{eachPitchOnce(sounding), areSpelled};
  if (sought.notes.size() < 2) {
    refuse(areSpelled ? translated("{} has fewer than two different notes", "NOTES")
                      : translated("{} sounds fewer than two different notes", "--frets"));
  }
  Answer answer;
  answer.exact = findExactly(sought);
  if (answer.exact.empty()) answer.near = findNearly(sought);
  const std::vector<FoundChord>& found = answer.exact.empty() ? answer.near : answer.exact;
  for (const Note note : sounding) {
    answer.names.push_back(areSpelled || found.empty() ? std::string(note.rawValue())
                                                       : spelledBy(found.front(), note));
  }
  return answer;
}

tonelake::json::Value encode(const std::vector<FoundChord>& answers) {
  tonelake::json::Value list = tonelake::json::Value::array();
  for (const FoundChord& found : answers) {
    tonelake::json::Value& entry = list.emplace_back();
    entry["chord"] = tonelake::encodeChord(found.chord);
    entry["title"] = tonelake::Chords::getTitleForChord(found.chord);
    entry["notes"] = found.tones;
    entry["missing"] = found.missing;
    entry["extra"] = found.extra;
  }
  return list;
}

std::string jsonOf(const Answer& answer) {
  tonelake::json::Value object;
  object["notes"] = answer.names;
  object["exact"] = encode(answer.exact);
  object["near"] = encode(answer.near);
  return tonelake::json::write(object) + '\n';
}

// "G", "G and B♭", "G, B♭ and D".
std::string enumerate(std::vector<std::string> names) {
  if (names.size() < 2) return tonelake::join(names, "");
  const std::string last = names.back();
  names.pop_back();
  // TRANSLATORS: notes, {1} the last of them: "G, B♭ and D".
  return translated("{0} and {1}", tonelake::join(names, ", "), last);
}

std::string sentenceOf(const FoundChord& found) {
  const std::string title = tonelake::Chords::getTitleForChord(found.chord);
  const std::string missing = enumerate(found.missing);
  const std::string extra = enumerate(found.extra);
  // TRANSLATORS: a chord and notes that it has but that are not played: "C6 without E and G".
  if (extra.empty()) return translated("{0} without {1}", title, missing);
  // TRANSLATORS: a chord and notes that are played besides its own: "C6 plus B♭".
  if (missing.empty()) return translated("{0} plus {1}", title, extra);
  return translated("{0} without {1} plus {2}", title, missing, extra);
}

std::string textOf(const Answer& answer) {
  if (answer.exact.empty()) {
    if (answer.near.empty()) {
      return translated("No chord has exactly these notes, and none comes near.") + '\n';
    }
    std::string text = translated("No chord has exactly these notes; the nearest:") + '\n';
    for (const FoundChord& found : answer.near) text += bulletedSentence(sentenceOf(found));
    return text;
  }
  std::vector<std::vector<std::string>> rows;
  for (const FoundChord& found : answer.exact) {
    const auto inversion = static_cast<tonelake::Inversion::Case>(found.chord.variant);
    rows.push_back({tonelake::Chords::getTitleForChord(found.chord),
                    tonelake::join(found.tones, ", "),
                    tonelake::Inversion(inversion).localizedName()});
  }
  return alignedRows(rows);
}

std::string headingOf(const FindOptions& options, const Answer& answer,
                      const Instrument& instrument) {
  const DrawingStyle style = textStyle(options.output);
  const std::string names = tonelake::join(answer.names, ", ");
  if (!options.frets) return emphasized(names, style) + "\n\n";
  return emphasized(*options.frets, style) + '\n' + labelledRow(translated("Notes"), answer.names) +
         instrumentRows(instrument) + '\n';
}

void showFound(const FindOptions& options) {
  const WholeNumber limit = readNumber("--limit", options.limit, defaultLimit, 1);
  if (options.frets.has_value() != options.notes.empty()) {
    refuse(translated(options.frets ? message("{0} and {1} cannot both be given")
                                    : message("{0} or {1} is missing"),
                      "NOTES", "--frets"));
  }
  const bool hasInstrument = options.instrument.tuning || options.instrument.capo;
  if (hasInstrument && !options.frets) {
    refuse(translated("{0} and {1} are for shapes, with {2}", "--tuning", "--capo", "--frets"));
  }
  const Instrument instrument = readInstrument(options.instrument);
  installHost(options.output.isForPrograms());
  Answer answer = options.frets
                      ? findAnswer(notesOnStrings(readFrets(*options.frets), instrument), false)
                      : findAnswer(readNoteNames(options.notes), true);
  answer.near.resize(std::min(answer.near.size(), static_cast<std::size_t>(limit)));
  writeText(options.output, options.output.json
                                ? jsonOf(answer)
                                : headingOf(options, answer, instrument) + textOf(answer));
}

}  // namespace

void addFindCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<FindOptions>();
  CLI::App& command = *app.add_subcommand("find", translated(description));
  command.footer(translated(introduction) + instrumentHelp() + translated(examples));
  addArgument(command, "NOTES", options->notes, message("The names of the notes, the bass first"))
      .required(false);
  addOption(command, "--frets", options->frets, message("A shape in place of notes"), "FRETS");
  addInstrumentOptions(command, options->instrument);
  addOption(command, "--limit", options->limit, message("Nearest chords to show, at most (8)"),
            "N");
  addFormatOptions(command, options->output);
  command.callback([options, &action] { action = [options] { showFound(*options); }; });
}

}  // namespace zyndle
