#pragma once

#include <memory>
#include <string>

#include <fmt/format.h>

#include "Tonelake/platform/string_table.h"

namespace desktop {

using tonelake::message;

/// The texts of this run. English until they are chosen, once, before anything else is said.
std::shared_ptr<const tonelake::StringTable> strings();
void chooseStrings(std::shared_ptr<const tonelake::StringTable> strings);

/// A text for people in the language of this run.
std::string translated(const char* english);

/// The same with the values put in its places, which are written {}, or {0} and {1} where there are
/// several, since another language may need them in another order.
template <typename... Values>
std::string translated(const char* english, const Values&... values) {
  return fmt::vformat(translated(english), fmt::make_format_args(values...));
}

}  // namespace desktop
