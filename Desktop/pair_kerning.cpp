#include "Desktop/pair_kerning.h"

#include <algorithm>
#include <bit>
#include <string_view>
#include <utility>

// The layout of the table is that of the OpenType standard, chapter GPOS. Every part of it is a
// row of two-byte numbers, so that places are written as "the number after n others": at(n).

namespace desktop {
namespace {

constexpr unsigned pairAdjustment = 2;  // the kind of lookup; our typefaces wrap it in no other
constexpr std::size_t notCovered = static_cast<std::size_t>(-1);

// Bits of a value's format, each for a number that the value holds; the advance is the third.
constexpr unsigned advanceBit = 4;

constexpr std::size_t at(std::size_t numbers) {
  return 2 * numbers;
}

constexpr std::size_t sizeOf(unsigned valueFormat) {
  return at(static_cast<std::size_t>(std::popcount(valueFormat)));
}

}  // namespace

PairKerning::PairKerning(std::string gpos) : table_(std::move(gpos)) {
  findSubtables();
}

unsigned PairKerning::number16(std::size_t place) const {
  if (place + 1 >= table_.size()) return 0;
  return static_cast<unsigned char>(table_[place]) * 256U +
         static_cast<unsigned char>(table_[place + 1]);
}

// Every feature called "kern" is followed, whatever script or language lists it: ours list one.
void PairKerning::findSubtables() {
  constexpr std::string_view kern = "kern";
  const std::size_t features = number16(at(3));
  const std::size_t lookups = number16(at(4));
  std::vector<unsigned> seen;
  for (std::size_t i = 0; i < number16(features); ++i) {
    const std::size_t record = features + at(1 + 3 * i);
    if (table_.compare(std::min(record, table_.size()), kern.size(), kern) != 0) continue;
    const std::size_t feature = features + number16(record + at(2));
    for (std::size_t k = 0; k < number16(feature + at(1)); ++k) {
      const unsigned lookup = number16(feature + at(2 + k));
      if (std::find(seen.begin(), seen.end(), lookup) != seen.end()) continue;
      seen.push_back(lookup);
      addSubtables(lookups + number16(lookups + at(1 + lookup)));
    }
  }
}

void PairKerning::addSubtables(std::size_t lookup) {
  if (number16(lookup) != pairAdjustment) return;
  for (std::size_t i = 0; i < number16(lookup + at(2)); ++i) {
    subtables_.push_back(lookup + number16(lookup + at(3 + i)));
  }
}

// The first subtable that knows the pair decides: single pairs come before classes of letters,
// whose exceptions they are.
int PairKerning::between(unsigned first, unsigned second) const {
  for (const std::size_t subtable : subtables_) {
    const Match found = match(subtable, first, second);
    if (found.found) return found.advance;
  }
  return 0;
}

PairKerning::Match PairKerning::match(std::size_t subtable, unsigned first, unsigned second) const {
  const std::size_t index = coverageIndex(subtable + number16(subtable + at(1)), first);
  if (index == notCovered) return {false, 0};
  return number16(subtable) == 1 ? matchPair(subtable, index, second)
                                 : matchClasses(subtable, first, second);
}

// Format 1: for every first letter a list of second letters with their values.
PairKerning::Match PairKerning::matchPair(std::size_t subtable, std::size_t index,
                                          unsigned second) const {
  const unsigned format = number16(subtable + at(2));
  const std::size_t recordSize = at(1) + sizeOf(format) + sizeOf(number16(subtable + at(3)));
  const std::size_t set = subtable + number16(subtable + at(5 + index));
  for (std::size_t i = 0; i < number16(set); ++i) {
    const std::size_t record = set + at(1) + i * recordSize;
    if (number16(record) == second) return {true, advanceIn(record + at(1), format)};
  }
  return {false, 0};
}

// Format 2: letters of one shape are a class, and every two classes have a value.
PairKerning::Match PairKerning::matchClasses(std::size_t subtable, unsigned first,
                                             unsigned second) const {
  const unsigned format = number16(subtable + at(2));
  const std::size_t recordSize = sizeOf(format) + sizeOf(number16(subtable + at(3)));
  const std::size_t row = classOf(subtable + number16(subtable + at(4)), first);
  const std::size_t column = classOf(subtable + number16(subtable + at(5)), second);
  const std::size_t columns = number16(subtable + at(7));
  return {true, advanceIn(subtable + at(8) + (row * columns + column) * recordSize, format)};
}

int PairKerning::advanceIn(std::size_t valueRecord, unsigned format) const {
  if ((format & advanceBit) == 0) return 0;
  return static_cast<std::int16_t>(number16(valueRecord + sizeOf(format & (advanceBit - 1))));
}

std::size_t PairKerning::coverageIndex(std::size_t coverage, unsigned glyph) const {
  const std::size_t count = number16(coverage + at(1));
  if (number16(coverage) == 1) {
    for (std::size_t i = 0; i < count; ++i) {
      if (number16(coverage + at(2 + i)) == glyph) return i;
    }
    return notCovered;
  }
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t range = coverage + at(2 + 3 * i);
    if (glyph >= number16(range) && glyph <= number16(range + at(1))) {
      return number16(range + at(2)) + glyph - number16(range);
    }
  }
  return notCovered;
}

// A letter that no class names is in class 0.
unsigned PairKerning::classOf(std::size_t classes, unsigned glyph) const {
  if (number16(classes) == 1) {
    const unsigned first = number16(classes + at(1));
    const bool isListed = glyph >= first && glyph - first < number16(classes + at(2));
    return isListed ? number16(classes + at(3 + glyph - first)) : 0;
  }
  for (std::size_t i = 0; i < number16(classes + at(1)); ++i) {
    const std::size_t range = classes + at(2 + 3 * i);
    if (glyph >= number16(range) && glyph <= number16(range + at(1))) {
      return number16(range + at(2));
    }
  }
  return 0;
}

}  // namespace desktop
