#include "tests/support/plain_voicing_checker.h"

#include <algorithm>
#include <set>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/fingering/finger_assignment.h"

namespace tonelake::testing {
namespace {

using Shape = std::vector<int>;

class Rules {
 public:
  Rules(const Chord& chord, const TuningNames& tuning, const Voicings::VoicingOptions& options)
      : options_(options), root_(chord.rootNote.pitchClass()) {
    for (const WholeNumber interval : Chords::getChordData(chord.chordType)->notes) {
      tones_.push_back(static_cast<int>(interval % 12));
    }
    bass_ = tones_[static_cast<std::size_t>(chord.variant)];
    for (const std::string& name : tuning) {
      open_.push_back(Note::fromRawValue(name)->pitchClass() + options.capo);
    }
  }

  bool hold(const Shape& shape) const {
    return soundsOnlyTones(shape) && soundsEnoughStrings(shape) && hasTheBass(shape) &&
           soundsRequiredTones(shape) && liesWithinFourFrets(shape) && ringsOpenLowOnly(shape) &&
           mutesFewInside(shape) && hasFingers(shape);
  }

 private:
  // Semitones above the root, 0 to 11, of each string that sounds.
  std::vector<int> intervals(const Shape& shape) const {
    std::vector<int> list;
    for (std::size_t s = 0; s < shape.size(); ++s) {
      if (shape[s] >= 0) list.push_back((open_[s] + shape[s] - root_ + 24) % 12);
    }
    return list;
  }

  static bool isIn(const std::vector<int>& list, int value) {
    return std::find(list.begin(), list.end(), value) != list.end();
  }

  bool soundsOnlyTones(const Shape& shape) const {
    for (std::size_t s = 0; s < shape.size(); ++s) {
      if (shape[s] >= 0 && !isIn(tones_, (open_[s] + shape[s] - root_ + 24) % 12)) return false;
    }
    return true;
  }

  bool soundsEnoughStrings(const Shape& shape) const {
    return intervals(shape).size() >= (tones_.size() == 2 ? 2 : 3);
  }

  bool hasTheBass(const Shape& shape) const { return intervals(shape).front() == bass_; }

  bool soundsRequiredTones(const Shape& shape) const {
    const std::vector<int> sounding = intervals(shape);
    return std::all_of(tones_.begin(), tones_.end(), [&](int tone) {
      const bool mayLack = tone == 7 && tones_.size() >= 4 && bass_ != 7;
      return mayLack || isIn(sounding, tone);
    });
  }

  static std::set<int> pressedFrets(const Shape& shape) {
    std::set<int> frets(shape.begin(), shape.end());
    frets.erase(-1);
    frets.erase(0);
    return frets;
  }

  static bool liesWithinFourFrets(const Shape& shape) {
    const std::set<int> frets = pressedFrets(shape);
    return frets.empty() || *frets.rbegin() - *frets.begin() <= 3;
  }

  bool ringsOpenLowOnly(const Shape& shape) const {
    const std::set<int> frets = pressedFrets(shape);
    const bool isHigh = !frets.empty() && *frets.begin() > 5;
    return options_.openStringsAboveFifthFret || !isHigh || !isIn(shape, 0);
  }

  bool mutesFewInside(const Shape& shape) const {
    const auto sounds = [](int fret) { return fret >= 0; };
    const auto first = std::find_if(shape.begin(), shape.end(), sounds);
    const auto last = std::find_if(shape.rbegin(), shape.rend(), sounds).base();
    return std::count(first, last, -1) <= options_.innerMutes;
  }

  static bool hasFingers(const Shape& shape) {
    Frets frets{};
    std::copy(shape.begin(), shape.end(), frets.begin());
    return findFingers(frets, {.barreMayCoverMuted = true}).has_value();
  }

  Voicings::VoicingOptions options_;
  int root_;
  int bass_ = 0;
  std::vector<int> tones_;
  std::vector<int> open_;
};

// The next combination of frets -1 to `highest`; false after the last.
bool advance(Shape& shape, int highest) {
  for (int& fret : shape) {
    if (++fret <= highest) return true;
    fret = -1;
  }
  return false;
}

}  // namespace

std::vector<std::vector<int>> listVoicingsPlainly(const Chord& chord, const TuningNames& tuning,
                                                  const Voicings::VoicingOptions& options) {
  const Rules rules(chord, tuning, options);
  std::vector<Shape> found;
  Shape shape(6, -1);
  do {
    if (rules.hold(shape)) found.push_back(shape);
  } while (advance(shape, options.highestFret));
  return found;
}

std::string wrongFact(const Voicings::Voicing& voicing) {
  const Shape frets(voicing.position.position.begin(), voicing.position.position.end());
  const Shape fingers(voicing.position.fingering.begin(), voicing.position.fingering.end());
  std::set<int> pressed(frets.begin(), frets.end());
  pressed.erase(-1);
  pressed.erase(0);
  std::set<int> used(fingers.begin(), fingers.end());
  used.erase(0);
  const auto barres = std::count_if(used.begin(), used.end(), [&](int finger) {
    return std::count(fingers.begin(), fingers.end(), finger) > 1;
  });
  const auto muted = std::count(frets.begin(), frets.end(), -1);
  const auto sounds = [](int fret) { return fret >= 0; };
  const auto below = std::find_if(frets.begin(), frets.end(), sounds) - frets.begin();
  const auto above = std::find_if(frets.rbegin(), frets.rend(), sounds) - frets.rbegin();
  if (fingers.empty() != pressed.empty()) return "fingers without pressed strings, or none";
  if (voicing.lowestFret != (pressed.empty() ? 0 : *pressed.begin())) return "lowest fret";
  if (voicing.span != (pressed.empty() ? 0 : *pressed.rbegin() - *pressed.begin())) return "span";
  if (voicing.fingers != static_cast<int>(used.size())) return "fingers";
  if (voicing.barres != barres) return "barres";
  if (voicing.soundingStrings != 6 - muted) return "sounding strings";
  if (voicing.openStrings != std::count(frets.begin(), frets.end(), 0)) return "open strings";
  if (voicing.innerMutes != muted - below - above) return "inner mutes";
  return "";
}

}  // namespace tonelake::testing
