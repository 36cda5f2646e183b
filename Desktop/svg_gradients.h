#pragma once

#include <string>
#include <vector>

#include <pugixml.hpp>

#include "TodayChordExtension/diagram/scene.h"

namespace desktop {

// Attributes of SVG elements: texts cleaned for XML, numbers short.
void setAttribute(pugi::xml_node node, const char* name, const std::string& value);
void setAttribute(pugi::xml_node node, const char* name, double value);

/// The same, but nothing for 1: what has no opacity is opaque.
void setOpacity(pugi::xml_node node, const char* name, double opacity);

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
