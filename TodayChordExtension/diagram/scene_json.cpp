#include "TodayChordExtension/diagram/scene_json.h"

#include <array>
#include <cstddef>

namespace todaychord {
namespace {

using tonelake::json::Value;

Value encode(Point point) {
  return Value::array({point.x, point.y});
}

Value encode(const Rectangle& frame) {
  return Value::array({frame.x, frame.y, frame.width, frame.height});
}

Value encode(const Color& color) {
  return {{"color", hexadecimal(color)}, {"opacity", color.opacity}};
}

Value encode(const Gradient& stops) {
  Value list = Value::array();
  for (const ColorStop& stop : stops) {
    Value object{{"place", stop.place}};
    object.update(encode(stop.color));
    list.push_back(object);
  }
  return list;
}

Value encode(const LinearGradient& gradient) {
  return {{"linear",
           {{"start", encode(gradient.start)},
            {"end", encode(gradient.end)},
            {"stops", encode(gradient.stops)}}}};
}

Value encode(const RadialGradient& gradient) {
  return {{"radial",
           {{"centre", encode(gradient.centre)},
            {"radius", gradient.radius},
            {"stops", encode(gradient.stops)}}}};
}

Value encode(const MoveTo& step) {
  return Value::array({"M", step.to.x, step.to.y});
}
Value encode(const LineTo& step) {
  return Value::array({"L", step.to.x, step.to.y});
}
Value encode(const CurveTo& step) {
  return Value::array({"C", step.control1.x, step.control1.y, step.control2.x, step.control2.y,
                       step.to.x, step.to.y});
}
Value encode(const ClosePath&) {
  return Value::array({"Z"});
}

Value encode(const Paint& paint) {
  return std::visit([](const auto& kind) { return encode(kind); }, paint);
}

Value encode(const Stroke& stroke) {
  return {{"paint", encode(stroke.paint)},
          {"width", stroke.width},
          {"miterLimit", stroke.miterLimit},
          {"cap", stroke.cap == LineCap::round ? "round" : "butt"},
          {"join", stroke.join == LineJoin::round ? "round" : "miter"}};
}

Value encode(const PathItem& item) {
  Value object{{"path", Value::array()}};
  for (const PathStep& step : item.path) {
    object["path"].push_back(std::visit([](const auto& kind) { return encode(kind); }, step));
  }
  if (item.fill) object["fill"] = encode(*item.fill);
  if (item.stroke) object["stroke"] = encode(*item.stroke);
  object["opacity"] = item.opacity;
  return object;
}

Value encode(const TextItem& item) {
  constexpr std::array<const char*, 3> anchors{"start", "middle", "end"};  // in case order
  return {{"text", item.text},
          {"font", {{"name", item.font.name}, {"size", item.font.size}}},
          {"anchor", anchors.at(static_cast<std::size_t>(item.anchor))},
          {"at", encode(item.baseline)},
          {"color", encode(item.color)}};
}

Value encode(const ImageItem& item) {
  return {{"image", item.name}, {"frame", encode(item.frame)}, {"tint", encode(item.tint)}};
}

Value encode(const LinkArea& item) {
  return {{"link", item.address}, {"frame", encode(item.frame)}, {"label", item.label}};
}

Value encode(const SceneItems& items);

Value encode(const SceneGroup& group) {
  return {{"group", group.name}, {"items", encode(group.items)}};
}

Value encode(const SceneItems& items) {
  Value list = Value::array();
  for (const SceneItem& item : items) {
    list.push_back(std::visit([](const auto& content) { return encode(content); }, item.content));
  }
  return list;
}

}  // namespace

Value encodeScene(const Scene& scene) {
  return {{"width", scene.width},
          {"height", scene.height},
          {"title", scene.title},
          {"description", scene.description},
          {"items", encode(scene.items)}};
}

}  // namespace todaychord
