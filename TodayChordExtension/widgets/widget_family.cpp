#include "TodayChordExtension/widgets/widget_family.h"

#include <algorithm>
#include <array>

namespace todaychord {
namespace {

constexpr std::array<WidgetFamily, 8> cases{WidgetFamily::small,
                                            WidgetFamily::medium,
                                            WidgetFamily::large,
                                            WidgetFamily::extraLarge,
                                            WidgetFamily::extraLargePortrait,
                                            WidgetFamily::accessoryCircular,
                                            WidgetFamily::accessoryRectangular,
                                            WidgetFamily::accessoryInline};

// In case order.
constexpr std::array<std::string_view, cases.size()> names{"small",
                                                           "medium",
                                                           "large",
                                                           "extraLarge",
                                                           "extraLargePortrait",
                                                           "accessoryCircular",
                                                           "accessoryRectangular",
                                                           "accessoryInline"};

}  // namespace

std::optional<WidgetFamily> WidgetFamily::fromRawValue(std::string_view rawValue) noexcept {
  const auto found = std::find(names.begin(), names.end(), rawValue);
  if (found == names.end()) return std::nullopt;
  return cases[static_cast<std::size_t>(found - names.begin())];
}

std::span<const WidgetFamily> WidgetFamily::allCases() noexcept {
  return cases;
}

std::string_view WidgetFamily::rawValue() const noexcept {
  return names[case_];
}

}  // namespace todaychord
