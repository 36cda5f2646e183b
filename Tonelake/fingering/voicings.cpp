#include "Tonelake/fingering/voicings.h"

#include <algorithm>
#include <cstdint>

#include "Tonelake/fingering/voicing_connection.h"
#include "Tonelake/fingering/voicing_query.h"
#include "Tonelake/fingering/voicing_search.h"

namespace tonelake::Voicings {
namespace {

// The best `limit` voicings in order. Numbers are sorted rather than the voicings themselves:
// the cost above, the place below, so that equal costs stay in the order of discovery.
std::vector<Voicing> bestFirst(const std::vector<Voicing>& voicings, WholeNumber limit) {
  constexpr unsigned placeBits = 32;
  std::vector<std::int64_t> order(voicings.size());
  for (std::size_t i = 0; i < order.size(); ++i) {
    order[i] = voicings[i].cost * (std::int64_t{1} << placeBits) + static_cast<std::int64_t>(i);
  }
  std::sort(order.begin(), order.end());
  if (limit >= 0 && limit < static_cast<WholeNumber>(order.size())) {
    order.resize(static_cast<std::size_t>(limit));
  }
  std::vector<Voicing> best;
  best.reserve(order.size());
  for (const std::int64_t entry : order) {
    best.push_back(voicings[static_cast<std::size_t>(static_cast<std::uint32_t>(entry))]);
  }
  return best;
}

// Without the voicings that cost much more than the first: nobody plays an awkward shape to spare
// a finger. The voicings are in order.
std::vector<Voicing> reasonable(std::vector<Voicing> voicings) {
  constexpr int mostAboveBest = 60;
  const auto end = std::find_if(voicings.begin(), voicings.end(), [&](const Voicing& voicing) {
    return voicing.cost > voicings.front().cost + mostAboveBest;
  });
  voicings.erase(end, voicings.end());
  return voicings;
}

}  // namespace

std::vector<Voicing> findVoicings(const Chord& chord, const TuningNames& tuning,
                                  const VoicingOptions& options) {
  const auto query = makeVoicingQuery(chord, tuning, options.capo);
  if (!query) return {};
  return bestFirst(searchVoicings(*query, options), options.limit);
}

std::vector<Voicing> connectVoicings(const std::vector<Chord>& chords, const TuningNames& tuning,
                                     const VoicingOptions& options) {
  std::vector<std::vector<Voicing>> candidates;
  candidates.reserve(chords.size());
  for (const Chord& chord : chords) {
    candidates.push_back(reasonable(findVoicings(chord, tuning, options)));
  }
  return connect(candidates);
}

}  // namespace tonelake::Voicings
