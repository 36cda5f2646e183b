#include "Desktop/svg_attributes.h"

#include "Desktop/number_text.h"
#include "Desktop/svg_text.h"

namespace desktop {

void setAttribute(pugi::xml_node node, const char* name, const std::string& value) {
  node.append_attribute(name).set_value(cleanForXml(value).c_str());
}

void setAttribute(pugi::xml_node node, const char* name, double value) {
  node.append_attribute(name).set_value(formatNumber(value).c_str());
}

void setOpacity(pugi::xml_node node, const char* name, double opacity) {
  if (opacity != 1) setAttribute(node, name, opacity);
}

}  // namespace desktop
