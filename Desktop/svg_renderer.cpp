#include "Desktop/svg_renderer.h"

#include <algorithm>
#include <sstream>
#include <utility>
#include <variant>

#include <pugixml.hpp>

#include "Desktop/number_text.h"
#include "Desktop/pluck_script.h"
#include "Desktop/svg_attributes.h"
#include "Desktop/svg_gradients.h"
#include "Desktop/svg_text.h"
#include "Desktop/typefaces.h"
#include "TodayChordExtension/diagram/icons.h"

namespace desktop {
namespace {

using todaychord::Color;
using todaychord::Paint;

// Blanks at the ends and one after another are dropped by browsers unless they are told not to.
bool losesBlanks(const std::string& text) {
  return !text.empty() &&
         (text.front() == ' ' || text.back() == ' ' || text.find("  ") != std::string::npos);
}

// Whether there is an item for which `isWanted` is true, inside groups too.
template <typename Predicate>
bool containsAny(const todaychord::SceneItems& items, Predicate isWanted) {
  return std::any_of(items.begin(), items.end(), [&](const todaychord::SceneItem& item) {
    const auto* group = std::get_if<todaychord::SceneGroup>(&item.content);
    return isWanted(item) || (group != nullptr && containsAny(group->items, isWanted));
  });
}

bool isLink(const todaychord::SceneItem& item) {
  return std::holds_alternative<todaychord::LinkArea>(item.content);
}

bool isString(const todaychord::SceneItem& item) {
  const auto* group = std::get_if<todaychord::SceneGroup>(&item.content);
  return group != nullptr && group->name.starts_with("string-");
}

void setFrame(pugi::xml_node node, const todaychord::Rectangle& frame) {
  setAttribute(node, "x", frame.x);
  setAttribute(node, "y", frame.y);
  setAttribute(node, "width", frame.width);
  setAttribute(node, "height", frame.height);
}

// Writes a scene's items under a node.
class SvgWriter {
 public:
  SvgWriter(pugi::xml_node definitions, std::string idPrefix)
      : gradients_(definitions, std::move(idPrefix)) {}

  void write(const todaychord::SceneItems& items, pugi::xml_node parent) {
    for (const todaychord::SceneItem& item : items) {
      std::visit([&](const auto& content) { writeItem(content, parent); }, item.content);
    }
  }

 private:
  void writeItem(const todaychord::PathItem& item, pugi::xml_node parent) {
    pugi::xml_node node = parent.append_child("path");
    setAttribute(node, "d", formatPath(item.path));
    if (item.fill) {
      setPaint(node, "fill", *item.fill);
    } else {
      setAttribute(node, "fill", "none");
    }
    if (item.stroke) {
      setPaint(node, "stroke", item.stroke->paint);
      setAttribute(node, "stroke-width", item.stroke->width);
      setAttribute(node, "stroke-miterlimit", item.stroke->miterLimit);
      if (item.stroke->cap == todaychord::LineCap::round)
        setAttribute(node, "stroke-linecap", "round");
      if (item.stroke->join == todaychord::LineJoin::round)
        setAttribute(node, "stroke-linejoin", "round");
    }
    setOpacity(node, "opacity", item.opacity);
  }

  void writeItem(const todaychord::TextItem& item, pugi::xml_node parent) {
    pugi::xml_node node = parent.append_child("text");
    const Typeface& typeface = typefaceCalled(item.font.name);
    setAttribute(node, "x", item.baseline.x);
    setAttribute(node, "y", item.baseline.y);
    const std::string text = cleanForXml(item.text);
    if (losesBlanks(text)) setAttribute(node, "xml:space", "preserve");
    setAttribute(node, "font-family", typeface.webFamilies);
    setAttribute(node, "font-weight", typeface.weight);
    setAttribute(node, "font-size", item.font.size);
    if (item.anchor != todaychord::TextAnchor::start) {
      setAttribute(node, "text-anchor",
                   item.anchor == todaychord::TextAnchor::middle ? "middle" : "end");
    }
    setPaint(node, "fill", item.color);
    writeSpans(raiseMusicSigns(text, item.font.size), item.font.size, node);
  }

