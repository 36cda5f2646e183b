#include "Tonelake/fingering/finger_assignment.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <limits>

#include "Tonelake/fingering/finger_search.h"
#include "Tonelake/fingering/pressed_strings.h"

namespace tonelake {
namespace {

// For the hand a string is muted, open, or pressed 0 to 3 frets above the lowest pressed fret. One
// digit a string makes a number of the shape.
constexpr int firstPressedDigit = 2;
constexpr std::size_t digitCount = firstPressedDigit + handFrets;
constexpr std::size_t shapeCount =
    digitCount * digitCount * digitCount * digitCount * digitCount * digitCount;

// The fingers of a shape in one small number: two bits a string hold its finger less one, and the
// frets tell which strings have a finger at all.
using PackedFingers = std::uint16_t;
constexpr PackedFingers notSearchedYet = 0;
constexpr PackedFingers heldByNobody = 1U << 12U;
constexpr PackedFingers held = 1U << 13U;
constexpr unsigned bitsPerString = 2;

// A search for shapes meets the same few thousand over and over, so each is worked out once in a
// process. Whichever threads meet one first all store the same number: no order is needed.
using RememberedFingers = std::array<std::atomic<PackedFingers>, shapeCount>;
constinit std::array<RememberedFingers, 2> remembered{};  // by FingerRules::barreMayCoverMuted

int lowestPressed(const Frets& frets) {
  int lowest = std::numeric_limits<std::int8_t>::max();
  for (const int fret : frets) lowest = fret > 0 && fret < lowest ? fret : lowest;
  return lowest;
}

std::size_t numberOfShape(const Frets& frets, int lowest) {
  std::size_t number = 0;
  for (const int fret : frets) {
    const int digit = fret > 0 ? fret - lowest + firstPressedDigit : std::max(fret + 1, 0);
    number = number * digitCount + static_cast<std::size_t>(digit);
  }
  return number;
}

PressedStrings pressedStrings(const Frets& frets, int lowest) {
  PressedStrings shape;
  StringSet string = 1;
  for (const int fret : frets) {
    if (fret < openString) shape.muted |= string;
    if (fret == openString) shape.open |= string;
    if (fret > openString && fret - lowest < handFrets) {
      shape.onFret[static_cast<std::size_t>(fret - lowest)] |= string;
    }
    string <<= 1U;
  }
  return shape;
}

PackedFingers pack(const std::optional<Fingers>& fingers) {
  if (!fingers) return heldByNobody;
  unsigned packed = 0;
  for (std::size_t string = 0; string < fingers->size(); ++string) {
    const int finger = (*fingers)[string];
    if (finger > 0) packed |= static_cast<unsigned>(finger - 1) << bitsPerString * string;
  }
  return static_cast<PackedFingers>(packed | held);
}

Fingers unpack(PackedFingers packed, const Frets& frets) {
  Fingers fingers{};
  for (std::size_t string = 0; string < frets.size(); ++string) {
    const unsigned finger = (packed >> bitsPerString * string & 3U) + 1;
    fingers[string] = static_cast<std::int8_t>(frets[string] > 0 ? finger : 0);
  }
  return fingers;
}

// The fingers of the largest part of a shape that a hand can hold, from the lowest fret up.
Fingers fingersForPart(PressedStrings shape) {
  auto fingers = searchFingers(shape, {});
  for (int fret = handFrets - 1; !fingers; fingers = searchFingers(shape, {})) {
    while (shape.at(fret) == 0) --fret;
    StringSet& strings = shape.onFret[static_cast<std::size_t>(fret)];
    strings = withoutHighest(strings);
  }
  return *fingers;
}

}  // namespace

std::optional<Fingers> findFingers(const Frets& frets, FingerRules rules) noexcept {
  const int lowest = lowestPressed(frets);
  const int highest = *std::max_element(frets.begin(), frets.end());
  if (highest - lowest >= handFrets) return std::nullopt;

  auto& remember = remembered[rules.barreMayCoverMuted ? 1 : 0][numberOfShape(frets, lowest)];
  PackedFingers packed = remember.load(std::memory_order_relaxed);
  if (packed == notSearchedYet) {
    packed = pack(searchFingers(pressedStrings(frets, lowest), rules));
    remember.store(packed, std::memory_order_relaxed);
  }
  if (packed == heldByNobody) return std::nullopt;
  return unpack(packed, frets);
}

WholeNumbers assignFingers(std::span<const WholeNumber> frets) {
  if (frets.size() != Tuning::stringCount) return {};
  WholeNumber lowest = std::numeric_limits<WholeNumber>::max();
  for (const WholeNumber fret : frets) {
    if (fret > 0) lowest = std::min(lowest, fret);
  }
  // Counted from the lowest pressed fret, every fret beyond the hand is as good as the first.
  Frets shape{};
  bool isPressed = false;
  for (std::size_t string = 0; string < shape.size(); ++string) {
    const WholeNumber fret = frets[string];
    isPressed = isPressed || fret > 0;
    const WholeNumber seen = fret > 0 ? std::min<WholeNumber>(fret - lowest, handFrets) + 1
                                      : std::max<WholeNumber>(fret, mutedString);
    shape[string] = static_cast<std::int8_t>(seen);
  }
  if (!isPressed) return {};
  const auto fingers = findFingers(shape);
  const Fingers result = fingers ? *fingers : fingersForPart(pressedStrings(shape, 1));
  return {result.begin(), result.end()};
}

}  // namespace tonelake
