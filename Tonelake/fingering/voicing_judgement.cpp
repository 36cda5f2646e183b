// What a shape costs, worked through for open C major, muted, 3, 2, 0, 1, 0:
//
//   three fingers                             9
//   a span of two frets                      36
//   the third fret is the highest             9
//   one muted string below the bass           3
//   neither fifth nor octave above the bass  20
//   open strings in first position            2
//                                            79
//
// and for its nearest rival, the barre muted, 3, 5, 5, 5, 3: four fingers 12, a barre 21, a span
// of two frets 36, the middle finger a fret too far from the index finger 30, the fifth fret 15 and
// a muted string 3, which makes 117.

#include "Tonelake/fingering/voicing_judgement.h"

#include <algorithm>
#include <array>
#include <bit>

#include "Tonelake/fingering/finger_rules.h"
#include "Tonelake/fingering/pressed_strings.h"

namespace tonelake::Voicings {
namespace {

// The amounts. The unit is arbitrary; what counts is which sums exceed which. They were fitted to
// shapes that chord books print and to those that beginners are shown, and rounded.
// clang-format off
constexpr int finger        =   3;  // each finger in use
constexpr int indexBarre    =  21;  // the index finger across several strings
constexpr int upperBarre    =  25;  // each further string under another finger
constexpr int span          =  18;  // each fret from the lowest to the highest pressed one
constexpr int wideReach     =  30;  // each fret that two fingers are further apart than usual
constexpr int height        =   3;  // each fret up the neck, of the highest pressed one
constexpr int innerMute     =  70;  // each muted string between sounding ones
constexpr int upperMute     =  45;  // each muted string above the highest sounding one
constexpr int thinSound     =  60;  // too few strings sound
constexpr int loneBass      =  20;  // the next string sounds neither fifth nor octave of the bass
constexpr int firstPosition =   2;  // open strings in a shape that a first year learns
constexpr int openElsewhere =  45;  // open strings in any other: it cannot even be moved
constexpr int openUpTheNeck =  40;  // each open string above the bass, for each fret that the hand
                                    // is above the second: it sounds far from the others
// clang-format on

// The strings that are muted below the bass: none, one, two, three or more.
constexpr std::array<int, Tuning::stringCount> lowerMutes{0, 3, 16, 50, 50, 50};

// A shape in sets of strings. The lists go by finger.
struct Shape {
  StringSet sounding = 0;
  StringSet open = 0;
  StringSet pressed = 0;
  std::array<StringSet, littleFinger + 1> under{};
  std::array<int, littleFinger + 1> fretOf{};

