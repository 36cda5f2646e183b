#include "Tonelake/accompaniment/performance.h"

namespace tonelake {

WholeNumber ticksOf(NoteDuration duration) noexcept {
  constexpr double crotchetsOfWhole = 4;
  return static_cast<WholeNumber>(rawValue(duration) * crotchetsOfWhole * ticksPerCrotchet);
}

WholeNumber ticksOfBar(TimeSignature timeSignature) noexcept {
  return (timeSignature == TimeSignature::ts_34 ? 3 : 4) * ticksPerCrotchet;
}

}  // namespace tonelake
