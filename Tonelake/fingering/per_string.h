#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "Tonelake/theory/tuning.h"

namespace tonelake {

/// A small number per string, kept in place: thousands of positions are made in a search, and
/// none of them should cost an allocation. Holds six numbers or none.
class PerString {
 public:
  /// Lowest string first.
  using Numbers = std::array<std::int8_t, Tuning::stringCount>;
  /// For algorithms.
  using value_type = Numbers::value_type;
  /// For algorithms.
  using const_iterator = Numbers::const_iterator;

  constexpr PerString() noexcept = default;
  /// Implicit, so that six numbers serve where a position is due.
  constexpr PerString(const Numbers& numbers) noexcept  // NOLINT(google-explicit-constructor)
      : numbers_(numbers), size_(Tuning::stringCount) {}

  /// 6 or 0.
  constexpr std::size_t size() const noexcept { return size_; }
  /// Whether there are no numbers.
  constexpr bool empty() const noexcept { return size_ == 0; }
  constexpr int operator[](std::size_t string) const noexcept { return numbers_[string]; }
  /// From the lowest string on.
  constexpr const_iterator begin() const noexcept { return numbers_.begin(); }
  /// Behind the highest string.
  constexpr const_iterator end() const noexcept { return numbers_.begin() + size_; }

  /// The six numbers; all 0 when there are none.
  constexpr const Numbers& numbers() const noexcept { return numbers_; }

  friend constexpr bool operator==(const PerString&, const PerString&) = default;

  /// Element by element; the other list may be of any length and type.
  template <typename List>
  constexpr bool equals(const List& other) const noexcept {
    return std::equal(begin(), end(), other.begin(), other.end());
  }

 private:
  Numbers numbers_{};
  std::uint8_t size_ = 0;
};

}  // namespace tonelake