  Shape(const Frets& frets, const Fingers& fingers) {
    for (std::size_t string = 0; string < frets.size(); ++string) {
      if (frets[string] == mutedString) continue;
      const StringSet bit = 1U << string;
      const auto presser = static_cast<std::size_t>(fingers[string]);  // 0 on an open string
      sounding |= bit;
      (frets[string] == openString ? open : pressed) |= bit;
      under[presser] |= bit;
      fretOf[presser] = frets[string];
    }
  }
};

std::size_t lowestOf(StringSet strings) {
  return static_cast<std::size_t>(std::countr_zero(strings));
}

StringSet withoutLowest(StringSet strings) {
  return strings & (strings - 1);
}

void takeFacts(const Shape& shape, Voicing& voicing) {
  int highest = 0;
  for (std::size_t f = indexFinger; f < shape.under.size(); ++f) {
    if (shape.under[f] == 0) continue;
    if (voicing.fingers == 0) voicing.lowestFret = shape.fretOf[f];
    highest = shape.fretOf[f];  // frets never fall as fingers rise
    ++voicing.fingers;
    if (areSeveral(shape.under[f])) ++voicing.barres;
  }
  voicing.span = highest - voicing.lowestFret;
  voicing.soundingStrings = std::popcount(shape.sounding);
  voicing.openStrings = std::popcount(shape.open);
  voicing.innerMutes = std::popcount(spanOf(shape.sounding)) - voicing.soundingStrings;
}

// Frets by which fingers are further apart than their numbers, added up: 1 for the index finger
// on fret 3 and the middle finger on fret 5.
int wideReaches(const Shape& shape) {
  int wide = 0;
  int last = 0;
  for (int f = indexFinger; f <= littleFinger; ++f) {
    const auto i = static_cast<std::size_t>(f);
    if (shape.under[i] == 0) continue;
    if (last > 0) {
      const int frets = shape.fretOf[i] - shape.fretOf[static_cast<std::size_t>(last)];
      wide += std::max(0, frets - (f - last));
    }
    last = f;
  }
  return wide;
}

int costOfHand(const Shape& shape, const Voicing& voicing) {
  const bool hasIndexBarre = areSeveral(shape.under[indexFinger]);
  const int underOthers = std::popcount(shape.pressed) - std::popcount(shape.under[indexFinger]);
  const int otherFingers = voicing.fingers - (voicing.fingers > 0 ? 1 : 0);
  return finger * voicing.fingers + (hasIndexBarre ? indexBarre : 0) +
         upperBarre * (underOthers - otherFingers) + span * voicing.span +
         wideReach * wideReaches(shape) + height * (voicing.lowestFret + voicing.span);
}

// Whether the string above the bass sounds its fifth or octave.
bool hasSupportedBass(const Shape& shape, const Frets& frets, const VoicingQuery& query) {
  const PitchClassSet next = query.noteOn(lowestOf(withoutLowest(shape.sounding)), frets);
  return next == query.bass || next == query.fifthOfBass;
}

// A power chord is full with three strings and leaves the upper ones alone; any other chord wants
// four strings at least.
int costOfSound(const Shape& shape, const Frets& frets, const Voicing& voicing,
                const VoicingQuery& query) {
  constexpr int fullPowerChord = 3;
  constexpr int fullChord = 4;
  const auto strings = static_cast<int>(frets.size());
  const auto highest = static_cast<int>(std::bit_width(shape.sounding));
  const int upperMutes = query.isPowerChord ? 0 : strings - highest;
  const bool isThin = voicing.soundingStrings < (query.isPowerChord ? fullPowerChord : fullChord);
  return innerMute * voicing.innerMutes + upperMute * upperMutes +
         lowerMutes[lowestOf(shape.sounding)] + (isThin ? thinSound : 0) +
         (hasSupportedBass(shape, frets, query) ? 0 : loneBass);
}

// In first position, within three frets from the nut, with four strings or more and none muted
// among them.
bool isInFirstPosition(const Voicing& voicing) {
  constexpr int highestFret = 3;
  constexpr int fewestStrings = 4;
  return voicing.lowestFret + voicing.span <= highestFret && voicing.innerMutes == 0 &&
         voicing.soundingStrings >= fewestStrings;
}

int costOfOpenStrings(const Shape& shape, const Voicing& voicing) {
  constexpr int highestHandAtNut = 2;
  if (shape.open == 0) return 0;
  const StringSet aboveBass = shape.open & withoutLowest(shape.sounding);
  const int fretsUp = std::max(0, voicing.lowestFret - highestHandAtNut);
  const int place = isInFirstPosition(voicing) ? firstPosition : openElsewhere;
  return place + openUpTheNeck * fretsUp * std::popcount(aboveBass);
}

}  // namespace

Voicing judgeVoicing(const Frets& frets, const Fingers& fingers,
                     const VoicingQuery& query) noexcept {
  const Shape shape(frets, fingers);
  Voicing voicing;
  voicing.position = {frets, shape.pressed != 0 ? PerString(fingers) : PerString()};
  voicing.bassTone = query.bassTone;
  takeFacts(shape, voicing);
  voicing.cost = costOfHand(shape, voicing) + costOfSound(shape, frets, voicing, query) +
                 costOfOpenStrings(shape, voicing);
  return voicing;
}

}  // namespace tonelake::Voicings
