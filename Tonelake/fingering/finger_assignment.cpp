#include "Tonelake/fingering/finger_assignment.h"

#include <algorithm>

namespace tonelake {
namespace {

constexpr int stringCount = Tuning::stringCount;

// One finger on one fret, fingers not falling as frets rise, nothing open, muted or lower between
// two strings of one finger, and sharing above the lowest fret only by neighbours.
bool isAllowed(const Frets& frets, const Fingers& fingers, int lowest) {
  for (std::size_t a = 0; a < frets.size(); ++a) {
    for (std::size_t b = 0; b < frets.size(); ++b) {
      if (fingers[a] == 0 || fingers[b] == 0 || a == b) continue;
      if (frets[a] < frets[b] && fingers[a] >= fingers[b]) return false;
      if (frets[a] == frets[b] && fingers[a] == fingers[b] && a < b) {
        for (std::size_t i = a + 1; i < b; ++i) {
          if (frets[i] < frets[a] || (frets[a] > lowest && fingers[i] != fingers[a])) return false;
        }
      }
    }
  }
  return true;
}

bool assign(const Frets& frets, Fingers& fingers, int lowest, std::size_t string) {
  if (string == frets.size()) return isAllowed(frets, fingers, lowest);
  if (frets[string] <= 0) return assign(frets, fingers, lowest, string + 1);
  for (std::int8_t finger = 1; finger <= 4; ++finger) {
    fingers[string] = finger;
    if (assign(frets, fingers, lowest, string + 1)) return true;
  }
  return false;
}

}  // namespace

std::optional<Fingers> findFingers(const Frets& frets) noexcept {
  int lowest = 0;
  for (const int fret : frets) {
    if (fret > 0) lowest = lowest == 0 ? fret : std::min(lowest, fret);
  }
  Fingers fingers{};
  return assign(frets, fingers, lowest, 0) ? std::optional(fingers) : std::nullopt;
}

WholeNumbers assignFingers(std::span<const WholeNumber> frets) {
  if (frets.size() != stringCount) return {};
  Frets shape{};
  std::transform(frets.begin(), frets.end(), shape.begin(),
                 [](WholeNumber fret) { return static_cast<std::int8_t>(fret); });
  if (std::none_of(frets.begin(), frets.end(), [](WholeNumber fret) { return fret > 0; }))
    return {};
  const auto fingers = findFingers(shape);
  if (fingers) return {fingers->begin(), fingers->end()};
  return WholeNumbers(stringCount, 0);
}

}  // namespace tonelake
