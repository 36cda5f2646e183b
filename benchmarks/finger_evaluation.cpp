// Compares our fingers with published ones:
//
//   finger_evaluation SHAPES
//
// SHAPES is a file as readPublishedShapes takes it.
//
// Published fingers that break a rule of ours cannot be met, so they are counted and left out of
// the comparison. Shapes that differ are gathered in families: the same shape somewhere else on
// the neck is one family, and its frets are shown counted from the lowest pressed one.

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/fingering/chord_engine.h"
#include "benchmarks/published_shapes.h"
#include "tests/support/finger_checker.h"

namespace tonelake {
namespace {

using benchmarks::PublishedShape;

// Published shapes that differ from ours in the same way.
struct Family {
  int size = 0;
  PublishedShape example;
};
using Families = std::map<std::string, Family>;

struct Comparison {
  int shapes = 0;
  int found = 0;  // by the search for shapes, whatever their fingers
  int allowed = 0;
  int equal = 0;
  std::map<std::string, int> brokenRules;
  std::map<std::string, int> kinds;
  Families families;
};

std::string show(const Fingers& fingers) {
  std::string text;
  for (const int finger : fingers) text += fmt::format("{}", finger);
  return text;
}

// Frets counted from the lowest pressed one, which is 1: "x 3 2 0 1 0".
std::string showFromLowest(const Frets& frets) {
  int lowest = 0;
  for (const int fret : frets) {
    if (fret > 0) lowest = lowest == 0 ? fret : std::min(lowest, fret);
  }
  std::string text;
  for (const int fret : frets) {
    text += fret < 0 ? "x " : fmt::format("{} ", fret > 0 ? fret - lowest + 1 : fret);
  }
  return text;
}

std::size_t fingersUsed(const Fingers& fingers) {
  std::set<int> used(fingers.begin(), fingers.end());
  used.erase(0);
  return used.size();
}

std::string kindOfDifference(const Fingers& published, const Fingers& ours) {
  if (fingersUsed(ours) < fingersUsed(published)) return "we lay a finger over several strings";
  if (fingersUsed(ours) > fingersUsed(published)) return "we put a finger on each string";
  return "as many fingers, other numbers";
}

bool isFoundBySearch(const PublishedShape& shape) {
  const ChordData* type = ChordDataManager::shared().chordData(shape.chordType);
  if (type == nullptr) return false;
  const auto found = ChordEngine::searchChordShapes(shape.root, type->notes, -1, Tuning::standard);
  return std::any_of(found.begin(), found.end(), [&](const ChordPosition& position) {
    return position.position.equals(shape.frets);
  });
}

void compare(const PublishedShape& shape, Comparison& comparison) {
  ++comparison.shapes;
  if (isFoundBySearch(shape)) ++comparison.found;
  const std::string brokenRule = testing::brokenFingerRule(shape.frets, shape.fingers);
  if (!brokenRule.empty()) {
    ++comparison.brokenRules[brokenRule];
    return;
  }
  ++comparison.allowed;
  const Fingers ours = findFingers(shape.frets).value_or(Fingers{});
  if (ours == shape.fingers) {
    ++comparison.equal;
    return;
  }
  ++comparison.kinds[kindOfDifference(shape.fingers, ours)];
  const std::string name = fmt::format("{} published {}, ours {}", showFromLowest(shape.frets),
                                       show(shape.fingers), show(ours));
  Family& family = comparison.families[name];
  if (++family.size == 1) family.example = shape;
}

void printCounts(const char* title, const std::map<std::string, int>& counts) {
  fmt::print("\n{}\n", title);
  for (const auto& [what, count] : counts) fmt::print("{:5}  {}\n", count, what);
}

void printLargest(const Families& families, std::size_t most) {
  std::vector<std::pair<std::string, Family>> bySize(families.begin(), families.end());
  std::stable_sort(bySize.begin(), bySize.end(), [](const auto& one, const auto& other) {
    return one.second.size > other.second.size;
  });
  bySize.resize(std::min(bySize.size(), most));
  fmt::print("\nLargest families of {}\n", families.size());
  for (const auto& [name, family] : bySize) {
    fmt::print("{:5}  {}  (such as {} {})\n", family.size, name, family.example.root,
               family.example.chordType);
  }
}

void print(const Comparison& comparison) {
  const auto share = [](int part, int whole) { return whole == 0 ? 0 : 100.0 * part / whole; };
  constexpr std::size_t familiesShown = 20;
  fmt::print("shapes                {:5}\n", comparison.shapes);
  fmt::print("found by the search   {:5}  {:.1f} %\n", comparison.found,
             share(comparison.found, comparison.shapes));
  fmt::print("allowed by the rules  {:5}  {:.1f} %\n", comparison.allowed,
             share(comparison.allowed, comparison.shapes));
  fmt::print("fingers equal         {:5}  {:.1f} % of those allowed\n", comparison.equal,
             share(comparison.equal, comparison.allowed));
  printCounts("Rules that published fingers break", comparison.brokenRules);
  printCounts("Kinds of difference", comparison.kinds);
  printLargest(comparison.families, familiesShown);
}

int run(const std::string& path) {
  Comparison comparison;
  try {
    for (const PublishedShape& shape : benchmarks::readPublishedShapes(path)) {
      compare(shape, comparison);
    }
  } catch (const std::runtime_error& error) {
    fmt::print(stderr, "finger_evaluation: {}\n", error.what());
    return 1;
  }
  print(comparison);
  return 0;
}

}  // namespace
}  // namespace tonelake

int main(int count, char** arguments) {
  if (count != 2) {
    fmt::print(stderr, "usage: finger_evaluation SHAPES\n");
    return 2;
  }
  return tonelake::run(arguments[1]);
}
