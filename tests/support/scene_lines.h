#pragma once

#include <iomanip>
#include <sstream>
#include <string>

#include "TodayChordExtension/diagram/scene.h"
#include "tests/support/scene_parts.h"

namespace todaychord::testing {

inline std::string describe(const Box& box) {
  std::ostringstream line;
  line.precision(4);
  line << box.left << ' ' << box.top << ' ' << box.right << ' ' << box.bottom;
  return line.str();
}

inline std::string describe(const Color& color) {
  std::ostringstream line;
  line << '#' << std::hex << std::uppercase << std::setw(6) << std::setfill('0') << color.rgb
       << std::dec << ' ' << color.opacity;
  return line.str();
}

inline std::string describe(const Paint& paint) {
  if (const auto* color = std::get_if<Color>(&paint)) return describe(*color);
  const auto* gradient = std::get_if<LinearGradient>(&paint);
  std::string line = gradient != nullptr ? "linear" : "radial";
  if (gradient == nullptr) return line;
  for (const ColorStop& stop : gradient->stops) line += ", " + describe(stop.color);
  return line;
}

/// A scene as a list to compare: an item a line with all that matters about it, but a diagram,
/// which has tests of its own, as one line.
inline std::string describe(const SceneItems& items) {
  std::ostringstream lines;
  lines.precision(4);
  for (const SceneItem& item : items) {
    if (const auto* path = std::get_if<PathItem>(&item.content)) {
      lines << "path " << describe(boxOf(*path));
      if (path->fill) lines << " fill " << describe(*path->fill);
      if (path->stroke) {
        lines << " stroke " << path->stroke->width << ' ' << describe(path->stroke->paint);
      }
    } else if (const auto* text = std::get_if<TextItem>(&item.content)) {
      constexpr const char* anchors[] = {"start", "middle", "end"};
      lines << "text \"" << text->text << "\" " << text->font.name << ' ' << text->font.size << ' '
            << anchors[static_cast<int>(text->anchor)] << ' ' << text->baseline.x << ' '
            << text->baseline.y << ' ' << describe(text->color);
    } else if (const auto* image = std::get_if<ImageItem>(&item.content)) {
      const Rectangle& frame = image->frame;
      lines << "image " << image->name << ' ' << frame.x << ' ' << frame.y << ' ' << frame.width
            << ' ' << frame.height << ' ' << describe(image->tint);
    } else if (const auto* link = std::get_if<LinkArea>(&item.content)) {
      const Rectangle& frame = link->frame;
      lines << "link " << frame.x << ' ' << frame.y << ' ' << frame.width << ' ' << frame.height
            << ' ' << link->address << " \"" << link->label << '"';
    } else if (const auto* group = std::get_if<SceneGroup>(&item.content)) {
      lines << "group " << group->name;
      if (group->name != "diagram") lines << '\n' << describe(group->items);
    }
    lines << '\n';
  }
  return lines.str();
}

}  // namespace todaychord::testing
