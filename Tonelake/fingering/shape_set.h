#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Tonelake/theory/frets.h"

namespace tonelake {

/// Six frets in one number, five bits a string holding fret + 1: muted strings are 0.
using PackedFrets = std::uint32_t;

inline constexpr unsigned bitsPerString = 5;

/// Fret `fret` (-1 to 30) on string `string`, lowest first; combined with "|".
constexpr PackedFrets packFret(std::size_t string, int fret) noexcept {
  return static_cast<PackedFrets>(fret + 1) << (bitsPerString * string);
}

constexpr Frets unpackFrets(PackedFrets packed) noexcept {
  Frets frets{};
  for (std::int8_t& fret : frets) {
    fret = static_cast<std::int8_t>(static_cast<int>(packed & ((1U << bitsPerString) - 1)) - 1);
    packed >>= bitsPerString;
  }
  return frets;
}

/// The shapes that a search has already met: open addressing, one allocation for as many shapes
/// as were expected.
class ShapeSet {
 public:
  /// `expected` is a power of two; more shapes make the table grow.
  explicit ShapeSet(std::size_t expected) : slots_(2 * expected) {}

  /// Whether the shape is new; it is in the set afterwards. It must sound at least one string: a
  /// shape of muted strings only is 0, which stands for a free slot.
  bool insert(PackedFrets shape) {
    PackedFrets& slot = find(shape);
    if (slot == shape) return false;
    slot = shape;
    if (2 * ++size_ > slots_.size()) grow();
    return true;
  }

 private:
  // The slot that holds `shape`, or the free one where it belongs.
  PackedFrets& find(PackedFrets shape) noexcept {
    const std::size_t mask = slots_.size() - 1;
    // Multiplying by a large odd number spreads neighbouring shapes over the table.
    std::size_t i = (shape * std::uint64_t{0x9E3779B97F4A7C15U}) >> 40U & mask;
    while (slots_[i] != 0 && slots_[i] != shape) i = (i + 1) & mask;
    return slots_[i];
  }

  void grow() {
    std::vector<PackedFrets> old(2 * slots_.size());
    old.swap(slots_);
    for (const PackedFrets shape : old) {
      if (shape != 0) find(shape) = shape;
    }
  }

  std::vector<PackedFrets> slots_;
  std::size_t size_ = 0;
};

}  // namespace tonelake
