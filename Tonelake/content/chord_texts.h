#pragma once

#include <functional>
#include <map>
#include <string>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// Texts by chord type, for example "minor 7th". A type that is not there has no text.
using ChordTexts = std::map<std::string, std::string, std::less<>>;

// What chords are in words. The texts are in the locale that the process had at the first call of
// each; any thread may call.
//
// Descriptions name the tones of a chord by slots, "(--1--)" to "(--6--)", which whoever shows them
// replaces by the chord's own notes: "root ((--1--))" becomes "root (C)". A text uses only slots
// that its chord type has:
//   1  the root, also for the chord's name: "The (--1--) major chord"
//   2  the third, or the second or fourth in its place
//   3  the fifth
//   4  the seventh, or the sixth of sixth chords
//   5  the ninth, or the added eleventh or thirteenth
//   6  the eleventh above a ninth

/// Four adjectives for each chord type: "mellow, cool, soulful, relaxed".
TONELAKE_API const ChordTexts& chordCharacterData();

/// Three or four genres for each chord type: "Jazz, Soul, Funk, R&B".
TONELAKE_API const ChordTexts& chordGenreData();

/// A paragraph on each chord type: how it is built, how it sounds, where it is met.
TONELAKE_API const ChordTexts& chordDescriptionData();

/// A paragraph on what jazz guitarists do with many of them.
TONELAKE_API const ChordTexts& jazzChordDescriptionData();

}  // namespace tonelake
