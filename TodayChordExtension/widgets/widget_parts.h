#pragma once

#include <span>
#include <string>

#include "TodayChordExtension/diagram/scene.h"

namespace todaychord {

// What several widgets are made of.

/// The title of a section and the line below it, which may be "".
struct WidgetSectionTitle {
  std::string title;
  std::string subtitle;
};

/// The background of the three tall widgets, as large as they are.
struct ExtraLargeWidgetBackground {};

SceneItems draw(const ExtraLargeWidgetBackground& background);

/// From `origin`, no wider than `width`.
SceneItems draw(const WidgetSectionTitle& section, Point origin, double width);

/// A field with round corners.
PathItem drawField(const Rectangle& frame, double radius, const Paint& paint);

/// A field whose edge shows on dark ground.
SceneItems drawCard(const Rectangle& frame, const Paint& paint);

/// From the upper left corner of a frame to the lower right one, and from the top down.
LinearGradient fallingGradient(const Rectangle& frame, std::span<const ColorStop> stops);
LinearGradient downwardGradient(const Rectangle& frame, std::span<const ColorStop> stops);

/// "Learn More" on a round field whose upper left corner is given. The card around it is the link.
SceneItems drawLearnMore(Point corner);

/// An icon in the middle of `frame`, `side` points wide.
ImageItem drawCentred(const std::string& icon, const Rectangle& frame, double side,
                      const Color& tint);

/// Where the cell of this index lies in a grid of `columns` within `frame`, row by row.
Rectangle gridCell(const Rectangle& frame, int columns, int rows, double gap, int index);

/// A stack of chords, which stands for a collection and where there is no chord to show.
inline constexpr const char* stackIcon = "music.note.square.stack.fill";

}  // namespace todaychord
