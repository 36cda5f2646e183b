#pragma once

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "TodayChordExtension/diagram/scene.h"
#include "TodayChordExtension/diagram/text_width.h"

namespace todaychord::testing {

struct Box {
  double left = std::numeric_limits<double>::infinity();
  double top = left;
  double right = -left;
  double bottom = -left;

  void include(Point point, double reach = 0) {
    left = std::min(left, point.x - reach);
    top = std::min(top, point.y - reach);
    right = std::max(right, point.x + reach);
    bottom = std::max(bottom, point.y + reach);
  }
  void unite(const Box& other) {
    include({other.left, other.top});
    include({other.right, other.bottom});
  }
  bool contains(const Box& other) const {
    constexpr double rounding = 1e-6;
    return other.left >= left - rounding && other.top >= top - rounding &&
           other.right <= right + rounding && other.bottom <= bottom + rounding;
  }
  Point centre() const { return {(left + right) / 2, (top + bottom) / 2}; }
};

/// What a path covers, judged by its control points and the reach of its stroke.
inline Box boxOf(const PathItem& item) {
  const double reach = item.stroke ? item.stroke->width / 2 : 0;
  Box box;
  for (const PathStep& step : item.path) {
    if (const auto* move = std::get_if<MoveTo>(&step)) box.include(move->to, reach);
    if (const auto* line = std::get_if<LineTo>(&step)) box.include(line->to, reach);
    if (const auto* curve = std::get_if<CurveTo>(&step)) {
      for (const Point point : {curve->control1, curve->control2, curve->to}) {
        box.include(point, reach);
      }
    }
  }
  return box;
}

/// What a text covers at most, between its baseline and its capitals' height.
inline Box boxOf(const TextItem& item) {
  const double width = largestTextWidth(item.text, item.font.size);
  const double left = item.baseline.x - (item.anchor == TextAnchor::start    ? 0
                                         : item.anchor == TextAnchor::middle ? width / 2
                                                                             : width);
  Box box;
  box.include({left, item.baseline.y - 0.7 * item.font.size});
  box.include({left + width, item.baseline.y});
  return box;
}

/// All items of one kind in painting order, those in groups included.
template <typename Item>
std::vector<Item> collect(const SceneItems& items) {
  std::vector<Item> found;
  for (const SceneItem& item : items) {
    if (const auto* wanted = std::get_if<Item>(&item.content)) found.push_back(*wanted);
    if (const auto* group = std::get_if<SceneGroup>(&item.content)) {
      for (Item& inner : collect<Item>(group->items)) found.push_back(std::move(inner));
    }
  }
  return found;
}

/// The items of the groups that have this name.
inline SceneItems itemsOf(const std::string& name, const SceneItems& items) {
  SceneItems found;
  for (const SceneGroup& group : collect<SceneGroup>(items)) {
    if (group.name == name) found.insert(found.end(), group.items.begin(), group.items.end());
  }
  return found;
}

}  // namespace todaychord::testing
