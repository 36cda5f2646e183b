// Compares our fingers with published ones:
//
//   finger_evaluation SHAPES
//
// SHAPES holds one JSON record a line, in standard tuning, lowest string first:
//
//   {"root": "C", "chordType": "major", "position": [-1,3,2,0,1,0], "fingering": [0,3,2,0,1,0]}
//
// Published fingers that break a rule of ours cannot be met, so they are counted and left out of
// the comparison. Shapes that differ are gathered in families: the same shape somewhere else on
// the neck is one family, and its frets are shown counted from the lowest pressed one.

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/fingering/chord_engine.h"
#include "Tonelake/foundation/json.h"
#include "tests/support/finger_checker.h"

namespace tonelake {
namespace {

struct PublishedShape {
  std::string root;
  std::string chordType;
  Frets frets{};
  Fingers fingers{};
};

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

std::array<std::int8_t, Tuning::stringCount> readStrings(const json::Node& node, int lowest,
                                                         int highest) {
  std::array<std::int8_t, Tuning::stringCount> strings{};
  if (node.size() != strings.size()) node.fail("expected a number for each of six strings");
  for (std::size_t i = 0; i < strings.size(); ++i) {
    strings[i] = static_cast<std::int8_t>(node.element(i).wholeNumber(lowest, highest));
  }
  return strings;
}

PublishedShape readShape(const std::string& line) {
  constexpr int highestFret = 36;
  const json::Value value = json::parse(line);
  const json::Node record(value);
  return {record.member("root").text(), record.member("chordType").text(),
          readStrings(record.member("position"), mutedString, highestFret),
          readStrings(record.member("fingering"), 0, littleFinger)};
}

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
  std::ifstream file(path);
  if (!file) {
    fmt::print(stderr, "finger_evaluation: cannot read {}\n", path);
    return 1;
  }
  Comparison comparison;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    try {
      if (!line.empty()) compare(readShape(line), comparison);
    } catch (const json::DecodingError& error) {
      fmt::print(stderr, "finger_evaluation: {}:{}: {}\n", path, number, error.what());
      return 1;
    }
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
