#include "zyndle/jam_command.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Desktop/ascii_text.h"
#include "Desktop/midi_file.h"
#include "Desktop/synthesizer.h"
#include "Tonelake/accompaniment/accompaniment.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/connected_shapes.h"
#include "zyndle/host.h"
#include "zyndle/key_chords.h"
#include "zyndle/number_option.h"
#include "zyndle/output.h"
#include "zyndle/pattern_names.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::Accompaniment;
using tonelake::Chord;
using tonelake::PatternLibrary;
using tonelake::WholeNumber;

constexpr const char* description = message("Play a row of chords as music");

constexpr const char* introduction =
    message(R"(A guitar plays the chords, a bar each, in one of the ways that zyndle patterns
lists, and bass and drums play what goes with it. The shapes are those of zyndle
connect.

The name of the FILE tells its kind: .mid for notes, .wav for sound; - writes
the notes to standard output. Sound and --play need fluidsynth and a soundfont:
apt-get install fluidsynth fluid-soundfont-gm

)");

constexpr const char* examples = message(R"(Examples:
  zyndle jam "I-V-vi-IV" --key G -o song.mid
  zyndle jam "C G/B Am F" --style "Travis Alternation" --play
  zyndle jam "Dm7 G7 Cmaj7" --style "Bossa Nova" --tempo 120 --play
  zyndle jam "G D Em C" --style "Rolling Six" --drums none --bars 16 -o song.wav
  zyndle jam "A D E" --complexity 3 --library mine.json --play)");

constexpr const char* defaultStyle = "Campfire Strum";
constexpr const char* nobody = "none";

constexpr WholeNumber defaultTempo = 92;
constexpr WholeNumber defaultBars = 8;
constexpr WholeNumber defaultComplexity = 1;
constexpr WholeNumber highestComplexity = 255;

// Of each chord only its best shapes, which are full: without a limit the hand moves least over
// shapes of three or four strings, and a jam wants to be heard.
constexpr WholeNumber shapesOfChord = 4;

struct JamOptions {
  std::vector<std::string> chords;
  std::optional<std::string> key;
  std::string style = defaultStyle;
  std::optional<std::string> bass;
  std::optional<std::string> drums;
  std::optional<std::string> complexity;
  std::optional<std::string> tempo;
  std::optional<std::string> bars;
  std::optional<std::string> library;
  std::optional<std::string> soundfont;
  std::optional<std::string> file;
  bool noGuitar = false;
  bool play = false;
  bool ascii = false;
};

enum class FileKind { none, midi, wav };

FileKind readFileKind(const JamOptions& options) {
  if (!options.file && !options.play) {
    refuse(translated("say where the music goes, with {0} or {1}", "-o FILE", "--play"));
  }
  if (!options.file) return FileKind::none;
  const std::string name = tonelake::inSmallLetters(*options.file);
  if (name == "-" || name.ends_with(".mid") || name.ends_with(".midi")) return FileKind::midi;
  if (name.ends_with(".wav")) return FileKind::wav;
  refuse(translated("{0} {1} ends neither in .mid nor in .wav", "-o",
                    tonelake::quoted(*options.file)));
}

// The pattern of a name. A CommandError that tells the nearest names when there is none.
template <typename Pattern>
const Pattern& readPattern(const std::string& option, const std::vector<Pattern>& patterns,
                           const std::string& name) {
  if (const Pattern* found = findPattern(patterns, name)) return *found;
  std::vector<std::string> names;
  addNames(names, patterns);
  // TRANSLATORS: an option and a name that its values lack: there is no --bass "Walkin".
  refuse(translated("there is no {0} {1}", option, tonelake::quoted(name)) +
         describeNearest(name, names));
}

// What bass or drums play: what was asked for, else what is linked to the arpeggio.
template <typename Pattern>
std::optional<Pattern> readPart(const std::string& option, const std::vector<Pattern>& patterns,
                                const std::optional<std::string>& name, const Pattern* linked,
                                tonelake::TimeSignature timeSignature) {
  if (!name) return linked == nullptr ? std::nullopt : std::optional<Pattern>(*linked);
  if (*name == nobody) return std::nullopt;
  const Pattern& pattern = readPattern(option, patterns, *name);
  if (pattern.timeSignature != timeSignature) {
    // TRANSLATORS: time signatures: --bass "Waltz Bass" is in 3/4, the style in 4/4.
    refuse(translated("{0} {1} is in {2}, the style in {3}", option, tonelake::quoted(pattern.name),
                      tonelake::rawValue(pattern.timeSignature),
                      tonelake::rawValue(timeSignature)));
  }
  return pattern;
}

Accompaniment readAccompaniment(const JamOptions& options, const std::vector<Chord>& chords) {
  const PatternLibrary library = readLibrary(options.library);
  const auto& arpeggio = readPattern("--style", library.arpeggios.sequences, options.style);
  const WholeNumber complexity =
      readNumber("--complexity", options.complexity, defaultComplexity, 0, highestComplexity);
  Accompaniment piece{{}, arpeggio, std::nullopt, std::nullopt, defaultTempo, defaultBars};
  piece.bass = readPart("--bass", library.basses.bassPatterns, options.bass,
                        tonelake::chooseBass(arpeggio, complexity), arpeggio.timeSignature);
  piece.drums = readPart("--drums", library.drums.drumPatterns, options.drums,
                         tonelake::chooseDrums(arpeggio, complexity), arpeggio.timeSignature);
  piece.tempo = readNumber("--tempo", options.tempo, defaultTempo, tonelake::slowestTempo,
                           tonelake::fastestTempo);
  const auto once = static_cast<WholeNumber>(chords.size());
  piece.bars =
      readNumber("--bars", options.bars, std::max(defaultBars, std::min(once, tonelake::mostBars)),
                 1, tonelake::mostBars);
  const auto voicings = connectShapes(chords, Instrument(), shapesOfChord);
  for (std::size_t i = 0; i < chords.size(); ++i) {
    piece.chords.push_back({chords[i], voicings[i].position});
  }
  return piece;
}

