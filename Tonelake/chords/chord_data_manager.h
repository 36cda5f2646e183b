#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/chords/chord_data.h"
#include "Tonelake/chords/chord_finder.h"
#include "Tonelake/chords/claimed_names.h"
#include "Tonelake/chords/priority_list.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/diagnostics.h"

namespace tonelake {

/// The chord-type dictionary and what is derived from it. Nothing changes after construction, so
/// any thread may read.
class TONELAKE_API ChordDataManager {
 public:
  /// Chords by every name that they go by.
  using ChordDictionary = std::unordered_map<std::string, Chord>;

  /// The library's own dictionary of chord types, made on first use.
  static const ChordDataManager& shared();

  /// A dictionary from a text of the same form. When it cannot be read, one diagnostic line says
  /// why and the manager is empty: every look-up gives its empty result.
  ChordDataManager(std::string_view text, Diagnostics& diagnostics);

  /// The data of every chord type, by its exact name.
  const std::map<std::string, ChordData, std::less<>>& chordData() const { return chordData_; }

  /// The data of one chord type (exact name), owned by the manager; nullptr when unknown.
  const ChordData* chordData(std::string_view chordType) const;

  /// Chord-type names as screens list them: the order of the text, but "5" after
  /// "minor major 7th".
  const std::vector<std::string>& chordTypes() const { return chordTypes_; }

  /// Chord by name: every title, shortest title and alternate title of every root in
  /// allRootNotes, type and variant, and the same written with "#" and "b". Where two chords
  /// claim a name the exact title wins, then the shorter type name, then display order. Made on
  /// first use, for a search over all names; one name is found faster by chordNamed.
  const ChordDictionary& chordDictionary() const;

  /// The chord that the dictionary has under `name`, which is written with "♯" and "♭". Makes the
  /// names of its root only, on first use.
  std::optional<Chord> chordNamed(std::string_view name) const;

  /// Preferred fingerings by chord.
  std::span<const PriorityEntry> priorityList() const { return tonelake::priorityList(); }

  /// The roots that chords are offered on, in display order.
  std::span<const Note> allRootNotes() const;

  /// The chords whose tones are exactly `notes`, the first of which is the bass. Names with commas
  /// between them, in any case, "#" and "b" for the signs: "E, G, C" gives C major over E,
  /// "c,eb,g" C minor. Only pitches count, so that a chord appears on each spelling of its root.
  /// Empty when a piece is no note or a pitch is named twice. In display order: roots as in
  /// allRootNotes, on each root types as in chordTypes.
  std::vector<Chord> findChordsExact(std::string_view notes) const;

  /// The chords in root position that hold all of `notes` or are held by them, best first: equal
  /// ones, then by the number of tones that nobody named, then by the number of notes that the
  /// chord lacks; among those major, minor, dominant 7th, major 7th and minor 7th first, the other
  /// types by name, and a type's roots in display order. "C, E, B♭" gives C dominant 7th first.
  /// Pieces that are no notes do not count; empty with fewer than two pitches.
  std::vector<Chord> findChordsMatching(std::string_view notes) const;

 private:
  struct RootNames {
    std::once_flag once;
    ClaimedNames names;
  };

  const ClaimedNames& namesOn(std::size_t rootIndex) const;
  ChordDictionary makeDictionary() const;

  std::map<std::string, ChordData, std::less<>> chordData_;
  std::vector<std::string> chordTypes_;
  ChordFinder finder_;
  mutable std::array<RootNames, 17> rootNames_;  // one for each of allRootNotes()
  mutable std::once_flag dictionaryOnce_;
  mutable ChordDictionary chordDictionary_;
};

/// ChordDataManager::shared().chordTypes().
TONELAKE_API const std::vector<std::string>& chordTypes();

namespace Chords {

/// ChordDataManager::shared().chordData().
TONELAKE_API const std::map<std::string, ChordData, std::less<>>& getChordData();
/// The data of one chord type (exact name), kept for good; nullptr when unknown.
TONELAKE_API const ChordData* getChordData(std::string_view forChordType);
/// ChordDataManager::shared().chordDictionary().
TONELAKE_API const ChordDataManager::ChordDictionary& getChordDictionary();

}  // namespace Chords
}  // namespace tonelake
