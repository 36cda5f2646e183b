#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/chords/chord_data.h"
#include "Tonelake/chords/note_list.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/theory/pitch_class_set.h"

namespace tonelake {

/// Finds chords by their notes. Compares pitches, never spellings: each chord's set is made once,
/// and a search visits every chord. Any thread may search.
class TONELAKE_API ChordFinder {
 public:
  ChordFinder() = default;
  /// Over every type on every root. `types` is in display order.
  ChordFinder(std::span<const ChordData* const> types, std::span<const Note> roots);

  /// See ChordDataManager::findChordsExact.
  std::vector<Chord> findExact(const NoteList& notes) const;

  /// See ChordDataManager::findChordsMatching.
  std::vector<Chord> findMatching(PitchClassSet pitches) const;

 private:
  struct Type {
    std::string name;
    WholeNumbers notes;
  };

  // A type on a root, as short as it can be: a search runs over all of them.
  struct Entry {
    PitchClassSet tones;
    std::uint16_t type;  // its place in types_
    std::uint8_t root;   // its place in roots_
    std::uint8_t size;   // of tones
  };

  Chord chordOf(const Entry& entry) const;

  std::vector<Type> types_;
  std::vector<Note> roots_;
  std::vector<Entry> displayOrder_;  // roots, within a root types
  std::vector<Entry> rankOrder_;     // types in the order of preference, within a type roots
};

}  // namespace tonelake
