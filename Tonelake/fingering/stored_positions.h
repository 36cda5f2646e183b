#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/platform/application_information.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake {

/// The key under which generated positions are stored, for example
/// "chordPositions-C-0,4,7--1-E,A,D,G,B,E-g2-v1.4-b212". Stored: do not change.
std::string storedPositionsKey(std::string_view rootNote, std::span<const WholeNumber> intervals,
                               WholeNumber limit, const TuningNames& tuning,
                               const ApplicationInformation& application);

/// The positions as a JSON list of records. Stored: do not change.
std::string encodePositions(const std::vector<ChordPosition>& positions);

/// The list back; nothing when the text is damaged, foreign or not valid UTF-8.
std::optional<std::vector<ChordPosition>> decodePositions(std::string_view text);

}  // namespace tonelake
