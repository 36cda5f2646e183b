#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Tonelake/theory/frets.h"

namespace tonelake {

/// The shapes that a search has already met: open addressing over packed frets, one allocation
/// for as many shapes as were expected.
class ShapeSet {
 public:
  /// `expected` is a power of two; more shapes make the table grow.
  explicit ShapeSet(std::size_t expected) : slots_(2 * expected) {}

  /// Whether the shape is new; it is in the set afterwards. Frets of -1 to 30, not all muted.
  bool insert(const Frets& frets) {
    const std::uint32_t key = pack(frets);
    std::uint32_t& slot = find(key);
    if (slot == key) return false;
    slot = key;
    if (2 * ++size_ > slots_.size()) grow();
    return true;
  }

 private:
  // Five bits a string; 0 stands for a free slot, which is why all muted is no member.
  static std::uint32_t pack(const Frets& frets) noexcept {
    std::uint32_t packed = 0;
    for (const std::int8_t fret : frets)
      packed = packed << 5U | static_cast<std::uint32_t>(fret + 1);
    return packed;
  }

  // The slot that holds `key`, or the free one where it belongs.
  std::uint32_t& find(std::uint32_t key) noexcept {
    const std::size_t mask = slots_.size() - 1;
    // Multiplying by a large odd number spreads neighbouring shapes over the table.
    std::size_t i = (key * std::uint64_t{0x9E3779B97F4A7C15U}) >> 40U & mask;
    while (slots_[i] != 0 && slots_[i] != key) i = (i + 1) & mask;
    return slots_[i];
  }

  void grow() {
    std::vector<std::uint32_t> old(2 * slots_.size());
    old.swap(slots_);
    for (const std::uint32_t key : old) {
      if (key != 0) find(key) = key;
    }
  }

  std::vector<std::uint32_t> slots_;
  std::size_t size_ = 0;
};

}  // namespace tonelake
