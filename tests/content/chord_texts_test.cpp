#include "Tonelake/content/chord_texts.h"

#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/foundation/text.h"

namespace tonelake {
namespace {

// The slots that a chord type has by its degrees: an eleventh shares the ninth's where there is
// none.
std::set<char> slotsOf(const std::string& chordType) {
  std::set<char> slots;
  for (const auto degree : split(Chords::getChordData(chordType)->formula, '-')) {
    const std::string number(degree.substr(degree.find_first_of("0123456789")));
    if (number == "1") slots.insert('1');
    if (number == "2" || number == "3" || number == "4") slots.insert('2');
    if (number == "5") slots.insert('3');
    if (number == "6" || number == "7") slots.insert('4');
    if (number == "9" || number == "13") slots.insert('5');
    if (number == "11") slots.insert(slots.contains('5') ? '6' : '5');
  }
  return slots;
}

std::set<char> slotsIn(const std::string& text) {
  std::set<char> slots;
  std::string rest = text;
  for (std::size_t at = 0; (at = text.find("(--", at)) != std::string::npos; ++at) {
    EXPECT_EQ(text.substr(at + 4, 3), "--)") << text;
    slots.insert(text[at + 3]);
    rest = replaceAll(rest, text.substr(at, 7), "");
  }
  EXPECT_EQ(rest.find("--"), std::string::npos) << text;
  return slots;
}

// Every text is there once, and those with slots name every tone of the chord and no other.
TEST(ChordTexts, AreOfTheirChordsAlone) {
  struct Row {
    const ChordTexts& texts;
    std::size_t count;
    bool hasSlots;
  };
  const Row rows[] = {{chordCharacterData(), chordTypes().size(), false},
                      {chordGenreData(), chordTypes().size(), false},
                      {chordDescriptionData(), chordTypes().size(), true},
                      {jazzChordDescriptionData(), 27, true}};
  std::set<std::string> all;
  for (const Row& row : rows) {
    EXPECT_EQ(row.texts.size(), row.count);
    for (const auto& [type, text] : row.texts) {
      ASSERT_NE(Chords::getChordData(type), nullptr) << type;
      EXPECT_TRUE(all.insert(text).second) << text;
      if (row.hasSlots) {
        EXPECT_EQ(slotsIn(text), slotsOf(type)) << type;
      } else {
        EXPECT_THAT(split(text, ','), testing::SizeIs(testing::AnyOf(3U, 4U))) << type;
      }
    }
  }
  EXPECT_EQ(chordCharacterData().at("dominant 7th"), "bluesy, tense, unresolved, energetic");
  EXPECT_FALSE(jazzChordDescriptionData().contains("major"));
  EXPECT_FALSE(jazzChordDescriptionData().contains("Major 7th"));
}

}  // namespace
}  // namespace tonelake
