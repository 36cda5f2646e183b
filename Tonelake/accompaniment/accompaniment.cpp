#include "Tonelake/accompaniment/accompaniment.h"

#include <algorithm>

#include "Tonelake/accompaniment/chord_chart.h"
#include "Tonelake/accompaniment/players.h"

namespace tonelake {
namespace {

// See chooseBass.
template <typename Link>
const Link* chooseLink(const std::vector<Link>& links, WholeNumber complexity) {
  const Link* chosen = nullptr;
  for (const Link& link : links) {
    const bool isSimpler = chosen != nullptr && link.complexity < chosen->complexity;
    const bool isBetter = chosen == nullptr || (chosen->complexity > complexity && isSimpler) ||
                          (link.complexity <= complexity && link.complexity > chosen->complexity);
    if (isBetter) chosen = &link;
  }
  return chosen;
}

}  // namespace

Performance perform(const Accompaniment& accompaniment) {
  const ChordChart chart(accompaniment);
  Performance performance{accompaniment.arpeggio.timeSignature,
                          std::clamp(accompaniment.tempo, slowestTempo, fastestTempo),
                          chart.length(),
                          {},
                          {},
                          {}};
  if (chart.length() == 0) return performance;
  performance.guitar = playGuitar(accompaniment.arpeggio, chart);
  if (accompaniment.bass) performance.bass = playBass(*accompaniment.bass, chart);
  if (accompaniment.drums) performance.drums = playDrums(*accompaniment.drums, chart);
  return performance;
}

const BassPattern* chooseBass(const ArpeggioSequence& arpeggio, WholeNumber complexity) {
  const auto* link = chooseLink(arpeggio.associatedBassPatterns, complexity);
  return link == nullptr ? nullptr : &link->bassPattern;
}

const DrumPattern* chooseDrums(const ArpeggioSequence& arpeggio, WholeNumber complexity) {
  const auto* link = chooseLink(arpeggio.associatedDrumPatterns, complexity);
  return link == nullptr ? nullptr : &link->drumPattern;
}

}  // namespace tonelake
