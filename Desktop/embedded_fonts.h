#pragma once

#include <span>

#include "Tonelake/platform/embedded_resources.h"

namespace desktop {

/// The typefaces in Desktop/fonts. Written by the build.
std::span<const tonelake::EmbeddedResource> embeddedFonts() noexcept;

}  // namespace desktop
