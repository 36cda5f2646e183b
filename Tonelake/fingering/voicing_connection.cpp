// What a change costs is worked through for open C major, (x,3,2,0,1,0), to open A minor,
// (x,0,2,2,1,0): the hand stays at the first fret, index and middle finger stay, and the ring
// finger is lifted and goes over two strings and down a fret, 2 * -15 + 10 + 3 * 8 = 4.
//
// The cheapest way through a sequence of chords is a shortest path: for each voicing of a chord,
// the cheapest way to arrive there goes through one voicing of the chord before. Worked through
// for C major to A minor with two voicings each:
//
//   C (x,3,2,0,1,0) costs 79, C (x,3,5,5,5,3) 117; A minor (x,0,2,2,1,0) 38, (5,7,7,5,5,5) 109.
//
// The open A minor is reached from the open C for 79 and the change, or from the barre for 117 and
// a change that lifts and moves every finger; the first is kept. So is the cheaper way to the
// barre A minor. The cheaper of the two ends is chosen, and its way is followed backwards.

#include "Tonelake/fingering/voicing_connection.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

#include "Tonelake/fingering/finger_rules.h"

namespace tonelake::Voicings {
namespace {

// The amounts, in the unit of Voicing::cost, where a fret of span is 18.
// clang-format off
constexpr int movedHand    =  30;  // each fret that the hand moves along the neck
constexpr int liftedFinger =  10;  // a finger that is lifted, put down, or both to move over
constexpr int movedFinger  =   8;  // each fret, within the hand, and each string that it moves over
constexpr int commonFinger = -15;  // a finger that stays on its string and fret
// clang-format on

// Where the hand and each finger is.
struct Grip {
  struct Finger {
    int fret = 0;
    StringSet strings = 0;  // none when it is in the air
  };

  // Where the index finger's own fret may be while the hand reaches all pressed frets. A barre of
  // the index finger leaves no choice.
  int lowestPlace = 1;
  int highestPlace = highestFretOfAll;
  std::array<Finger, littleFinger> fingers{};

  Grip() = default;
  explicit Grip(const Voicing& voicing) {
    if (voicing.lowestFret == 0) return;
    highestPlace = voicing.lowestFret;
    lowestPlace = std::max(1, voicing.lowestFret + voicing.span - handFrets + 1);
    const PerString& pressers = voicing.position.fingering;
    for (std::size_t string = 0; string < pressers.size(); ++string) {
      if (pressers[string] == 0) continue;
      Finger& finger = fingers[static_cast<std::size_t>(pressers[string] - indexFinger)];
      finger.fret = voicing.position.position[string];
      finger.strings |= 1U << string;
    }
    if (areSeveral(fingers.front().strings)) lowestPlace = highestPlace;
  }
};

// A finger that keeps its strings and its place in the hand slides along: only the hand pays. A
// barre may grow or shrink as long as its lowest string stays.
int costOfFinger(const Grip::Finger& from, const Grip::Finger& to, int handMove) {
  if (from.strings == 0 && to.strings == 0) return 0;
  if (from.strings == 0 || to.strings == 0) return liftedFinger;
  const int frets = std::abs(to.fret - from.fret - handMove);
  const int strings = std::abs(std::countr_zero(to.strings) - std::countr_zero(from.strings));
  if (frets != 0 || strings != 0) return liftedFinger + movedFinger * (frets + strings);
  return handMove == 0 ? commonFinger : 0;
}

// Frets that the hand has to move up the neck, less than 0 for down.
int handMoveBetween(const Grip& from, const Grip& to) {
  if (from.highestPlace < to.lowestPlace) return to.lowestPlace - from.highestPlace;
  if (to.highestPlace < from.lowestPlace) return to.highestPlace - from.lowestPlace;
  return 0;
}

int costOfChange(const Grip& from, const Grip& to) {
  const int handMove = handMoveBetween(from, to);
  int cost = movedHand * std::abs(handMove);
  for (std::size_t finger = 0; finger < from.fingers.size(); ++finger) {
    cost += costOfFinger(from.fingers[finger], to.fingers[finger], handMove);
  }
  return cost;
}

// The cheapest way to one voicing of one chord.
struct Arrival {
  WholeNumber cost = std::numeric_limits<WholeNumber>::max();
  std::size_t from = 0;  // the voicing of the chord before
};

std::vector<Grip> gripsOf(const std::vector<Voicing>& voicings) {
  std::vector<Grip> grips;
  grips.reserve(voicings.size());
  for (const Voicing& voicing : voicings) grips.emplace_back(voicing);
  return grips;
}

// The cheapest arrival at each voicing of a chord from those of the chord before.
std::vector<Arrival> arrive(const std::vector<Voicing>& voicings, const std::vector<Grip>& grips,
                            const std::vector<Grip>& gripsBefore,
                            const std::vector<Arrival>& arrivalsBefore) {
  std::vector<Arrival> arrivals(voicings.size());
  for (std::size_t to = 0; to < voicings.size(); ++to) {
    Arrival& best = arrivals[to];
    for (std::size_t from = 0; from < gripsBefore.size(); ++from) {
      const WholeNumber cost =
          arrivalsBefore[from].cost + costOfChange(gripsBefore[from], grips[to]);
      if (cost < best.cost) best = {cost, from};
    }
    best.cost += voicings[to].cost;
  }
  return arrivals;
}

// From the cheapest arrival at the last chord back to the first.
std::vector<Voicing> followBack(std::span<const std::vector<Voicing>> candidates,
                                const std::vector<std::vector<Arrival>>& arrivals) {
  std::vector<Voicing> path(candidates.size());
  if (path.empty()) return path;
  const auto cheaper = [](const Arrival& a, const Arrival& b) { return a.cost < b.cost; };
  const auto& last = arrivals.back();
  auto at =
      static_cast<std::size_t>(std::min_element(last.begin(), last.end(), cheaper) - last.begin());
  for (std::size_t chord = path.size(); chord-- > 0;) {
    path[chord] = candidates[chord][at];
    at = arrivals[chord][at].from;
  }
  return path;
}

}  // namespace

int costOfChange(const Voicing& from, const Voicing& to) noexcept {
  return costOfChange(Grip(from), Grip(to));
}

std::vector<Voicing> connect(std::span<const std::vector<Voicing>> candidates) {
  std::vector<std::vector<Arrival>> arrivals;  // by chord, then by voicing
  // Before the first chord the hand is in the air, wherever it is needed.
  std::vector<Grip> gripsBefore{Grip()};
  std::vector<Arrival> arrivalsBefore{{0, 0}};
  for (const std::vector<Voicing>& voicings : candidates) {
    if (voicings.empty()) return {};
    std::vector<Grip> grips = gripsOf(voicings);
    arrivals.push_back(arrive(voicings, grips, gripsBefore, arrivalsBefore));
    arrivalsBefore = arrivals.back();
    gripsBefore = std::move(grips);
  }
  return followBack(candidates, arrivals);
}

}  // namespace tonelake::Voicings
