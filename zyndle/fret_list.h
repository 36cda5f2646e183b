#pragma once

#include <string>

#include "Tonelake/theory/frets.h"

namespace zyndle {

/// The shape that a text such as "x32010", "8 10 10 9 8 8" or "x-3-2-0-1-0" writes, lowest string
/// first, x for a muted string. A CommandError that names the option --frets for any other text.
tonelake::Frets readFrets(const std::string& text);

}  // namespace zyndle
