#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"

namespace zyndle {

/// A progression in a key.
struct KeyChords {
  std::string progression;  ///< "I-V-vi-IV"
  tonelake::Chord key;
  std::vector<tonelake::Chord> chords;
};

/// Reads the numerals of a progression, see readProgression, in a typed key, see readKey. Without
/// one it is C, or A minor where the home chord is minor. A CommandError tells what cannot be read
/// or written.
KeyChords readKeyChords(const std::vector<std::string>& numerals,
                        const std::optional<std::string>& key);

/// The chords of a song, typed as numerals in a key or, where the first word is no numeral, by
/// their names as readChordRow takes them.
std::vector<tonelake::Chord> readSongChords(const std::vector<std::string>& words,
                                            const std::optional<std::string>& key);

}  // namespace zyndle
