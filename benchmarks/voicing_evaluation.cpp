// Compares the voicings that we find, and their order, with published shapes:
//
//   voicing_evaluation SHAPES
//
// SHAPES is a file as readPublishedShapes takes it. The lowest sounding string of a shape tells
// which tone of its chord is in the bass.
//
// A file rarely holds every shape that is published: a barre that it has for A♭ major and not for
// A major is no less known there. So the order is judged twice, by the file alone, and with its
// shapes without open strings counted wherever on the neck they stand for the same chord type.
// The second figure still misses every open shape that the file lacks.

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include <fmt/format.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/fingering/voicing_query.h"
#include "Tonelake/fingering/voicings.h"
#include "benchmarks/published_shapes.h"

namespace tonelake {
namespace {

using benchmarks::PublishedShape;
using Voicings::Voicing;
using Voicings::VoicingOptions;

constexpr int octave = 12;
constexpr std::array<int, Tuning::stringCount> standardPitches{4, 9, 2, 7, 11, 4};

int pitchOf(const Frets& frets, std::size_t string) {
  return standardPitches[string] + frets[string];
}

// The chord that a shape sounds, its bass among its tones; nothing for an unknown name or a shape
// whose bass is foreign to the chord.
std::optional<Chord> chordOf(const PublishedShape& shape) {
  const auto root = Note::fromRawValue(shape.root);
  const ChordData* data = Chords::getChordData(shape.chordType);
  if (!root || data == nullptr) return std::nullopt;
  std::size_t lowest = 0;
  while (lowest < shape.frets.size() && shape.frets[lowest] == mutedString) ++lowest;
  if (lowest == shape.frets.size()) return std::nullopt;
  const int bass = (pitchOf(shape.frets, lowest) - root->pitchClass() + octave) % octave;
  const auto tone = std::find_if(data->notes.begin(), data->notes.end(),
                                 [&](WholeNumber interval) { return interval % octave == bass; });
  if (tone == data->notes.end()) return std::nullopt;
  return Chord{*root, shape.chordType, tone - data->notes.begin()};
}

bool hasTheRightTones(const PublishedShape& shape, const Chord& chord) {
  const auto query = Voicings::makeVoicingQuery(chord, Tuning::standard, 0);
  PitchClassSet notes = 0;
  for (std::size_t string = 0; string < shape.frets.size(); ++string) {
    if (shape.frets[string] != mutedString) notes |= Voicings::noteAt(pitchOf(shape.frets, string));
  }
  return (notes & ~query->chordNotes) == 0 && (query->requiredNotes & ~notes) == 0;
}

bool isAmong(const std::vector<Voicing>& voicings, const Frets& frets) {
  return std::any_of(voicings.begin(), voicings.end(), [&](const Voicing& voicing) {
    return voicing.position.position.equals(frets);
  });
}

std::string show(const Frets& frets) {
  std::string text;
  for (const int fret : frets) text += fret < 0 ? "x " : fmt::format("{} ", fret);
  return text;
}

// What one set of options finds of the published shapes.
class Coverage {
 public:
  explicit Coverage(const VoicingOptions& options) : options_(options) {}

  void judge(const PublishedShape& shape, const Chord& chord) {
    const auto voicings = Voicings::findVoicings(chord, Tuning::standard, options_);
    ++shapes_;
    if (!isAmong(voicings, shape.frets)) {
      missed_.push_back(fmt::format("{}{} {}", show(shape.frets), shape.root, shape.chordType));
    }
  }

  void print(const char* title, std::size_t missedShown) const {
    const std::size_t found = shapes_ - missed_.size();
    fmt::print("{:<48} {:5}  {:.1f} %\n", title, found,
               100.0 * static_cast<double>(found) / static_cast<double>(shapes_));
    if (missed_.size() > missedShown) return;
    for (const std::string& shape : missed_) fmt::print("    not {}\n", shape);
  }

