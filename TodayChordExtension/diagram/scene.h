#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "TodayChordExtension/diagram/color.h"
#include "TodayChordExtension/diagram/font.h"
#include "TodayChordExtension/diagram/geometry.h"

namespace todaychord {

// A picture as plain data, for any renderer: what is painted, in which order, with what. Lengths
// are points of the picture, whose upper left corner is (0, 0).

struct MoveTo {
  Point to;
  friend bool operator==(const MoveTo&, const MoveTo&) = default;
};
struct LineTo {
  Point to;
  friend bool operator==(const LineTo&, const LineTo&) = default;
};
struct CurveTo {
  Point control1;
  Point control2;
  Point to;
  friend bool operator==(const CurveTo&, const CurveTo&) = default;
};
struct ClosePath {
  friend bool operator==(const ClosePath&, const ClosePath&) = default;
};

using PathStep = std::variant<MoveTo, LineTo, CurveTo, ClosePath>;
using Path = std::vector<PathStep>;

// Gradients are placed in the picture, not in the shape that they paint: a straight upright
// string has no width to measure one by.

struct LinearGradient {
  Point start;
  Point end;
  Gradient stops;

  friend bool operator==(const LinearGradient&, const LinearGradient&) = default;
};

struct RadialGradient {
  Point centre;
  double radius = 0;
  Gradient stops;

  friend bool operator==(const RadialGradient&, const RadialGradient&) = default;
};

using Paint = std::variant<Color, LinearGradient, RadialGradient>;

enum class LineCap { butt, round };
enum class LineJoin { miter, round };

struct Stroke {
  Paint paint;
  double width = 1;
  double miterLimit = 10;  ///< longest tip of a corner, in widths
  LineCap cap = LineCap::butt;
  LineJoin join = LineJoin::miter;

  friend bool operator==(const Stroke&, const Stroke&) = default;
};

/// A shape: filled first, then stroked.
struct PathItem {
  Path path;
  std::optional<Paint> fill = std::nullopt;
  std::optional<Stroke> stroke = std::nullopt;
  double opacity = 1;

  friend bool operator==(const PathItem&, const PathItem&) = default;
};

enum class TextAnchor { start, middle, end };

/// One line of text.
struct TextItem {
  std::string text;
  Font font;
  TextAnchor anchor = TextAnchor::start;
  Point baseline;  ///< where the anchor stands on the baseline
  Color color;

  friend bool operator==(const TextItem&, const TextItem&) = default;
};

/// An image of the program or an icon, by its name, fitted into a frame.
struct ImageItem {
  std::string name;
  Rectangle frame;
  Color tint;  ///< colour of an icon; images keep their own

  friend bool operator==(const ImageItem&, const ImageItem&) = default;
};

/// A place that leads somewhere when it is tapped.
struct LinkArea {
  Rectangle frame;
  std::string address;
  std::string label;  ///< what a screen reader says

  friend bool operator==(const LinkArea&, const LinkArea&) = default;
};

struct SceneItem;

/// Items that belong together, under a name that a host can address: "string-3", "dot-2".
struct SceneGroup {
  std::string name;
  std::vector<SceneItem> items;

  friend bool operator==(const SceneGroup&, const SceneGroup&);
};

struct SceneItem {
  std::variant<PathItem, TextItem, ImageItem, LinkArea, SceneGroup> content;

  friend bool operator==(const SceneItem&, const SceneItem&) = default;
};

inline bool operator==(const SceneGroup& a, const SceneGroup& b) {
  return a.name == b.name && a.items == b.items;
}

using SceneItems = std::vector<SceneItem>;

struct Scene {
  double width = 0;
  double height = 0;
  std::string title;        ///< what the picture shows, "" where it has no name
  std::string description;  ///< the same in sentences, for those who do not see it
  SceneItems items;         ///< in painting order

  friend bool operator==(const Scene&, const Scene&) = default;
};

}  // namespace todaychord
