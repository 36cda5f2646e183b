#pragma once

#include <vector>

#include "Tonelake/fingering/voicing.h"
#include "Tonelake/fingering/voicing_query.h"

namespace tonelake::Voicings {

/// Every voicing, judged, each once. Where the hand is lowest comes first, all else being in the
/// order of discovery. `options.limit` is not looked at.
std::vector<Voicing> searchVoicings(const VoicingQuery& query, const VoicingOptions& options);

}  // namespace tonelake::Voicings
