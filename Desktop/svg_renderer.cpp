#include "Desktop/svg_renderer.h"

#include <sstream>
#include <utility>
#include <variant>
#include <vector>

#include <pugixml.hpp>

#include "Desktop/svg_text.h"

namespace desktop {
namespace {

using todaychord::Color;
using todaychord::LinearGradient;
using todaychord::Paint;
using todaychord::RadialGradient;

// A typeface of the program as browsers ask for it. The music font holds the signs ♯ ♭ 𝄪.
struct WebFont {
  const char* name;
  const char* family;
  const char* weight;
};

// clang-format off
constexpr WebFont webFonts[] = {
    {"Space Grotesk Medium",  "'Space Grotesk', 'Noto Music', sans-serif", "500"},
    {"SpaceGrotesk-SemiBold", "'Space Grotesk', 'Noto Music', sans-serif", "600"},
};
// clang-format on
constexpr WebFont otherFont{"", "sans-serif", "400"};

const WebFont& findWebFont(const std::string& name) {
  for (const WebFont& font : webFonts) {
    if (name == font.name) return font;
  }
  return otherFont;
}

// Blanks at the ends and one after another are dropped by browsers unless they are told not to.
bool losesBlanks(const std::string& text) {
  return !text.empty() &&
         (text.front() == ' ' || text.back() == ' ' || text.find("  ") != std::string::npos);
}

bool containsLink(const todaychord::SceneItems& items) {
  for (const todaychord::SceneItem& item : items) {
    if (std::holds_alternative<todaychord::LinkArea>(item.content)) return true;
    const auto* group = std::get_if<todaychord::SceneGroup>(&item.content);
    if (group != nullptr && containsLink(group->items)) return true;
  }
  return false;
}

void set(pugi::xml_node node, const char* name, const std::string& value) {
  node.append_attribute(name).set_value(cleanForXml(value).c_str());
}

void set(pugi::xml_node node, const char* name, double value) {
  node.append_attribute(name).set_value(formatNumber(value).c_str());
}

void setOpacity(pugi::xml_node node, const char* name, double opacity) {
  if (opacity != 1) set(node, name, opacity);
}

void setFrame(pugi::xml_node node, const todaychord::Rectangle& frame) {
  set(node, "x", frame.x);
  set(node, "y", frame.y);
  set(node, "width", frame.width);
  set(node, "height", frame.height);
}

// Writes a scene's items under a node. Gradients are collected in <defs>, each once.
class SvgWriter {
 public:
  SvgWriter(pugi::xml_node definitions, std::string idPrefix)
      : definitions_(definitions), idPrefix_(std::move(idPrefix)) {}

  void write(const todaychord::SceneItems& items, pugi::xml_node parent) {
    for (const todaychord::SceneItem& item : items) {
      std::visit([&](const auto& content) { writeItem(content, parent); }, item.content);
    }
  }

 private:
  void writeItem(const todaychord::PathItem& item, pugi::xml_node parent) {
    pugi::xml_node node = parent.append_child("path");
    set(node, "d", formatPath(item.path));
    if (item.fill) {
      setPaint(node, "fill", *item.fill);
    } else {
      set(node, "fill", "none");
    }
    if (item.stroke) {
      setPaint(node, "stroke", item.stroke->paint);
      set(node, "stroke-width", item.stroke->width);
      set(node, "stroke-miterlimit", item.stroke->miterLimit);
      if (item.stroke->cap == todaychord::LineCap::round) set(node, "stroke-linecap", "round");
    }
    setOpacity(node, "opacity", item.opacity);
  }

  void writeItem(const todaychord::TextItem& item, pugi::xml_node parent) {
    pugi::xml_node node = parent.append_child("text");
    const WebFont& font = findWebFont(item.font.name);
    set(node, "x", item.baseline.x);
    set(node, "y", item.baseline.y);
    const std::string text = cleanForXml(item.text);
    const std::string shifts = formatSignShifts(text, item.font.size);
    if (!shifts.empty()) set(node, "dy", shifts);
    if (losesBlanks(text)) set(node, "xml:space", "preserve");
    set(node, "font-family", font.family);
    set(node, "font-weight", font.weight);
    set(node, "font-size", item.font.size);
    if (item.anchor != todaychord::TextAnchor::start) {
      set(node, "text-anchor", item.anchor == todaychord::TextAnchor::middle ? "middle" : "end");
    }
    setPaint(node, "fill", item.color);
    node.text().set(text.c_str());
  }

  void writeItem(const todaychord::ImageItem& item, pugi::xml_node parent) {
    pugi::xml_node node = parent.append_child("use");
    set(node, "href", '#' + item.name);
    setFrame(node, item.frame);
    setPaint(node, "color", item.tint);
  }

