// Compares the voicings that we find, and their order, with published shapes:
//
//   voicing_evaluation SHAPES [TAUGHT]
//
// SHAPES is a file as readPublishedShapes takes it. The lowest sounding string of a shape tells
// which tone of its chord is in the bass. TAUGHT names the shape that a beginner is shown for a
// chord, one a line, with # before a remark: "Bb x13331".
//
// A file rarely holds every shape that is published: a barre that it has for A♭ major and not for
// A major is no less known there. So the order is judged three times: by the file alone; with its
// shapes without open strings counted wherever on the neck, the nut included, they stand for the
// same chord type; and with the shapes of TAUGHT besides. The last figure still misses every other
// open shape that the file lacks.

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include <fmt/format.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_dictionary.h"
#include "Tonelake/fingering/voicing_query.h"
#include "Tonelake/fingering/voicings.h"
#include "Tonelake/theory/octave.h"
#include "benchmarks/published_shapes.h"

namespace tonelake {
namespace {

using benchmarks::PublishedShape;
using Voicings::Voicing;
using Voicings::VoicingOptions;

constexpr int highestFret = 24;
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
    if (shape.frets[string] != mutedString) notes |= onlyPitchClass(pitchOf(shape.frets, string));
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

bool hasOpenString(const Frets& frets) {
  return std::find(frets.begin(), frets.end(), openString) != frets.end();
}

// A shape counted from its lowest sounding fret: the nut where a string is open, for open E major
// is the barre of F major moved down to it.
Frets moved(Frets frets) {
  int lowest = highestFret;
  for (const int fret : frets) {
    if (fret != mutedString) lowest = std::min(lowest, fret);
  }
  for (auto& fret : frets) {
    if (fret != mutedString) fret = static_cast<std::int8_t>(fret - lowest);
  }
  return frets;
}

// How often what we put first is published.
class Order {
 public:
  void addPublished(const Chord& chord, const Frets& frets) {
    shapesOf(chord).published.insert(frets);
    if (!hasOpenString(frets)) {
      movableShapes_[{chord.chordType, chord.variant}].insert(moved(frets));
    }
  }

  void addTaught(const Chord& chord, const Frets& frets) { shapesOf(chord).taught.insert(frets); }

  void print() const {
    Hits published;
    Hits movedToo;
    Hits taughtToo;
    Hits taught;
    for (const auto& entry : chords_) {
      const auto& known = entry.second;
      const auto voicings = Voicings::findVoicings(known.chord, Tuning::standard);
      const auto isPublished = [&](const Frets& f) { return known.published.contains(f); };
      const auto isMoved = [&](const Frets& f) { return isPublished(f) || isMovable(known, f); };
      const auto isTaught = [&](const Frets& f) { return known.taught.contains(f); };
      if (!known.published.empty()) {
        published.count(voicings, isPublished);
        movedToo.count(voicings, isMoved);
        taughtToo.count(voicings, [&](const Frets& f) { return isMoved(f) || isTaught(f); });
      }
      if (!known.taught.empty()) taught.count(voicings, isTaught);
    }
    fmt::print("\n{:<48} chords    first   one of the first three\n", "order");
    published.print("in the file");
    movedToo.print("in the file, or moved along the neck");
    taughtToo.print("in the file, or moved, or taught");
    taught.print("taught");
  }

 private:
  struct KnownChord {
    Chord chord;
    std::set<Frets> published;
    std::set<Frets> taught;
  };

  struct Hits {
    int chords = 0;
    int first = 0;
    int firstThree = 0;

    template <typename IsKnown>
    void count(const std::vector<Voicing>& voicings, IsKnown isKnown) {
      constexpr std::ptrdiff_t three = 3;
      const auto end = voicings.begin() + std::min(three, std::ssize(voicings));
      const auto found = std::find_if(voicings.begin(), end, [&](const Voicing& voicing) {
        return isKnown(voicing.position.position.numbers());
      });
      ++chords;
      if (found == end) return;
      ++firstThree;
      if (found == voicings.begin()) ++first;
    }

    void print(const char* what) const {
      if (chords == 0) return;
      fmt::print("  {:<46} {:6} {:6.1f} % {:6.1f} %\n", what, chords, 100.0 * first / chords,
                 100.0 * firstThree / chords);
    }
  };

  KnownChord& shapesOf(const Chord& chord) {
    KnownChord& known = chords_[{chord.rootNote.pitchClass(), chord.chordType, chord.variant}];
    known.chord = chord;
    return known;
  }

  bool isMovable(const KnownChord& known, const Frets& frets) const {
    const auto shapes = movableShapes_.find({known.chord.chordType, known.chord.variant});
    return shapes != movableShapes_.end() && shapes->second.contains(moved(frets));
  }

  std::map<std::tuple<int, std::string, WholeNumber>, KnownChord> chords_;  // by pitch class
  std::map<std::pair<std::string, WholeNumber>, std::set<Frets>> movableShapes_;
};

// Adds the shapes of a file of lines such as "Bb x13331". Throws std::runtime_error.
void readTaughtShapes(const std::string& path, Order& order) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error(path + ": cannot be read");
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (line.empty() || line.front() == '#') continue;
    std::istringstream words(line);
    std::string name;
    std::string shape;
    words >> name >> shape;
    const auto chord = Chords::lookUpChord(name);
    Frets frets{};
    if (!chord || shape.size() != frets.size()) {
      throw std::runtime_error(fmt::format("{}:{}: expected a chord and a shape", path, number));
    }
    std::transform(shape.begin(), shape.end(), frets.begin(), [](char fret) {
      return fret == 'x' ? mutedString : static_cast<std::int8_t>(fret - '0');
    });
    order.addTaught(*chord, frets);
  }
}

void evaluate(const std::vector<PublishedShape>& shapes, Order& order) {
  constexpr std::size_t missedShown = 10;
  VoicingOptions open;
  open.openStringsAboveFifthFret = true;
  Coverage byDefault{VoicingOptions()};
  Coverage withOpenStrings(open);
  int right = 0;
  for (const PublishedShape& shape : shapes) {
    const auto chord = chordOf(shape);
    if (!chord || !hasTheRightTones(shape, *chord)) continue;
    ++right;
    byDefault.judge(shape, *chord);
    withOpenStrings.judge(shape, *chord);
    order.addPublished(*chord, shape.frets);
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
  if (count != 2 && count != 3) {
    fmt::print(stderr, "usage: voicing_evaluation SHAPES [TAUGHT]\n");
    return 2;
  }
  try {
    tonelake::Order order;
    if (count == 3) tonelake::readTaughtShapes(arguments[2], order);
    tonelake::evaluate(benchmarks::readPublishedShapes(arguments[1]), order);
  } catch (const std::runtime_error& error) {
    fmt::print(stderr, "voicing_evaluation: {}\n", error.what());
    return 1;
  }
  return 0;
}
