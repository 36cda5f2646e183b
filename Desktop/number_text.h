#pragma once

#include <string>

namespace desktop {

/// At most three decimals, none that are not needed, a point whatever the locale: "12", "0.5",
/// "-3.333". Numbers that are not finite are "0".
std::string formatNumber(double number);

}  // namespace desktop
