// Which finger goes where, worked through for B major as a barre, (x,2,4,4,4,2), seen from its
// lowest pressed fret: strings 1 and 5 at fret 0; 2, 3 and 4 at fret 2.
//
// Fingers are put down one after another. The index finger takes the strings 1 and 5 as a barre, or
// string 1 alone. The next finger, whichever it is, takes the strings 2 to 4, or 2 and 3, or 2
// alone, and so on with the strings that are left. Two of the ways to hold all five strings:
//
//   1-2-3-4-1  a barre under others 5, the middle finger's wide reach 15, two wrong frets 4: 24
//   1-3-3-3-1  a barre under others 5, the ring finger flat inside the chord 20:              25

#include "Tonelake/fingering/finger_search.h"

#include "Tonelake/fingering/finger_cost.h"

namespace tonelake {
namespace {

// The fingers put down so far, and what they cost.
struct Hand {
  std::array<StringSet, littleFinger + 1> strings{};  // under each finger, by its number
  LaidFinger last;
  int cost = 0;
};

class FingerSearch {
 public:
  FingerSearch(const PressedStrings& shape, FingerRules rules) : shape_(shape), rules_(rules) {}

  std::optional<Fingers> run() {
    goOn(Hand(), 0, shape_.at(0));
    if (!best_) return std::nullopt;
    Fingers fingers{};
    for (std::int8_t finger = indexFinger; finger <= littleFinger; ++finger) {
      const StringSet strings = best_->strings[static_cast<std::size_t>(finger)];
      for (std::size_t string = 0; string < fingers.size(); ++string) {
        if ((strings >> string & 1U) != 0) fingers[string] = finger;
      }
    }
    return fingers;
  }

 private:
  // Puts down the next finger in every way. `waiting` are the strings of `fret` without a finger
  // yet. Of equal costs the first stays, so the order of the loops decides between them: a strong
  // finger goes before a weak one, and a finger over many strings before one over few.
  void goOn(const Hand& hand, int fret, StringSet waiting) {
    while (waiting == 0 && ++fret < handFrets) waiting = shape_.at(fret);
    if (waiting == 0) {
      best_ = hand;
      return;
    }
    for (int finger = hand.last.finger + 1; finger <= littleFinger; ++finger) {
      for (StringSet strings = waiting; strings != 0; strings = withoutHighest(strings)) {
        lay({finger, fret, strings}, hand, waiting & ~strings);
      }
    }
  }

  // `waiting` are the strings of the same fret that remain for later fingers.
  void lay(const LaidFinger& next, const Hand& hand, StringSet waiting) {
    if (waiting != 0 && next.finger == littleFinger) return;
    if (!mayLay(next, hand.last, shape_, rules_)) return;
    const int cost = hand.cost + costOfLaying(next, hand.last, shape_);
    if (best_ && best_->cost <= cost) return;
    Hand longer = hand;
    longer.strings[static_cast<std::size_t>(next.finger)] = next.strings;
    longer.last = next;
    longer.cost = cost;
    goOn(longer, next.fret, waiting);
  }

  const PressedStrings& shape_;
  const FingerRules rules_;
  std::optional<Hand> best_;
};

}  // namespace

std::optional<Fingers> searchFingers(const PressedStrings& shape, FingerRules rules) noexcept {
  return FingerSearch(shape, rules).run();
}

}  // namespace tonelake
