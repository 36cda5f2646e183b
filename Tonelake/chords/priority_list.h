#pragma once

#include <span>

#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/theory/frets.h"

// Made on first use and never changed: any thread may call.
namespace tonelake {

/// A chord and the fingerings to offer first for it, in order of preference.
struct PriorityEntry {
  Chord chord;                        ///< in root position
  std::span<const Frets> fingerings;  ///< the best first; kept for good
};

/// Preferred fingerings of common chords. Roots are spelled with sharps, variants are 0: E♭ major
/// has no entry, D♯ major has.
TONELAKE_API std::span<const PriorityEntry> priorityList();

/// The chord's entry, or an empty list.
TONELAKE_API std::span<const Frets> preferredFingerings(const Chord& chord);

}  // namespace tonelake
