#include "Tonelake/fingering/finger_rules.h"

namespace tonelake {
namespace {

// The lowest fret. Its first string belongs to the index finger, the only one that may reach over
// strings pressed further up. Two or three strings with an open or muted one between them are
// pressed one by one; three with neither are a barre. Two with neither, and four or more, leave
// the choice how far the barre goes, as long as no open string lies under it:
//
//   (2,x,2,2,x,x)  1,_,2,3,_,_    one by one
//   (x,2,3,2,x,2)  _,1,4,2,_,3    one by one, for the muted string after the third
//   (2,4,3,2,2,2)  1,3,2,1,1,1    a barre over all six
//   (2,0,2,2,3,2)  1,_,2,2,4,3    the open string keeps the barre away
bool mayLayOnLowestFret(const LaidFinger& next, const LaidFinger& last, const PressedStrings& shape,
                        FingerRules rules) {
  const StringSet group = shape.at(0);
  if (last.finger == 0 && next.finger != indexFinger) return false;

  const int size = std::popcount(group);
  if (size == 2 || size == 3) {
    const StringSet openBetween = spanOf(group) & shape.open;
    const StringSet mutedBetween = spanOf(group) & shape.muted;
    if ((openBetween | mutedBetween) != 0) {
      if (next.strings == group) return rules.barreMayCoverMuted && openBetween == 0;
      return !areSeveral(next.strings);
    }
    if (size == 3) return next.strings == group;
  }
  if (next.finger == indexFinger) return (spanOf(next.strings) & shape.open) == 0;
  return areAdjacent(next.strings);
}

// Whether `group` is `count` neighbouring strings and their finger has not been used yet.
bool areHeldTogether(StringSet group, unsigned count, int finger, const LaidFinger& last) {
  const StringSet lowest = group & ~(group - 1);
  return group == ((1U << count) - 1) * lowest && last.finger < finger;
}

}  // namespace

// Above the lowest fret only neighbours share a finger. Two of them two frets up always share the
// ring finger, and three of them three frets up the little finger, while these fingers are free.
bool mayLay(const LaidFinger& next, const LaidFinger& last, const PressedStrings& shape,
            FingerRules rules) noexcept {
  if (next.fret == 0) return mayLayOnLowestFret(next, last, shape, rules);
  const StringSet group = shape.at(next.fret);
  if (next.fret == 2 && areHeldTogether(group, 2, ringFinger, last)) {
    return next.finger == ringFinger && next.strings == group;
  }
  if (next.fret == 3 && areHeldTogether(group, 3, littleFinger, last)) {
    return next.finger == littleFinger && next.strings == group;
  }
  return areAdjacent(next.strings);
}

}  // namespace tonelake