  // An empty text around each span keeps line ends out of the line.
  static void writeSpans(const std::vector<TextSpan>& spans, double fontSize, pugi::xml_node text) {
    for (const TextSpan& span : spans) {
      pugi::xml_node parent = text;
      if (span.shift != 0) {
        text.append_child(pugi::node_pcdata);
        parent = text.append_child("tspan");
        setAttribute(parent, "dy", span.shift);
        if (span.growth != 1) setAttribute(parent, "font-size", fontSize * span.growth);
      }
      parent.append_child(pugi::node_pcdata).set_value(span.text.c_str());
    }
    text.append_child(pugi::node_pcdata);
  }

  void writeItem(const todaychord::ImageItem& item, pugi::xml_node parent) {
    write(todaychord::drawIcon(item), parent);
  }

  void writeItem(const todaychord::LinkArea& item, pugi::xml_node parent) {
    pugi::xml_node link = parent.append_child("a");
    setAttribute(link, "href", item.address);
    setAttribute(link, "aria-label", item.label);
    pugi::xml_node area = link.append_child("rect");
    setFrame(area, item.frame);
    setAttribute(area, "fill", "none");
    setAttribute(area, "pointer-events", "all");
  }

  void writeItem(const todaychord::SceneGroup& group, pugi::xml_node parent) {
    pugi::xml_node node = parent.append_child("g");
    if (!group.name.empty()) setAttribute(node, "class", group.name);
    write(group.items, node);
  }

  // `name` is the attribute: fill or stroke. Gradients carry their opacity themselves.
  void setPaint(pugi::xml_node node, const std::string& name, const Paint& paint) {
    const auto* color = std::get_if<Color>(&paint);
    if (color == nullptr) {
      setAttribute(node, name.c_str(), "url(#" + gradients_.idOf(paint) + ')');
      return;
    }
    setAttribute(node, name.c_str(), hexadecimal(*color));
    setOpacity(node, (name + "-opacity").c_str(), color->opacity);
  }

  SvgGradients gradients_;
};

// A picture with links is no single image to a screen reader: the links must stay reachable.
void writeRole(pugi::xml_node svg, const todaychord::Scene& scene, const std::string& idPrefix) {
  setAttribute(svg, "role", containsAny(scene.items, isLink) ? "group" : "img");
  const auto addText = [&](const char* element, const char* attribute, const std::string& text) {
    if (text.empty()) return;
    const std::string id = idPrefix + element;
    setAttribute(svg, attribute, id);
    pugi::xml_node node = svg.append_child(element);
    setAttribute(node, "id", id);
    node.text().set(cleanForXml(text).c_str());
  };
  addText("title", "aria-labelledby", scene.title);
  addText("desc", "aria-describedby", scene.description);
}

}  // namespace

std::string renderSvg(const todaychord::Scene& scene, const SvgOptions& options) {
  pugi::xml_document document;
  pugi::xml_node svg = document.append_child("svg");
  setAttribute(svg, "xmlns", "http://www.w3.org/2000/svg");
  setAttribute(svg, "width", scene.width);
  setAttribute(svg, "height", scene.height);
  setAttribute(svg, "viewBox",
               "0 0 " + formatNumber(scene.width) + ' ' + formatNumber(scene.height));
  // Letters stand as they were measured, at every size: unhinted, and none joined to "fi".
  setAttribute(svg, "text-rendering", "geometricPrecision");
  setAttribute(svg, "style", "font-variant-ligatures:none");
  writeRole(svg, scene, options.idPrefix);
  pugi::xml_node definitions = svg.append_child("defs");
  SvgWriter(definitions, options.idPrefix).write(scene.items, svg);
  if (definitions.first_child().empty()) svg.remove_child(definitions);
  if (options.isPluckable && containsAny(scene.items, isString)) {
    svg.append_child("script").append_child(pugi::node_cdata).set_value(pluckScript().c_str());
  }
  std::ostringstream text;
  document.save(text, "  ", pugi::format_default | pugi::format_no_declaration,
                pugi::encoding_utf8);
  return text.str();
}

}  // namespace desktop
