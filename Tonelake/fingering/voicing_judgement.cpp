// What a shape costs, worked through for open C major, muted, 3, 2, 0, 1, 0:
//
//   three fingers                                      15
//   a span of two frets, all within the fingers' own   24
//   the third fret is the highest                       6
//   one muted string below the bass                     3
//   open strings: any at all 15, one between others 5  20
//                                                      68
//
// and for its nearest rival, the barre muted, 3, 5, 5, 5, 3: four fingers 20, a barre 10, a span
// of two frets 24 and a gap of one between index and middle finger 12, the fifth fret 10, a muted
// string 3, less 10 for the fifth above the bass, which makes 69.

#include "Tonelake/fingering/voicing_judgement.h"

#include <algorithm>
#include <array>
#include <bit>

#include "Tonelake/fingering/finger_rules.h"
#include "Tonelake/fingering/pressed_strings.h"

namespace tonelake::Voicings {
namespace {

// The amounts. The unit is arbitrary; what counts is which sums exceed which. They were fitted to
// shapes that chord books print and to the shapes that beginners are shown, then rounded.
// clang-format off
constexpr int finger          =  5;  // each finger in use
constexpr int indexBarre      = 10;  // the index finger across several strings
constexpr int upperBarre      = 20;  // each other finger across several strings
constexpr int reach           = 12;  // each fret of span, and each that a finger reaches too far
constexpr int height          =  2;  // each fret up the neck, of the highest pressed one
constexpr int innerMute       = 40;  // each muted string between sounding ones
constexpr int upperMute       = 20;  // each muted string above the highest sounding one
constexpr int thinSound       = 30;  // too few strings sound
constexpr int supportedBass   =-10;  // the next string sounds the fifth or octave of the bass
constexpr int openAtAll       = 15;  // an open string: no such shape can be moved to another root
constexpr int openBetween     =  5;  // each open string between pressed ones: the fingers must arch
constexpr int openUpTheNeck   = 10;  // each open string above the bass, for each fret that the
                                     // hand is above the second
// clang-format on

// The deeper strings that are muted below the bass: none, one, two or three of them.
constexpr std::array<int, Tuning::stringCount> lowerMutes{0, 3, 12, 30, 30, 30};

// A shape in sets of strings.
struct Shape {
  StringSet sounding = 0;
  StringSet open = 0;
  StringSet pressed = 0;
  std::array<StringSet, littleFinger + 1> under{};  // by finger
  std::array<int, littleFinger + 1> fretOf{};       // by finger

  Shape(const Frets& frets, const Fingers& fingers) {
    for (std::size_t string = 0; string < frets.size(); ++string) {
      if (frets[string] == mutedString) continue;
      const StringSet bit = 1U << string;
      const auto under_ = static_cast<std::size_t>(fingers[string]);
      sounding |= bit;
      (frets[string] == openString ? open : pressed) |= bit;
      under[under_] |= bit;
      fretOf[under_] = frets[string];
    }
  }

  int lowestString() const { return std::countr_zero(sounding); }
  int highestString() const { return std::bit_width(sounding) - 1; }
};

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
  const int indexBarres = areSeveral(shape.under[indexFinger]) ? 1 : 0;
  return finger * voicing.fingers + indexBarre * indexBarres +
         upperBarre * (voicing.barres - indexBarres) + reach * (voicing.span + wideReaches(shape)) +
         height * (voicing.lowestFret + voicing.span);
}

// Whether the string above the bass sounds its fifth or octave.
bool hasSupportedBass(const Shape& shape, const Frets& frets, const VoicingQuery& query) {
  constexpr int fifth = 7;
  const auto pitchOf = [&](StringSet strings) {
    const auto string = static_cast<std::size_t>(std::countr_zero(strings));
    return query.openPitches[string] + frets[string];
  };
  const int bass = pitchOf(shape.sounding);
  const PitchClassSet next = noteAt(pitchOf(shape.sounding & (shape.sounding - 1)));
  return next == noteAt(bass) || next == noteAt(bass + fifth);
}

// A power chord is full with three strings and leaves the upper ones alone; any other chord wants
// four strings at least.
int costOfSound(const Shape& shape, const Frets& frets, const Voicing& voicing,
                const VoicingQuery& query) {
  constexpr int fullPowerChord = 3;
  constexpr int fullChord = 4;
  const int upperMutes =
      query.isPowerChord ? 0 : static_cast<int>(Tuning::stringCount) - 1 - shape.highestString();
  const bool isThin = voicing.soundingStrings < (query.isPowerChord ? fullPowerChord : fullChord);
  return innerMute * voicing.innerMutes + upperMute * upperMutes +
         lowerMutes[static_cast<std::size_t>(shape.lowestString())] + (isThin ? thinSound : 0) +
         (hasSupportedBass(shape, frets, query) ? supportedBass : 0);
}

int costOfOpenStrings(const Shape& shape, const Voicing& voicing) {
  constexpr int highestHandAtNut = 2;
  if (shape.open == 0) return 0;
  const StringSet between = shape.pressed == 0 ? 0 : shape.open & spanOf(shape.pressed);
  const StringSet aboveBass = shape.open & shape.sounding & (shape.sounding - 1);
  const int fretsUp = std::max(0, voicing.lowestFret - highestHandAtNut);
  return openAtAll + openBetween * std::popcount(between) +
         openUpTheNeck * fretsUp * std::popcount(aboveBass);
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
