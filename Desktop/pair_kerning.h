#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace desktop {

/// How much closer than usual two letters of a typeface stand, "To" for example: the pairs in the
/// GPOS table of an OpenType font. What reads the fonts for us knows only the older kern table,
/// and a library that shapes text would cost more time and memory than all the rest of a picture.
class PairKerning {
 public:
  /// `gpos` is the table as it stands in the font; an empty or damaged one knows no pairs.
  explicit PairKerning(std::string gpos = "");

  /// What is added to the advance of `first` before `second`, in units of the font; glyphs are
  /// counted as the font counts them.
  int between(unsigned first, unsigned second) const;

 private:
  // A number in the table, most significant byte first; 0 behind the table's end.
  unsigned number16(std::size_t place) const;

  void findSubtables();
  void addSubtables(std::size_t lookup);
  struct Match {
    bool found;
    int advance;
  };
  Match match(std::size_t subtable, unsigned first, unsigned second) const;
  Match matchPair(std::size_t subtable, std::size_t index, unsigned second) const;
  Match matchClasses(std::size_t subtable, unsigned first, unsigned second) const;
  int advanceIn(std::size_t valueRecord, unsigned format) const;
  std::size_t coverageIndex(std::size_t coverage, unsigned glyph) const;
  unsigned classOf(std::size_t classes, unsigned glyph) const;

  std::string table_;
  std::vector<std::size_t> subtables_;
};

}  // namespace desktop
