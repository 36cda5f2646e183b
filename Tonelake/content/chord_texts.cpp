#include "Tonelake/content/chord_texts.h"

#include "Tonelake/content/chord_text_tables.h"
#include "Tonelake/platform/platform.h"

namespace tonelake {
namespace {

ChordTexts inThisLanguage(std::span<const ChordTextRow> rows) {
  const auto strings = processPlatform().strings;
  ChordTexts texts;
  for (const ChordTextRow& row : rows) texts.emplace(row.chordType, strings->localized(row.text));
  return texts;
}

}  // namespace

const ChordTexts& chordCharacterData() {
  static const ChordTexts texts = inThisLanguage(chordCharacterRows());
  return texts;
}

const ChordTexts& chordGenreData() {
  static const ChordTexts texts = inThisLanguage(chordGenreRows());
  return texts;
}

const ChordTexts& chordDescriptionData() {
  static const ChordTexts texts = inThisLanguage(chordDescriptionRows());
  return texts;
}

const ChordTexts& jazzChordDescriptionData() {
  static const ChordTexts texts = inThisLanguage(jazzChordDescriptionRows());
  return texts;
}

}  // namespace tonelake
