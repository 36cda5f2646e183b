#pragma once

#include <optional>
#include <string_view>

#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/api.h"

namespace tonelake::Chords {

/// The chord that a typed name stands for: any name of the dictionary, "#" and "b" being read as
/// "♯" and "♭" first ("F#m7b5/E"). Nothing for an unknown name. Any thread may call.
TONELAKE_API std::optional<Chord> lookUpChord(std::string_view name);

}  // namespace tonelake::Chords
