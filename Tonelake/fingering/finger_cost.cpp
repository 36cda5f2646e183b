#include "Tonelake/fingering/finger_cost.h"

#include <algorithm>

namespace tonelake {
namespace {

// What the hand dislikes, the least first. The unit is arbitrary; what counts is which sums exceed
// which:
// - A barre under other fingers (5) beats three fingers on wrong frets (6), as in (x,1,2,1,3,x)
//   1-2-1-3, but not when the barre leaves a finger on a wrong fret too (7), as in (x,1,2,1,2,x)
//   1-3-2-4.
// - Three fingers on wrong frets (6) beat a barre that leans on an open string (10), as in
//   (x,3,2,1,1,0) 4-3-1-2; without the open string, (x,3,2,1,1,x), it is 3-2-1-1.
// - One wide reach and two wrong frets (19) beat a finger laid flat inside the chord (20), as in
//   (x,1,3,3,3,1) 1-2-3-4-1.
constexpr int wrongFret = 2;         // a finger above or below the fret that is its own
constexpr int flatUpToTheTop = 2;    // a flat higher finger over three strings or more, the highest
                                     // included, so that nothing sounds beyond it
constexpr int ringFingerAtTop = 4;   // the ring finger alone on the highest string, two frets up
constexpr int barreUnderOthers = 5;  // the index finger across strings that it does not sound
constexpr int openStringTouched = 10;   // a flat finger, whose root leans on an open string
constexpr int mutedStringCovered = 10;  // the index finger across a string that it cannot silence
constexpr int reachTooWide = 15;        // each fret that two fingers are spread beyond their own
constexpr int flatInsideChord = 20;     // any other flat higher finger

int costOfFlatFinger(const LaidFinger& next, const PressedStrings& shape) {
  int cost = 0;
  if ((above(next.strings) & shape.open) != 0) cost += openStringTouched;
  if (next.finger == indexFinger) {
    if (!areAdjacent(next.strings)) cost += barreUnderOthers;
    if ((spanOf(next.strings) & shape.muted) != 0) cost += mutedStringCovered;
    return cost;
  }
  const bool isWide = areSeveral(withoutHighest(next.strings));
  const bool reachesTop = (next.strings & highestString) != 0;
  return cost + (isWide && reachesTop ? flatUpToTheTop : flatInsideChord);
}

}  // namespace

// With the index finger on the lowest fret, each finger after it has the next fret for its own. A
// finger squeezed in above or below its own fret is a small matter; spreading two fingers over
// more frets than lie between their own is a strain. The hand is turned so that the little finger
// is nearer to the highest string than the ring finger.
int costOfLaying(const LaidFinger& next, const LaidFinger& last,
                 const PressedStrings& shape) noexcept {
  int cost = 0;
  if (next.fret != next.finger - indexFinger) cost += wrongFret;
  const int reach = (next.fret - last.fret) - (next.finger - last.finger);
  cost += reachTooWide * std::max(0, reach);
  if (next.finger == ringFinger && next.fret == 2 && next.strings == highestString) {
    cost += ringFingerAtTop;
  }
  if (areSeveral(next.strings)) cost += costOfFlatFinger(next, shape);
  return cost;
}

}  // namespace tonelake
