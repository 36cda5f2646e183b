#pragma once

#include <string>

#include <pugixml.hpp>

namespace desktop {

// Attributes of SVG elements: texts cleaned for XML, numbers short.
void setAttribute(pugi::xml_node node, const char* name, const std::string& value);
void setAttribute(pugi::xml_node node, const char* name, double value);

/// The same, but nothing for 1: what has no opacity is opaque.
void setOpacity(pugi::xml_node node, const char* name, double opacity);

}  // namespace desktop
