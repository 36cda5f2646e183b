#pragma once

#include "Tonelake/fingering/voicing.h"
#include "Tonelake/fingering/voicing_query.h"
#include "Tonelake/theory/frets.h"

namespace tonelake::Voicings {

/// The facts of a shape and its cost: a sum of small amounts for what the hand has to do and for
/// what is missing from the sound, the same for every chord. Open E minor, the easiest chord of
/// all, costs 22; a six-string barre some 60; what few would play, above 100. At least three
/// strings sound, or two of a power chord, and the fingers are those of findFingers.
Voicing judgeVoicing(const Frets& frets, const Fingers& fingers,
                     const VoicingQuery& query) noexcept;

}  // namespace tonelake::Voicings
