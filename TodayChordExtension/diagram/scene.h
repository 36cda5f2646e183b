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

/// Begins a new line without painting.
struct MoveTo {
  Point to;  ///< where it begins
  friend bool operator==(const MoveTo&, const MoveTo&) = default;
};
/// A straight line from where the last step ended.
struct LineTo {
  Point to;  ///< its end
  friend bool operator==(const LineTo&, const LineTo&) = default;
};
/// A cubic curve from where the last step ended.
struct CurveTo {
  Point control1;  ///< what it heads for at first
  Point control2;  ///< what it comes from at last
  Point to;        ///< its end
  friend bool operator==(const CurveTo&, const CurveTo&) = default;
};
/// A straight line back to the last MoveTo.
struct ClosePath {
  friend bool operator==(const ClosePath&, const ClosePath&) = default;
};

/// One step of a pen.
using PathStep = std::variant<MoveTo, LineTo, CurveTo, ClosePath>;
/// The steps of a pen, the first of which is a MoveTo.
using Path = std::vector<PathStep>;

// Gradients are placed in the picture, not in the shape that they paint: a straight upright
// string has no width to measure one by.

/// Colours along a line, the same to both sides of it.
struct LinearGradient {
  Point start;     ///< where the first stop lies
  Point end;       ///< where the last one lies
  Gradient stops;  ///< along the line

  friend bool operator==(const LinearGradient&, const LinearGradient&) = default;
};

/// Colours around a point.
struct RadialGradient {
  Point centre;       ///< where the first stop lies
  double radius = 0;  ///< how far away the last one lies
  Gradient stops;     ///< outwards

  friend bool operator==(const RadialGradient&, const RadialGradient&) = default;
};

/// What a shape is filled or stroked with.
using Paint = std::variant<Color, LinearGradient, RadialGradient>;

/// How a line ends: at its last point, or half its width beyond, rounded.
enum class LineCap { butt, round };
/// How a line turns a corner: with a tip, or rounded.
enum class LineJoin { miter, round };

/// How a line is drawn along a path.
struct Stroke {
  Paint paint;                      ///< of the line
  double width = 1;                 ///< half of it to each side of the path
  double miterLimit = 10;           ///< longest tip of a corner, in widths
  LineCap cap = LineCap::butt;      ///< of both ends
  LineJoin join = LineJoin::miter;  ///< of every corner

  friend bool operator==(const Stroke&, const Stroke&) = default;
};

/// A shape: filled first, then stroked.
struct PathItem {
  Path path;                                    ///< may hold several lines
  std::optional<Paint> fill = std::nullopt;     ///< inside, by the non-zero rule
  std::optional<Stroke> stroke = std::nullopt;  ///< along the path
  double opacity = 1;                           ///< of fill and stroke, 0 to 1

  friend bool operator==(const PathItem&, const PathItem&) = default;
};

/// Which point of a line of text is given.
enum class TextAnchor { start, middle, end };

/// One line of text.
struct TextItem {
  std::string text;                       ///< UTF-8, without line breaks
  Font font;                              ///< size in points
  TextAnchor anchor = TextAnchor::start;  ///< which point of the line is given
  Point baseline;                         ///< where the anchor stands on the baseline
  Color color;                            ///< of every letter

  friend bool operator==(const TextItem&, const TextItem&) = default;
};

/// An image of the program or an icon, by its name, fitted into a frame.
struct ImageItem {
  std::string name;  ///< as in drawIcon
  Rectangle frame;   ///< what it is fitted into
  Color tint;        ///< colour of an icon; images keep their own

  friend bool operator==(const ImageItem&, const ImageItem&) = default;
};

/// A place that leads somewhere when it is tapped.
struct LinkArea {
  Rectangle frame;      ///< where a tap counts
  std::string address;  ///< see widget_links.h
  std::string label;    ///< what a screen reader says

  friend bool operator==(const LinkArea&, const LinkArea&) = default;
};

struct SceneItem;

/// Items that belong together, under a name that a host can address: "string-3", "dot-2".
struct SceneGroup {
  std::string name;              ///< "" where nobody asks for it
  std::vector<SceneItem> items;  ///< in painting order

  friend bool operator==(const SceneGroup&, const SceneGroup&);
};

/// Anything that a picture consists of.
struct SceneItem {
  /// A LinkArea paints nothing.
  std::variant<PathItem, TextItem, ImageItem, LinkArea, SceneGroup> content;

  friend bool operator==(const SceneItem&, const SceneItem&) = default;
};

inline bool operator==(const SceneGroup& a, const SceneGroup& b) {
  return a.name == b.name && a.items == b.items;
}

/// Items in painting order.
using SceneItems = std::vector<SceneItem>;

/// A picture.
struct Scene {
  double width = 0;         ///< points
  double height = 0;        ///< points
  std::string title;        ///< what the picture shows, "" where it has no name
  std::string description;  ///< the same in sentences, for those who do not see it
  SceneItems items;         ///< in painting order

  friend bool operator==(const Scene&, const Scene&) = default;
};

}  // namespace todaychord
