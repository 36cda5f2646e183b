#pragma once

#include <string>
#include <string_view>

// Pure functions: any thread may call.
namespace tonelake {

/// `name` with "♯" for "#" and "♭" for "b": "Bb7#9" is "B♭7♯9". Safe with the names of chords and
/// with numerals, neither of which hold a "b" that is not a flat.
std::string withMusicSigns(std::string_view name);

/// `name` as it is typed, with "#" for "♯" and "b" for "♭"; 𝄪 stays.
std::string withTypedSigns(std::string_view name);

}  // namespace tonelake