// "C major x32010": frets above the ninth are set apart, "x x 10 12 12 11".
std::string shapeText(const tonelake::ChordShape& shape) {
  const auto& frets = shape.position.position;
  const bool isHigh = std::any_of(frets.begin(), frets.end(), [](int fret) { return fret > 9; });
  std::string text;
  for (const int fret : frets) {
    if (isHigh && !text.empty()) text += ' ';
    text += fret < 0 ? "x" : std::to_string(fret);
  }
  return tonelake::Chords::getShortestTitleForChord(shape.chord) + " " + text;
}

std::string nameOf(const auto& pattern) {
  return pattern ? printable(pattern->name) : nobody;
}

// To the nearest.
WholeNumber secondsOf(const tonelake::Performance& performance) {
  constexpr WholeNumber secondsPerMinute = 60;
  const WholeNumber crotchets = performance.length / tonelake::ticksPerCrotchet;
  return (crotchets * secondsPerMinute + performance.tempo / 2) / performance.tempo;
}

std::string describeLength(const Accompaniment& piece, WholeNumber seconds) {
  // TRANSLATORS: a length, any of the numbers may be 1: "8 bars of 4/4 at 92: 21 seconds", where 92
  // is the tempo.
  return translated("{0} bars of {1} at {2}: {3} seconds", piece.bars,
                    tonelake::rawValue(piece.arpeggio.timeSignature), piece.tempo, seconds);
}

std::string summary(const Accompaniment& piece, WholeNumber seconds) {
  std::vector<std::string> shapes;
  for (const auto& shape : piece.chords) shapes.push_back(shapeText(shape));
  return labelledRow(translated("Style"), {printable(piece.arpeggio.name)}) +
         labelledRow(translated("Bass"), {nameOf(piece.bass)}) +
         labelledRow(translated("Drums"), {nameOf(piece.drums)}) +
         labelledRow(translated("Length"), {describeLength(piece, seconds)}) +
         labelledRow(translated("Shapes"), shapes);
}

desktop::Synthesizer readSynthesizer(const JamOptions& options) {
  std::string problem;
  const auto synthesizer = desktop::findSynthesizer(options.soundfont, problem);
  if (!synthesizer) fail(problem);
  return *synthesizer;
}

void makeSound(const JamOptions& options, const desktop::Synthesizer& synthesizer, FileKind kind,
               const std::string& midi, WholeNumber seconds) {
  constexpr WholeNumber secondsToDieAway = 5;
  std::string problem;
  if (kind == FileKind::wav) {
    std::string wav;
    problem =
        desktop::renderMidi(synthesizer, midi, static_cast<int>(seconds + secondsToDieAway), wav);
    if (problem.empty()) writeFile(*options.file, wav);
  }
  if (problem.empty() && options.play) problem = desktop::playMidi(synthesizer, midi);
  if (!problem.empty()) fail(problem);
}

void jam(const JamOptions& options) {
  const FileKind kind = readFileKind(options);
  const bool writesToOutput = options.file == "-";
  installHost(writesToOutput);
  const Accompaniment piece =
      readAccompaniment(options, readSongChords(options.chords, options.key));
  std::optional<desktop::Synthesizer> synthesizer;
  if (options.play || kind == FileKind::wav) synthesizer = readSynthesizer(options);
  tonelake::Performance performance = tonelake::perform(piece);
  if (options.noGuitar) performance.guitar.clear();
  const std::string midi = desktop::midiFile(performance, tonelake::join(options.chords, " "));
  if (kind == FileKind::midi) writeFile(*options.file, midi);
  const WholeNumber seconds = secondsOf(performance);
  const std::string text = summary(piece, seconds);
  if (!writesToOutput) writeStandardOutput(options.ascii ? desktop::toAscii(text) : text);
  if (synthesizer) makeSound(options, *synthesizer, kind, midi, seconds);
}

}  // namespace

void addJamCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<JamOptions>();
  CLI::App& command = *app.add_subcommand("jam", translated(description));
  command.footer(translated(introduction) + translated(examples));
  addArgument(command, "CHORDS", options->chords,
              message("Names of chords or Roman numerals, a bar each"));
  addOption(command, "--key", options->key, message("The key (C, or A minor)"), "KEY");
  addOption(command, "--style", options->style, message("A way to pick or strum (Campfire Strum)"),
            "NAME");
  addOption(command, "--bass", options->bass, message("A bass line, or none"), "NAME");
  addOption(command, "--drums", options->drums, message("A groove, or none"), "NAME");
  addOption(command, "--complexity", options->complexity,
            message("How busy bass and drums may be (1)"), "N");
  addOption(command, "--tempo", options->tempo, message("Crotchets a minute (92)"), "N");
  addOption(command, "--bars", options->bars, message("The length (8, or one for each chord)"),
            "N");
  addOption(command, "--library", options->library, message("Read patterns from a JSON file"),
            "FILE");
  addOption(command, "-o,--output", options->file, message("Write a .mid or a .wav file"), "FILE");
  addOption(command, "--soundfont", options->soundfont, message("The sounds to play with"), "FILE");
  addFlag(command, "--no-guitar", options->noGuitar, message("Leave the guitar to you"));
  addFlag(command, "--play", options->play, message("Play it aloud"));
  addFlag(command, "--ascii", options->ascii, message("Write ASCII characters only"));
  command.callback([options, &action] { action = [options] { jam(*options); }; });
}

}  // namespace zyndle
