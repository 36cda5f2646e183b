#pragma once

#include <string>

namespace desktop {

/// JavaScript that lets a browser pluck the strings of every chord diagram in the page or picture
/// at whose end it stands: they swing on their springs when a pointer crosses or touches them. For
/// those who want less motion they only light up.
std::string pluckScript();

}  // namespace desktop
