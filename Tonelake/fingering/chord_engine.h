#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/fingering/finger_assignment.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/platform/platform.h"
#include "Tonelake/theory/spelling_tables.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake {

/// Raised whenever the search would give other results: old stored lists are then left behind.
inline constexpr int chordShapeGeneratorVersion = 2;

/// Generates the playable shapes of a chord and remembers them in a settings store. Holds no
/// state of its own: engines are cheap, and any thread may use one.
class TONELAKE_API ChordEngine {
 public:
  /// Names by semitone from C, two octaves.
  using NameTable = std::span<const std::string_view, 24>;

  /// On the process's platform, or on what it is given.
  ChordEngine();
  /// @overload
  explicit ChordEngine(const Platform& platform);

  // Note names by semitone from C, two octaves. Notes in a search are written as in the first
  // table; the others serve to recognise a root or an open string in any spelling.
  /// Naturals and sharps.
  const NameTable notesArrayRegular{tonelake::notesArrayRegular.begin(), 24};
  /// With E♯ and B♯.
  const NameTable notesArraySharpNotes{tonelake::notesArraySharpNotes.begin(), 24};
  /// With F♭ and C♭.
  const NameTable notesArrayFlatNotes{tonelake::notesArrayFlatNotes.begin(), 24};
  /// C𝄪 for D, and triple sharps.
  const NameTable notesArrayDoubleSharpNotes{tonelake::notesArrayDoubleSharpNotes.begin(), 24};
  /// E♭♭ for D, and triple flats.
  const NameTable notesArrayDoubleFlatNotes{tonelake::notesArrayDoubleFlatNotes.begin(), 24};
  const std::string appVersion;  ///< of the application; in the key of stored results
  const std::string build;       ///< of the application; in the key of stored results
  /// In the key of stored results.
  const int chordShapeGeneratorVersion = tonelake::chordShapeGeneratorVersion;

  /// The shapes of the chord that `intervals` (semitones above the root) make on `rootNote` (a raw
  /// value of Note) in `tuning` (six names, lowest first), in order of discovery, complete voicings
  /// first. `limit` -1 gives all; otherwise the search stops once it holds that many complete
  /// voicings: one for 0 and for any other negative number. Stored results are returned as they
  /// stand. Empty for unknown names, no intervals or a negative one, or a tuning that is not six
  /// names.
  std::vector<ChordPosition> generateChordShapes(std::string_view rootNote,
                                                 std::span<const WholeNumber> intervals,
                                                 WholeNumber limit,
                                                 const TuningNames& tuning) const;

  /// The search itself, nothing read from the store or written to it.
  static std::vector<ChordPosition> searchChordShapes(std::string_view rootNote,
                                                      std::span<const WholeNumber> intervals,
                                                      WholeNumber limit, const TuningNames& tuning);

  /// See tonelake::assignFingers.
  static WholeNumbers assignFingers(std::span<const WholeNumber> frets) {
    return tonelake::assignFingers(frets);
  }

 private:
  std::shared_ptr<SettingsStore> store_;
};

}  // namespace tonelake