  void writeItem(const todaychord::LinkArea& item, pugi::xml_node parent) {
    pugi::xml_node link = parent.append_child("a");
    set(link, "href", item.address);
    set(link, "aria-label", item.label);
    pugi::xml_node area = link.append_child("rect");
    setFrame(area, item.frame);
    set(area, "fill", "none");
    set(area, "pointer-events", "all");
  }

  void writeItem(const todaychord::SceneGroup& group, pugi::xml_node parent) {
    pugi::xml_node node = parent.append_child("g");
    if (!group.name.empty()) set(node, "class", group.name);
    write(group.items, node);
  }

  // `name` is the attribute: fill, stroke or color. Gradients carry their opacity themselves.
  void setPaint(pugi::xml_node node, const std::string& name, const Paint& paint) {
    const auto* color = std::get_if<Color>(&paint);
    if (color == nullptr) {
      set(node, name.c_str(), "url(#" + gradientId(paint) + ')');
      return;
    }
    set(node, name.c_str(), formatColor(*color));
    setOpacity(node, (name == "color" ? "opacity" : name + "-opacity").c_str(), color->opacity);
  }

  // Pictures hold a handful of gradients: a search through them costs less than an index.
  std::string gradientId(const Paint& paint) {
    std::size_t i = 0;
    while (i < gradients_.size() && !(gradients_[i] == paint)) ++i;
    std::string id = idPrefix_ + "gradient-" + std::to_string(i + 1);
    if (i == gradients_.size()) {
      gradients_.push_back(paint);
      define(paint, id);
    }
    return id;
  }

  void define(const Paint& paint, const std::string& id) {
    const auto* linear = std::get_if<LinearGradient>(&paint);
    pugi::xml_node node =
        definitions_.append_child(linear != nullptr ? "linearGradient" : "radialGradient");
    set(node, "id", id);
    set(node, "gradientUnits", "userSpaceOnUse");
    if (linear != nullptr) {
      set(node, "x1", linear->start.x);
      set(node, "y1", linear->start.y);
      set(node, "x2", linear->end.x);
      set(node, "y2", linear->end.y);
      writeStops(linear->stops, node);
    } else if (const auto* radial = std::get_if<RadialGradient>(&paint)) {
      set(node, "cx", radial->centre.x);
      set(node, "cy", radial->centre.y);
      set(node, "r", radial->radius);
      writeStops(radial->stops, node);
    }
  }

  static void writeStops(const todaychord::Gradient& stops, pugi::xml_node parent) {
    for (const todaychord::ColorStop& stop : stops) {
      pugi::xml_node node = parent.append_child("stop");
      set(node, "offset", stop.place);
      set(node, "stop-color", formatColor(stop.color));
      setOpacity(node, "stop-opacity", stop.color.opacity);
    }
  }

  pugi::xml_node definitions_;
  std::string idPrefix_;
  std::vector<Paint> gradients_;
};

// A picture with links is no single image to a screen reader: the links must stay reachable.
void writeRole(pugi::xml_node svg, const todaychord::Scene& scene, const std::string& idPrefix) {
  set(svg, "role", containsLink(scene.items) ? "group" : "img");
  const auto addText = [&](const char* element, const char* attribute, const std::string& text) {
    if (text.empty()) return;
    const std::string id = idPrefix + element;
    set(svg, attribute, id);
    pugi::xml_node node = svg.append_child(element);
    set(node, "id", id);
    node.text().set(cleanForXml(text).c_str());
  };
  addText("title", "aria-labelledby", scene.title);
  addText("desc", "aria-describedby", scene.description);
}

}  // namespace

std::string renderSvg(const todaychord::Scene& scene, const std::string& idPrefix) {
  pugi::xml_document document;
  pugi::xml_node svg = document.append_child("svg");
  set(svg, "xmlns", "http://www.w3.org/2000/svg");
  set(svg, "width", scene.width);
  set(svg, "height", scene.height);
  set(svg, "viewBox", "0 0 " + formatNumber(scene.width) + ' ' + formatNumber(scene.height));
  writeRole(svg, scene, idPrefix);
  pugi::xml_node definitions = svg.append_child("defs");
  SvgWriter(definitions, idPrefix).write(scene.items, svg);
  if (definitions.first_child().empty()) svg.remove_child(definitions);
  std::ostringstream text;
  document.save(text, "  ", pugi::format_default | pugi::format_no_declaration,
                pugi::encoding_utf8);
  return text.str();
}

}  // namespace desktop
