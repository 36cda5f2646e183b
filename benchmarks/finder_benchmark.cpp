// How long it takes to find the chords that match some notes, over every set of three to five
// pitches, beside the plain checker. Times vary with the machine; ratios hold.

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/theory/spelling_tables.h"
#include "benchmarks/allocation_counter.h"
#include "benchmarks/measure.h"
#include "tests/support/plain_chord_finder.h"

namespace {

using namespace tonelake;  // NOLINT(google-build-using-namespace)
using benchmarks::measure;
using benchmarks::ProcessorClock;
using benchmarks::Timing;

std::vector<std::string> inputs() {
  std::vector<std::string> lists;
  for (unsigned set = 0; set < 1U << 12U; ++set) {
    std::string notes;
    int size = 0;
    for (std::size_t pitch = 0; pitch < 12; ++pitch) {
      if ((set >> pitch & 1U) == 0) continue;
      notes += std::string(notes.empty() ? "" : ", ").append(notesArrayFlatNotes[pitch]);
      ++size;
    }
    if (size >= 3 && size <= 5) lists.push_back(notes);
  }
  return lists;
}

// Microseconds of each input, one after the other, in ascending order.
template <typename Search>
std::vector<double> timesOf(const std::vector<std::string>& lists, Search search) {
  constexpr int repetitions = 50;
  std::vector<double> times;
  for (const std::string& notes : lists) {
    const Timing timing = measure<std::chrono::steady_clock>(5, [&] {
      for (int i = 0; i < repetitions; ++i) search(notes);
    });
    times.push_back(1000 * timing.median / repetitions);
  }
  std::sort(times.begin(), times.end());
  return times;
}

void print(const char* what, const std::vector<double>& times) {
  std::printf("%-10s %6.2f µs a search (least %.2f, most %.2f)\n", what, times[times.size() / 2],
              times.front(), times.back());
}

}  // namespace

int main() {
  const ChordDataManager& manager = ChordDataManager::shared();
  const std::vector<std::string> lists = inputs();
  const testing::PlainChordFinder plain;
  std::size_t found = 0;
  const auto matchAll = [&] {
    found = 0;
    for (const std::string& notes : lists) found += manager.findChordsMatching(notes).size();
  };
  const std::size_t before = benchmarks::allocationCount();
  matchAll();
  const std::size_t allocations = benchmarks::allocationCount() - before;
  const Timing searched = measure<ProcessorClock>(21, matchAll);
  const Timing judged = measure<ProcessorClock>(1, [&] {
    for (const std::string& notes : lists) plain.findMatching(notes);
  });

  const auto count = static_cast<double>(lists.size());
  std::printf("%zu lists of three to five notes, %.1f chords found and %.1f allocations each\n",
              lists.size(), static_cast<double>(found) / count,
              static_cast<double>(allocations) / count);
  print("matching", timesOf(lists, [&](const auto& notes) { manager.findChordsMatching(notes); }));
  print("exact", timesOf(lists, [&](const auto& notes) { manager.findChordsExact(notes); }));
  std::printf("plain checker / matching %.1f\n", judged.median / searched.median);
}
