#include "TodayChordExtension/widgets/shared_data.h"

#include "TodayChordExtension/widgets/shared_settings.h"

namespace todaychord {

json::Value parseSharedList(const std::optional<std::string>& data) {
  if (!data) return json::Value::array();
  if (data->size() > largestSharedData) {
    throw json::DecodingError("more than " + std::to_string(largestSharedData) + " bytes");
  }
  json::Value list = json::parse(*data);
  if (!list.is_array()) json::Node(list).fail("expected a list");
  return list;
}

}  // namespace todaychord
