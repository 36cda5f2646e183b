#pragma once

#include <string>

#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/fingering/finger_rules.h"
#include "Tonelake/theory/frets.h"

namespace tonelake::testing {

/// The first rule of fingering that these fingers break on these frets, in words; "" when they
/// break none. Slow, plain, and written apart from the search, which it is there to judge.
std::string brokenFingerRule(const Frets& frets, const Fingers& fingers, FingerRules rules = {});
std::string brokenFingerRule(const ChordPosition& shape, FingerRules rules = {});

}  // namespace tonelake::testing
