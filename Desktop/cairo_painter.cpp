#include "Desktop/cairo_painter.h"

#include <algorithm>

#include "Desktop/cairo_links.h"
#include "Desktop/cairo_paths.h"
#include "Desktop/cairo_text.h"
#include "TodayChordExtension/diagram/icons.h"

namespace desktop {
namespace {

using todaychord::PathItem;
using todaychord::Stroke;

// The lines at the edge of a shape reach beyond it, over its fill.
todaychord::Rectangle extentsOf(cairo_t* context) {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  cairo_stroke_extents(context, &left, &top, &right, &bottom);
  double fillLeft = 0;
  double fillTop = 0;
  double fillRight = 0;
  double fillBottom = 0;
  cairo_fill_extents(context, &fillLeft, &fillTop, &fillRight, &fillBottom);
  left = std::min(left, fillLeft);
  top = std::min(top, fillTop);
  return {left, top, std::max(right, fillRight) - left, std::max(bottom, fillBottom) - top};
}

class Painter {
 public:
  Painter(cairo_t* context, CairoTarget target) : context_(context), target_(target) {}

  void paint(const todaychord::SceneItems& items) const {
    for (const todaychord::SceneItem& item : items) std::visit(*this, item.content);
  }

  void operator()(const PathItem& item) const {
    const bool isStroked = item.stroke && drawable(item.stroke->width) > 0;
    if (isStroked) setPen(*item.stroke);
    tracePath(context_, item.path);
    if (item.fill && isStroked && item.opacity < 1) {
      paintTogether(item);
      return;
    }
    if (item.fill) fill(*item.fill, item.opacity);
    if (isStroked) stroke(*item.stroke, item.opacity);
  }

  void operator()(const todaychord::TextItem& item) const { paintText(context_, item, target_); }

  void operator()(const todaychord::ImageItem& item) const { paint(todaychord::drawIcon(item)); }

  void operator()(const todaychord::LinkArea& link) const {
    if (target_ == CairoTarget::document) addLink(context_, link);
  }

  void operator()(const todaychord::SceneGroup& group) const { paint(group.items); }

 private:
  void setPen(const Stroke& stroke) const {
    cairo_set_line_width(context_, drawable(stroke.width));
    cairo_set_miter_limit(context_, stroke.miterLimit);
    cairo_set_line_cap(context_, stroke.cap == todaychord::LineCap::round ? CAIRO_LINE_CAP_ROUND
                                                                          : CAIRO_LINE_CAP_BUTT);
    cairo_set_line_join(context_, stroke.join == todaychord::LineJoin::round
                                      ? CAIRO_LINE_JOIN_ROUND
                                      : CAIRO_LINE_JOIN_MITER);
  }

  void fill(const todaychord::Paint& paint, double opacity) const {
    cairo_set_source(context_, makePattern(paint, opacity).get());
    cairo_fill_preserve(context_);
  }

  void stroke(const Stroke& stroke, double opacity) const {
    cairo_set_source(context_, makePattern(stroke.paint, opacity).get());
    cairo_stroke_preserve(context_);
  }

  // Fill and edge become translucent as one: the fill does not show through the edge.
  void paintTogether(const PathItem& item) const {
    const todaychord::Rectangle extents = extentsOf(context_);
    cairo_save(context_);
    cairo_new_path(context_);
    cairo_rectangle(context_, extents.x, extents.y, extents.width, extents.height);
    cairo_clip(context_);
    cairo_push_group(context_);
    tracePath(context_, item.path);
    fill(*item.fill, 1);
    stroke(*item.stroke, 1);
    cairo_pop_group_to_source(context_);
    cairo_paint_with_alpha(context_, item.opacity);
    cairo_restore(context_);
  }

  cairo_t* context_;
  CairoTarget target_;
};

}  // namespace

void paintItems(cairo_t* context, const todaychord::SceneItems& items, CairoTarget target) {
  Painter(context, target).paint(items);
}

}  // namespace desktop
