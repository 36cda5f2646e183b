// comparison [ZYNDLE]: what everything costs on this machine, as a table in Markdown: in the
// library, and as whole processes of the program ZYNDLE. Times vary with the machine and with what
// else it does; the ratios, each of two things measured in this run, hold.

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "Desktop/cairo_renderer.h"
#include "Desktop/svg_renderer.h"
#include "TodayChordExtension/diagram/diagram_scene.h"
#include "Tonelake/chords/chord_dictionary.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/fingering/chord_engine.h"
#include "Tonelake/fingering/voicings.h"
#include "Tonelake/foundation/text.h"
#include "benchmarks/measure.h"
#include "benchmarks/offered_chords.h"
#include "benchmarks/process_cost.h"
#include "tests/support/plain_chord_finder.h"
#include "tests/support/plain_shape_checker.h"

namespace {

using namespace tonelake;  // NOLINT(google-build-using-namespace)
using benchmarks::measure;
using benchmarks::measureProcess;
using benchmarks::ProcessorClock;

constexpr int runs = 21;

// Microseconds that `work` takes for each element.
template <typename List, typename Work>
double microsecondsEach(int times, const List& list, Work work) {
  const auto all = [&] {
    for (const auto& element : list) work(element);
  };
  return 1000 * measure<ProcessorClock>(times, all).median / static_cast<double>(list.size());
}

void printRow(const char* what, double microseconds, const std::string& beside = "") {
  std::printf("| %s | %.2f µs | %s |\n", what, microseconds, beside.c_str());
}

std::string times(double ratio, const char* other) {
  char text[80];
  std::snprintf(text, sizeof text, "%.3g times %s", ratio, other);
  return text;
}

std::size_t searchShapes(const Chord& chord) {
  return ChordEngine::searchChordShapes(chord.rootNote.rawValue(),
                                        Chords::getChordData(chord.chordType)->notes, -1,
                                        Tuning::standard)
      .size();
}

void compareSearches(const std::vector<Chord>& chords) {
  const double shapes = microsecondsEach(runs, chords, searchShapes);
  const double plain = microsecondsEach(1, chords, [](const Chord& chord) {
    testing::generatePlainly(std::string(chord.rootNote.rawValue()),
                             Chords::getChordData(chord.chordType)->notes, -1, Tuning::standard);
  });
  const double voicings = microsecondsEach(
      runs, chords, [](const Chord& chord) { Voicings::findVoicings(chord, Tuning::standard); });
  printRow("all shapes of a chord, with fingers", shapes,
           "the rules to the letter: " + times(plain / shapes, "that"));
  printRow("all voicings of a chord, in order", voicings,
           times(voicings / shapes, "the search for shapes"));
}

void compareNames(const std::vector<Chord>& chords) {
  std::vector<std::string> names;
  std::vector<std::string> notes;
  for (const Chord& chord : chords) {
    names.push_back(Chords::getTitleForChord(chord));
    notes.push_back(join(Chords::getNotesOfChord(chord), ", "));
  }
  const auto& manager = ChordDataManager::shared();
  const double found =
      microsecondsEach(runs, notes, [&](const auto& list) { manager.findChordsMatching(list); });
  const testing::PlainChordFinder plainFinder;
  const double plain =
      microsecondsEach(1, notes, [&](const auto& list) { plainFinder.findMatching(list); });
  printRow("chords that some notes are or come near, of all", found,
           "without sets of pitches: " + times(plain / found, "that"));
  printRow("a chord's title", microsecondsEach(runs, chords, [](const Chord& chord) {
             Chords::getTitleForChord(chord);
           }));
  printRow("the chord of a title", microsecondsEach(runs, names, [](const std::string& name) {
             Chords::lookUpChord(name);
           }));
}

void compareDrawings() {
  todaychord::ChordView view;
  view.chord = *Chords::lookUpChord("F");
  view.position = {1, 3, 3, 2, 1, 1};
  view.fingering = {1, 3, 4, 2, 1, 1};
  const std::vector<todaychord::ChordView> views(20, view);
  const auto draw = [](const auto& shape) { return todaychord::drawDiagramCard(shape, "F", 160); };
  const double scene = microsecondsEach(runs, views, draw);
  const double svg =
      microsecondsEach(runs, views, [&](const auto& shape) { desktop::renderSvg(draw(shape)); });
  const double png =
      microsecondsEach(runs, views, [&](const auto& shape) { desktop::renderPng(draw(shape), 3); });
  printRow("a diagram as plain shapes", scene);
  printRow("the same as SVG", svg, times(svg / scene, "the shapes"));
  printRow("the same as PNG, 480 pixels wide", png, times(png / scene, "the shapes"));
}

void compareProcesses(const std::string& zyndle) {
  const auto nothing = measureProcess(runs, {"true"});
  const auto picture = (std::filesystem::temp_directory_path() / "comparison.png").string();
  const std::vector<std::vector<std::string>> calls = {
      {"--version"},
      {"today"},
      {"voicings", "C/E"},
      {"widget", "ZyndleChordWidget"},
      {"widget", "ZyndleChordWidget", "-o", picture}};
  std::printf("\n| whole process | time | beside `true` | memory |\n|---|---|---|---|\n");
  for (const auto& call : calls) {
    std::vector<std::string> arguments{zyndle};
    arguments.insert(arguments.end(), call.begin(), call.end());
    const auto cost = measureProcess(runs, arguments);
    std::printf("| `zyndle %s%s` | %.1f ms | %.1f times | %.1f MB |\n", call.front().c_str(),
                call.size() > 2 ? ", as PNG" : "", cost.time.median,
                cost.time.median / nothing.time.median, cost.peakMemory);
  }
  std::filesystem::remove(picture);
}

}  // namespace

int main(int argc, char** argv) {
  const auto chords = benchmarks::offeredChords();
  std::printf("| in the library | time | |\n|---|---|---|\n");
  compareSearches(chords);
  compareNames(chords);
  compareDrawings();
  if (argc > 1) compareProcesses(argv[1]);
}