 private:
  VoicingOptions options_;
  std::size_t shapes_ = 0;
  std::vector<std::string> missed_;
};

// A shape counted from its lowest pressed fret; nothing when it has open strings.
std::optional<Frets> movable(Frets frets) {
  int lowest = 0;
  for (const int fret : frets) {
    if (fret == openString) return std::nullopt;
    if (fret > 0) lowest = lowest == 0 ? fret : std::min(lowest, fret);
  }
  for (auto& fret : frets) {
    if (fret > 0) fret = static_cast<std::int8_t>(fret - lowest);
  }
  return frets;
}

// How often what we put first is published.
class Order {
 public:
  void add(const PublishedShape& shape, const Chord& chord) {
    shapes_[{chord.rootNote.pitchClass(), chord.chordType, chord.variant}].insert(shape.frets);
    chords_.insert({{chord.rootNote.pitchClass(), chord.chordType, chord.variant}, chord});
    if (const auto frets = movable(shape.frets)) {
      movableShapes_[{chord.chordType, chord.variant}].insert(*frets);
    }
  }

  void print() const {
    Hits inFile;
    Hits movedToo;
    std::size_t voicings = 0;
    for (const auto& [key, chord] : chords_) {
      const auto found = Voicings::findVoicings(chord, Tuning::standard);
      voicings += found.size();
      count(found, inFile, [&, &key = key](const Frets& frets) { return isInFile(key, frets); });
      count(found, movedToo, [&, &key = key](const Frets& frets) {
        const auto shape = movable(frets);
        const auto moved = movableShapes_.find({std::get<1>(key), std::get<2>(key)});
        return isInFile(key, frets) ||
               (shape && moved != movableShapes_.end() && moved->second.contains(*shape));
      });
    }
    const auto chords = static_cast<double>(chords_.size());
    fmt::print("\nchords, each with its bass {:26}  {:.1f} voicings each\n", chords_.size(),
               static_cast<double>(voicings) / chords);
    print("in the file", inFile);
    print("in the file, or moved along the neck", movedToo);
  }

 private:
  using Key = std::tuple<int, std::string, WholeNumber>;  // root, type, bass
  struct Hits {
    int first = 0;
    int firstThree = 0;
  };

  bool isInFile(const Key& key, const Frets& frets) const {
    return shapes_.at(key).contains(frets);
  }

  template <typename IsPublished>
  static void count(const std::vector<Voicing>& voicings, Hits& hits, IsPublished isPublished) {
    constexpr std::size_t three = 3;
    for (std::size_t i = 0; i < std::min(three, voicings.size()); ++i) {
      if (!isPublished(voicings[i].position.position.numbers())) continue;
      if (i == 0) ++hits.first;
      ++hits.firstThree;
      return;
    }
  }

  void print(const char* what, const Hits& hits) const {
    const auto chords = static_cast<double>(chords_.size());
    fmt::print("  {:<46} first {:.1f} %, one of the first three {:.1f} %\n", what,
               100 * hits.first / chords, 100 * hits.firstThree / chords);
  }

  std::map<Key, std::set<Frets>> shapes_;
  std::map<Key, Chord> chords_;
  std::map<std::pair<std::string, WholeNumber>, std::set<Frets>> movableShapes_;
};

void evaluate(const std::vector<PublishedShape>& shapes) {
  constexpr std::size_t missedShown = 10;
  VoicingOptions open;
  open.openStringsAboveFifthFret = true;
  Coverage byDefault{VoicingOptions()};
  Coverage withOpenStrings(open);
  Order order;
  int right = 0;
  for (const PublishedShape& shape : shapes) {
    const auto chord = chordOf(shape);
    if (!chord || !hasTheRightTones(shape, *chord)) continue;
    ++right;
    byDefault.judge(shape, *chord);
    withOpenStrings.judge(shape, *chord);
    order.add(shape, *chord);
  }
  if (right == 0) throw std::runtime_error("no shape has the tones of its chord");
  fmt::print("{:<48} {:5}\n{:<48} {:5}\n", "shapes", shapes.size(), "with the right tones", right);
  byDefault.print("found with the options as they are", missedShown);
  withOpenStrings.print("found with open strings above the fifth fret", missedShown);
  order.print();
}

}  // namespace
}  // namespace tonelake

int main(int count, char** arguments) {
  if (count != 2) {
    fmt::print(stderr, "usage: voicing_evaluation SHAPES\n");
    return 2;
  }
  try {
    tonelake::evaluate(benchmarks::readPublishedShapes(arguments[1]));
  } catch (const std::runtime_error& error) {
    fmt::print(stderr, "voicing_evaluation: {}\n", error.what());
    return 1;
  }
  return 0;
}
