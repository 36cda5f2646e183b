#pragma once

#include <span>

#include "Tonelake/platform/embedded_resources.h"

namespace desktop {

/// Desktop/web/pluck.js. Written by the build.
std::span<const tonelake::EmbeddedResource> embeddedScripts() noexcept;

}  // namespace desktop
