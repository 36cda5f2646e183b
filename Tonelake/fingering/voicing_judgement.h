#pragma once

#include "Tonelake/fingering/voicing.h"
#include "Tonelake/fingering/voicing_query.h"
#include "Tonelake/theory/frets.h"

namespace tonelake::Voicings {

/// The facts of a shape and its cost: a sum of small amounts for what the hand has to do and for
/// what is missing from the sound, the same amounts for every chord. Open E minor costs 14, open C
/// major 79, which few first choices exceed; some voicings cost more than 200. At least three
/// strings sound, or two of a power chord, and the fingers are those of findFingers.
Voicing judgeVoicing(const Frets& frets, const Fingers& fingers,
                     const VoicingQuery& query) noexcept;

}  // namespace tonelake::Voicings
