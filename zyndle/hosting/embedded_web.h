#pragma once

#include <span>

#include "Tonelake/platform/embedded_resources.h"

namespace zyndle {

/// What the gallery's page is made of: style and script, and the licences of its typefaces.
/// Written by the build.
std::span<const tonelake::EmbeddedResource> embeddedWeb() noexcept;

}  // namespace zyndle
