// How long the shapes of all offered chords take: searched, judged by the plain checker, read
// back from a settings store. Times vary with the machine; ratios hold.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <unistd.h>

#include "Desktop/sqlite_settings_store.h"
#include "Desktop/write_behind_store.h"
#include "Tonelake/fingering/chord_engine.h"
#include "benchmarks/allocation_counter.h"
#include "benchmarks/measure.h"
#include "benchmarks/offered_chords.h"
#include "tests/support/plain_shape_checker.h"

namespace {

using namespace tonelake;  // NOLINT(google-build-using-namespace)
using benchmarks::measure;
using benchmarks::Timing;

struct OfferedChord {
  std::string root;
  WholeNumbers intervals;
};

std::vector<OfferedChord> offeredChords() {
  std::vector<OfferedChord> chords;
  for (const Chord& chord : benchmarks::offeredChords()) {
    chords.push_back(
        {std::string(chord.rootNote.rawValue()), Chords::getChordData(chord.chordType)->notes});
  }
  return chords;
}

// A name in the system's folder for such files; what lies there is gone at the end.
struct TemporaryFile {
  TemporaryFile() = default;
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    for (const char* suffix : {"", "-wal", "-shm"}) std::filesystem::remove(path + suffix);
  }

  const std::string path = std::filesystem::temp_directory_path() /
                           ("shape_benchmark-" + std::to_string(::getpid()) + ".sqlite");
};

std::shared_ptr<SettingsStore> openDatabase(const std::string& path) {
  auto [store, problem] = desktop::SqliteSettingsStore::open(
      path, makeStreamDiagnostics(DiagnosticStream::standardError));
  if (store == nullptr) {
    std::fprintf(stderr, "%s\n", problem.c_str());
    std::exit(EXIT_FAILURE);
  }
  // Kept in few transactions, so that filling the file does not take longer than all the rest.
  return desktop::makeWriteBehindStore(std::move(store));
}

void print(const char* what, const Timing& timing, std::size_t chords) {
  std::printf("%-34s %9.2f ms  (least %.2f, most %.2f)  %8.2f µs a chord\n", what, timing.median,
              timing.least, timing.most, 1000 * timing.median / static_cast<double>(chords));
}

}  // namespace

int main() {
  const auto chords = offeredChords();
  std::size_t shapes = 0;
  const auto search = [&] {
    shapes = 0;
    for (const OfferedChord& chord : chords) {
      shapes +=
          ChordEngine::searchChordShapes(chord.root, chord.intervals, -1, Tuning::standard).size();
    }
  };
  const auto judge = [&] {
    for (const OfferedChord& chord : chords) {
      testing::generatePlainly(chord.root, chord.intervals, -1, Tuning::standard);
    }
  };
  const auto readBackFrom = [&](const std::shared_ptr<SettingsStore>& store) {
    Platform platform;
    platform.standardSettings = store;
    return [&chords, engine = ChordEngine(platform)] {
      for (const OfferedChord& chord : chords) {
        engine.generateChordShapes(chord.root, chord.intervals, -1, Tuning::standard);
      }
    };
  };
  const TemporaryFile file;

  const Timing searched = measure(21, search);
  const std::size_t before = benchmarks::allocationCount();
  search();
  const std::size_t allocations = benchmarks::allocationCount() - before;
  const Timing fromMemory = measure(21, readBackFrom(makeMemorySettingsStore()));
  const Timing fromFile = measure(21, readBackFrom(openDatabase(file.path)));
  const Timing judged = measure(1, judge);

  const auto count = static_cast<double>(chords.size());
  std::printf("%zu chords in standard tuning, %zu shapes with fingers\n", chords.size(), shapes);
  print("searched", searched, chords.size());
  print("read back from memory", fromMemory, chords.size());
  print("read back from a database file", fromFile, chords.size());
  print("plain checker", judged, chords.size());
  std::printf("allocations a chord, searched      %9.2f\n",
              static_cast<double>(allocations) / count);
  std::printf("plain checker / searched           %9.1f\n", judged.median / searched.median);
  std::printf("read back from memory / searched   %9.2f\n", fromMemory.median / searched.median);
  std::printf("read back from a file / searched   %9.2f\n", fromFile.median / searched.median);
}
