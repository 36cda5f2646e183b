#include "Tonelake/accompaniment/picking_hand.h"

#include <algorithm>
#include <cstddef>

#include "Tonelake/accompaniment/standard_pitches.h"
#include "Tonelake/theory/octave.h"

namespace tonelake {
namespace {

using Strings = std::vector<int>;

constexpr int fingerCount = 3;
constexpr std::size_t upstrokeStrings = 4;
// From string to string; a stroke over six at 92 crotchets a minute takes some 30 milliseconds.
// See muteLength.
constexpr WholeNumber downstrokeDelay = 5;
constexpr WholeNumber upstrokeDelay = 4;

Strings soundingStrings(const ChordShape& shape) {
  Strings strings;
  for (std::size_t i = 0; i < Tuning::stringCount; ++i) {
    if (shape.position.position[i] >= 0) strings.push_back(static_cast<int>(i));
  }
  return strings;
}

// The strings that the fingers lie on: the three highest, or all if there are fewer.
Strings fingerStrings(const Strings& sounding) {
  const auto count = std::min<std::size_t>(fingerCount, sounding.size());
  return {sounding.end() - static_cast<std::ptrdiff_t>(count), sounding.end()};
}

// See ArpeggioDirection::b.
int alternateBass(const Strings& sounding, const ChordShape& shape) {
  if (sounding.size() < 2) return sounding.front();
  const int fifth = findPillars(shape.chord).fifth;
  for (std::size_t i = 1; i + fingerCount < sounding.size(); ++i) {
    if (pitchOnString(shape, sounding[i]) % octave == fifth) return sounding[i];
  }
  return sounding[1];
}

bool isStruck(const HandMotion& motion, int string) {
  return std::any_of(motion.plucks.begin(), motion.plucks.end(),
                     [string](const Pluck& pluck) { return pluck.string == string; });
}

// A string cannot be struck twice at once: the first time counts.
void pluck(HandMotion& motion, int string, const ArpeggioNote& note, WholeNumber delay = 0) {
  if (isStruck(motion, string)) return;
  motion.plucks.push_back({string, delay, note.noteArticulation, note.noteVelocity});
}

const ArpeggioNote* findNote(const ArpeggioStep& step, ArpeggioDirection direction) {
  const auto found = std::find_if(step.begin(), step.end(), [direction](const ArpeggioNote& note) {
    return note.arpeggioDirection == direction;
  });
  return found == step.end() ? nullptr : &*found;
}

// Down or up over `strings`, which are in the order in which the hand meets them.
void brush(HandMotion& motion, const Strings& strings, const Strings& upper,
           const ArpeggioNote& upperNote, const ArpeggioNote& lowerNote, WholeNumber delay) {
  WholeNumber passed = 0;
  for (const int string : strings) {
    const bool isUpper = std::find(upper.begin(), upper.end(), string) != upper.end();
    pluck(motion, string, isUpper ? upperNote : lowerNote, passed);
    passed += delay;
  }
}

// The stroke of a step that has iii and a direction; whether it has one.
bool brushOverStrings(HandMotion& motion, const ArpeggioStep& step, const Strings& sounding) {
  const ArpeggioNote* upper = findNote(step, ArpeggioDirection::iii);
  const ArpeggioNote* down = findNote(step, ArpeggioDirection::d);
  const ArpeggioNote* up = findNote(step, ArpeggioDirection::u);
  if (upper == nullptr || (down == nullptr && up == nullptr)) return false;
  const Strings fingers = fingerStrings(sounding);
  if (down != nullptr) {
    brush(motion, sounding, fingers, *upper, *down, downstrokeDelay);
    return true;
  }
  Strings met(sounding.rbegin(), sounding.rend());
  met.resize(std::min(met.size(), upstrokeStrings));
  brush(motion, met, fingers, *upper, *up, upstrokeDelay);
  return true;
}

}  // namespace

HandMotion PickingHand::play(const ArpeggioStep& step, const ChordShape& shape) {
  HandMotion motion;
  const Strings sounding = soundingStrings(shape);
  if (sounding.empty()) return motion;
  const Strings fingers = fingerStrings(sounding);
  const auto fingerString = [&fingers](int finger) {
    return fingers[static_cast<std::size_t>(finger)];
  };
  const int count = static_cast<int>(fingers.size());
  // The chord may have changed to one of fewer strings.
  finger_ = std::min(finger_, count - 1);
  const bool isStroke = brushOverStrings(motion, step, sounding);
  for (const ArpeggioNote& note : step) {
    switch (note.arpeggioDirection) {
      case ArpeggioDirection::t:
        finger_ = -1;
        pluck(motion, sounding.front(), note);
        break;
      case ArpeggioDirection::d:
        if (!isStroke) pluck(motion, fingerString(nextDown(count)), note);
        break;
      case ArpeggioDirection::b:
        pluck(motion, alternateBass(sounding, shape), note);
        break;
      case ArpeggioDirection::u:
        if (!isStroke) pluck(motion, fingerString(nextUp(count)), note);
        break;
      case ArpeggioDirection::r:
        motion.silencesStrings = true;
        break;
      case ArpeggioDirection::iii:
        for (const int string : fingers) pluck(motion, string, note);
        break;
    }
  }
  return motion;
}

int PickingHand::nextDown(int count) {
  finger_ = (finger_ + 1) % count;
  return finger_;
}

int PickingHand::nextUp(int count) {
  finger_ = (finger_ <= 0 ? count : finger_) - 1;
  return finger_;
}

}  // namespace tonelake
