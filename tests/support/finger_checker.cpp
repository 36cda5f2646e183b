#include "tests/support/finger_checker.h"

#include <algorithm>
#include <functional>
#include <set>
#include <vector>

namespace tonelake::testing {
namespace {

using Strings = std::vector<std::size_t>;

class Shape {
 public:
  Shape(const Frets& frets, const Fingers& fingers, FingerRules rules)
      : frets_(frets), fingers_(fingers), rules_(rules) {
    for (const int fret : frets_) {
      if (fret > 0) lowest_ = std::min(lowest_, fret);
    }
  }

  bool hasOtherFingersThanPressedStrings() const {
    return any([this](std::size_t s) {
      return frets_[s] > 0 ? fingers_[s] < 1 || fingers_[s] > 4 : fingers_[s] != 0;
    });
  }

  bool reachesBeyondFourFrets() const {
    return any([this](std::size_t s) { return frets_[s] - lowest_ > 3; });
  }

  bool hasFingerThatDoesNotRise() const {
    return anyPair([this](std::size_t a, std::size_t b) {
      return frets_[a] > 0 && frets_[a] < frets_[b] && fingers_[a] >= fingers_[b];
    });
  }

  bool coversOpenOrLowerString() const {
    return anyCovered([this](std::size_t string, std::size_t laid) {
      return frets_[string] == 0 || (frets_[string] > 0 && frets_[string] < frets_[laid]);
    });
  }

  bool sharesHigherFingerAcrossGap() const {
    return anyCovered([this](std::size_t string, std::size_t laid) {
      return fingers_[laid] > 1 && fingers_[string] != fingers_[laid];
    });
  }

  bool startsWithoutIndexFinger() const {
    const Strings lowest = onFret(0);
    return !lowest.empty() && fingers_[lowest.front()] != 1;
  }

  bool laysFewStringsOverSilentOrOpenOne() const {
    return isSmallLowestGroup() && isInterrupted() && !isAllowedBarre() &&
           differentFingers(onFret(0)) < onFret(0).size();
  }

  bool startsRefusedBarreWrongly() const {
    const Strings lowest = onFret(0);
    return lowest.size() == 3 && isInterrupted() && !isAllowedBarre() && fingers_[lowest[1]] != 2;
  }

  bool splitsBarreOfThree() const {
    return onFret(0).size() == 3 && !isInterrupted() && differentFingers(onFret(0)) > 1;
  }

  bool splitsPairTwoFretsUp() const { return splits(onFret(2), 2, 3); }
  bool splitsThreeStringsThreeFretsUp() const { return splits(onFret(3), 3, 4); }

 private:
  bool any(const std::function<bool(std::size_t)>& holds) const {
    for (std::size_t s = 0; s < frets_.size(); ++s) {
      if (holds(s)) return true;
    }
    return false;
  }

  bool anyPair(const std::function<bool(std::size_t, std::size_t)>& holds) const {
    return any([&](std::size_t a) { return any([&](std::size_t b) { return holds(a, b); }); });
  }

  // Over every string that lies between two strings `a` and `b` of one finger.
  bool anyCovered(const std::function<bool(std::size_t string, std::size_t a)>& holds) const {
    return anyPair([&](std::size_t a, std::size_t b) {
      if (a >= b || fingers_[a] == 0 || fingers_[a] != fingers_[b]) return false;
      return any([&](std::size_t string) { return a < string && string < b && holds(string, a); });
    });
  }

  Strings onFret(int aboveLowest) const {
    Strings strings;
    for (std::size_t s = 0; s < frets_.size(); ++s) {
      if (frets_[s] > 0 && frets_[s] == lowest_ + aboveLowest) strings.push_back(s);
    }
    return strings;
  }

  std::size_t differentFingers(const Strings& strings) const {
    std::set<int> fingers;
    for (const std::size_t s : strings) fingers.insert(fingers_[s]);
    return fingers.size();
  }

  bool isSmallLowestGroup() const { return onFret(0).size() == 2 || onFret(0).size() == 3; }

  bool lowestGroupSpans(const std::function<bool(int)>& fret) const {
    const Strings lowest = onFret(0);
    return std::any_of(frets_.begin() + static_cast<std::ptrdiff_t>(lowest.front()),
                       frets_.begin() + static_cast<std::ptrdiff_t>(lowest.back()), fret);
  }

  bool isInterrupted() const {
    return lowestGroupSpans([](int fret) { return fret <= 0; });
  }

  bool isAllowedBarre() const {
    return rules_.barreMayCoverMuted && differentFingers(onFret(0)) == 1 &&
           !lowestGroupSpans([](int fret) { return fret == 0; });
  }

  // Whether `count` neighbours do not all have `finger` although no lower fret uses it.
  bool splits(const Strings& group, std::size_t count, int finger) const {
    if (group.size() != count || group.back() - group.front() != count - 1) return false;
    const bool isFree = !any([&](std::size_t s) {
      return frets_[s] > 0 && frets_[s] < frets_[group.front()] && fingers_[s] >= finger;
    });
    return isFree && std::any_of(group.begin(), group.end(),
                                 [&](std::size_t s) { return fingers_[s] != finger; });
  }

  const Frets& frets_;
  const Fingers& fingers_;
  const FingerRules rules_;
  int lowest_ = 128;
};

struct Rule {
  const char* breach;
  bool (Shape::*isBroken)() const;
};

// The order matters: later rules take for granted that the first two hold.
constexpr Rule allRules[] = {
    {"fingers on other strings than the pressed ones", &Shape::hasOtherFingersThanPressedStrings},
    {"more than four frets", &Shape::reachesBeyondFourFrets},
    {"a finger that does not rise with the fret", &Shape::hasFingerThatDoesNotRise},
    {"an open or lower string under a finger", &Shape::coversOpenOrLowerString},
    {"a higher finger shared across a gap", &Shape::sharesHigherFingerAcrossGap},
    {"not the index finger first", &Shape::startsWithoutIndexFinger},
    {"two or three strings barred over a silent one", &Shape::laysFewStringsOverSilentOrOpenOne},
    {"a refused barre not started with 1, 2", &Shape::startsRefusedBarreWrongly},
    {"a barre of three split", &Shape::splitsBarreOfThree},
    {"a pair two frets up not under the ring finger", &Shape::splitsPairTwoFretsUp},
    {"three strings three frets up not under the little finger",
     &Shape::splitsThreeStringsThreeFretsUp},
};

}  // namespace

std::string brokenFingerRule(const Frets& frets, const Fingers& fingers, FingerRules rules) {
  const Shape shape(frets, fingers, rules);
  for (const Rule& rule : allRules) {
    if ((shape.*rule.isBroken)()) return rule.breach;
  }
  return "";
}

std::string brokenFingerRule(const ChordPosition& shape, FingerRules rules) {
  return brokenFingerRule(shape.position.numbers(), shape.fingering.numbers(), rules);
}

}  // namespace tonelake::testing
