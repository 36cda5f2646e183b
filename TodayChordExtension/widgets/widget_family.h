#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "Tonelake/foundation/api.h"

namespace todaychord {

/// The size and place in which a host shows a widget.
class TONELAKE_API WidgetFamily {
 public:
  /// Home screens from small to large, then accessories. The names are the raw values.
  enum Case : std::uint8_t {
    small,
    medium,
    large,
    extraLarge,
    extraLargePortrait,
    accessoryCircular,
    accessoryRectangular,
    accessoryInline,
  };

  /// Implicit, so that a case serves where a family is due.
  constexpr WidgetFamily(Case family) noexcept  // NOLINT(google-explicit-constructor)
      : case_(family) {}
  constexpr operator Case() const noexcept { return case_; }  // NOLINT(google-explicit-constructor)

  /// Exactly the name of a case, for example "extraLargePortrait"; nothing for any other text.
  static std::optional<WidgetFamily> fromRawValue(std::string_view rawValue) noexcept;
  /// Every family in declaration order.
  static std::span<const WidgetFamily> allCases() noexcept;

  /// The name of the case. Hosts pass it around: do not change.
  std::string_view rawValue() const noexcept;

 private:
  Case case_;
};

}  // namespace todaychord
