#pragma once

#include "Desktop/translation.h"

namespace zyndle {

using desktop::chooseStrings;
using desktop::strings;
using desktop::translated;
using tonelake::message;

}  // namespace zyndle
