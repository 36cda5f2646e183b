#include "Tonelake/chords/chord_naming.h"

#include <gtest/gtest.h>

#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/chords/inversion.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

TEST(ChordNaming, TitlesChords) {
  struct Row {
    Chord chord;
    WholeNumber maxChars;
    const char* title;
    const char* shortest;
  };
  const Row rows[] = {
      {{Note::C, "major", 0}, 12, "C major", "C"},
      {{Note::C, "major", 1}, 12, "C major/E", "C/E"},
      {{Note::C, "minor", 0}, 2, "Cmin", "Cm"},
      {{Note::C, "5", 0}, 2, "C5", "C5"},
      {{Note::C, "9", 0}, 12, "C9", "C9"},
      {{Note::Af, "minor 7th", 0}, 12, "A♭ minor 7th", "A♭m7"},
      {{Note::G, "6 suspended 4th", 0}, 12, "G6sus4", "G6sus4"},
      {{Note::G, "6 suspended 4th", 0}, 18, "G6 suspended 4th", "G6sus4"},
      {{Note::D, "dominant 7th", 0}, 12, "D dominant 7th", "D7"},
      {{Note::D, "dominant 7th", 0}, 11, "D7", "D7"},
      {{Note::D, "minor major 6", 0}, 12, "Dmin/maj6", "Dm6"},
      {{Note::D, "minor major 7th", 0}, 20, "D minor major 7th", "DmM7"},
      {{Note::C, "major 7th add 13", 3}, 12, "Cmaj7(add13)/B", "CM7add13/B"},
      {{Note::B, "minor 7th flat 5", 0}, 12, "Bmin7(♭5)", "Bm7♭5"},
      {{Note::C, "suspended 4th", 0}, -1, "Csus4", "Csus4"},
      {{Note::C, "augmented", 0}, 12, "C augmented", "C+"},
      {{Note::C, "diminished", 2}, 12, "C diminished/G♭", "Co/G♭"},
      {{Note::C, "Major", 7}, 12, "", ""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Chords::getTitleForChord(row.chord, row.maxChars), row.title);
    EXPECT_EQ(Chords::getShortestTitleForChord(row.chord), row.shortest) << row.title;
  }
}

TEST(ChordNaming, ListsFurtherNamesOnce) {
  using Names = std::vector<std::string>;
  const std::pair<Chord, Names> rows[] = {
      {{Note::C, "major", 0}, {"Cmajor", "Cmaj", "C major", "CM"}},
      {{Note::C, "major", 1}, {"Cmajor/E", "Cmaj/E", "C major/E", "CM/E"}},
      {{Note::C, "major", 9}, {"Cmajor", "Cmaj", "C major", "CM"}},
      {{Note::C, "5", 0}, {"C5", "C(no 3)"}},
      {{Note::Ef, "minor 7th", 0},
       {"E♭minor 7th", "E♭min7", "E♭ minor 7th", "E♭m7", "Ebminor 7th", "Ebmin7", "Eb minor 7th",
        "Ebm7"}},
      {{Note::Gs, "augmented", 1},
       {"G♯augmented/B♯", "G♯aug/B♯", "G♯ augmented/B♯", "G♯+/B♯", "G#augmented/B#", "G#aug/B#",
        "G# augmented/B#", "G#+/B#"}},
      {{Note::C, "unheard of", 0}, {}},
  };
  for (const auto& [chord, names] : rows) {
    EXPECT_EQ(Chords::getAlternateTitlesForChord(chord), names) << ::testing::PrintToString(chord);
  }
}

TEST(ChordNamingDeathTest, StopsOnAVariantThatTheChordDoesNotHave) {
  EXPECT_DEATH(Chords::getTitleForChord({Note::C, "major", 3}), "variant");
  EXPECT_DEATH(Chords::getShortestTitleForChord({Note::C, "major", -1}), "variant");
  EXPECT_FALSE(Chords::isShowable({Note::C, "major", 3}));
  EXPECT_FALSE(Chords::isShowable({Note::C, "major", -1}));
  EXPECT_FALSE(Chords::isShowable({Note::C, "Major", 0}));
}

TEST(ChordNaming, NamesInversions) {
  EXPECT_EQ(Inversion(Inversion::seventhInversion).localizedName(), "Seventh inversion");
  for (const Inversion inversion : Inversion::allCases()) {
    EXPECT_EQ(Inversion::fromRawValue(inversion.rawValue()), inversion);
    EXPECT_NE(inversion.localizedName(), inversion.localizedKey());
  }
  EXPECT_EQ(Inversion::fromRawValue("first"), std::nullopt);
}

}  // namespace
}  // namespace tonelake
