#pragma once

#include <string_view>

#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

/// A width that `text` does not exceed in the program's typefaces at `fontSize`, in the unit of
/// the size. Letters that these lack, and a machine sets in fonts of its own, are taken to fill a
/// square.
TONELAKE_API double largestTextWidth(std::string_view text, double fontSize);

/// The size, at most `fontSize`, at which `text` is no wider than `width`.
TONELAKE_API double fittingFontSize(std::string_view text, double fontSize, double width);

}  // namespace todaychord
