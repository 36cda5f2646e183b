#pragma once

#include <string>

namespace tonelake {

/// The host application's version ("1.4") and build ("212"); "0" where unknown. Both are part of
/// the key under which generated positions are stored, so an update leaves old ones behind.
struct ApplicationInformation {
  std::string version = "0";  ///< for readers: "1.4"
  std::string build = "0";    ///< one for each delivery of a version: "212"
};

}  // namespace tonelake
