#pragma once

#include <span>
#include <vector>

#include "Tonelake/fingering/voicing.h"

namespace tonelake::Voicings {

/// What it costs the hand to get from one voicing to the next, in the unit of Voicing::cost. The
/// hand moves along the neck, and in the hand each finger stays where it is, moves over, is lifted
/// or is put down. Less than 0 when fingers stay on their strings and frets: nothing is easier
/// than a common finger. A shape that slides along the neck as it is costs only the hand's way.
/// From open C major to open A minor it is 4: two fingers stay and one moves over.
int costOfChange(const Voicing& from, const Voicing& to) noexcept;

/// One voicing out of each list so that everything together costs least: the voicings themselves
/// and the changes between them. The first of equals, looking at the last chord first. Empty when
/// a list is empty.
std::vector<Voicing> connect(std::span<const std::vector<Voicing>> candidates);

}  // namespace tonelake::Voicings
