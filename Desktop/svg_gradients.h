#pragma once

#include <string>
#include <vector>

#include <pugixml.hpp>

#include "TodayChordExtension/diagram/scene.h"

namespace desktop {

/// Defines the gradients of a picture under its <defs>, each once.
class SvgGradients {
 public:
  SvgGradients(pugi::xml_node definitions, std::string idPrefix);

  /// The id of a gradient, defined when it is first asked for. `gradient` is no plain colour.
  std::string idOf(const todaychord::Paint& gradient);

 private:
  void define(const todaychord::Paint& gradient, const std::string& id);

  pugi::xml_node definitions_;
  std::string idPrefix_;
  std::vector<todaychord::Paint> gradients_;
};

}  // namespace desktop
