// How long the voicings of all offered chords take, root in the bass, beside the shapes of
// the generator: found, given fingers, judged and sorted, on one processor. Times vary with the
// machine; ratios hold.

#include <cstdio>
#include <string>
#include <vector>

#include "Tonelake/fingering/chord_engine.h"
#include "Tonelake/fingering/voicings.h"
#include "benchmarks/allocation_counter.h"
#include "benchmarks/measure.h"
#include "benchmarks/offered_chords.h"

namespace {

using namespace tonelake;  // NOLINT(google-build-using-namespace)
using benchmarks::measure;
using benchmarks::ProcessorClock;
using benchmarks::Timing;

struct Result {
  Timing timing;
  std::size_t shapes = 0;
  std::size_t allocations = 0;
};

template <typename Find>
Result run(const std::vector<Chord>& chords, Find find) {
  constexpr int runs = 21;
  Result result;
  const auto findAll = [&] {
    result.shapes = 0;
    for (const Chord& chord : chords) result.shapes += find(chord);
  };
  result.timing = measure<ProcessorClock>(runs, findAll);
  const std::size_t before = benchmarks::allocationCount();
  findAll();
  result.allocations = benchmarks::allocationCount() - before;
  return result;
}

void print(const char* what, const Result& result, std::size_t chords) {
  const auto count = static_cast<double>(chords);
  std::printf("%-38s %7.2f µs a chord (least %.2f, most %.2f)  %6.1f shapes  %4.1f allocations\n",
              what, 1000 * result.timing.median / count, 1000 * result.timing.least / count,
              1000 * result.timing.most / count, static_cast<double>(result.shapes) / count,
              static_cast<double>(result.allocations) / count);
}

}  // namespace

int main() {
  const auto chords = benchmarks::offeredChords();
  const Result generator = run(chords, [](const Chord& chord) {
    const std::string root(chord.rootNote.rawValue());
    const WholeNumbers& intervals = Chords::getChordData(chord.chordType)->notes;
    return ChordEngine::searchChordShapes(root, intervals, -1, Tuning::standard).size();
  });
  const Result voicings = run(chords, [](const Chord& chord) {
    return Voicings::findVoicings(chord, Tuning::standard).size();
  });
  const Result withOpenStrings = run(chords, [](const Chord& chord) {
    Voicings::VoicingOptions options;
    options.openStringsAboveFifthFret = true;
    return Voicings::findVoicings(chord, Tuning::standard, options).size();
  });
  std::printf("%zu chords in standard tuning\n", chords.size());
  print("generator", generator, chords.size());
  print("voicings", voicings, chords.size());
  print("voicings, open strings everywhere", withOpenStrings, chords.size());
  std::printf("voicings / generator %.2f, with open strings everywhere %.2f\n",
              voicings.timing.median / generator.timing.median,
              withOpenStrings.timing.median / generator.timing.median);
}
