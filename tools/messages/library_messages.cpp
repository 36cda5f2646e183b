// Writes the library's texts as messages of a translation template, each with a comment that tells
// the translator what it is. The texts come from the library itself, in English, which is the key.

#include <cstdio>
#include <span>
#include <string>
#include <string_view>

#include "Tonelake/chords/inversion.h"
#include "Tonelake/content/chord_progression_table.h"
#include "Tonelake/content/chord_text_tables.h"
#include "Tonelake/content/curated_chord_lists.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/today/chord_category.h"
#include "Tonelake/today/notification_texts.h"

namespace {

// Backslashes and quotation marks as the template wants them; our texts have no line breaks.
std::string escaped(std::string_view text) {
  return tonelake::replaceAll(tonelake::replaceAll(text, "\\", "\\\\"), "\"", "\\\"");
}

void writeMessage(const std::string& comment, std::string_view key) {
  std::printf("#. %s\nmsgid \"%s\"\nmsgstr \"\"\n\n", comment.c_str(), escaped(key).c_str());
}

void writeInversions() {
  for (const tonelake::Inversion inversion : tonelake::Inversion::allCases()) {
    writeMessage("Which tone of a chord is in the bass. In English: " + inversion.localizedName(),
                 inversion.localizedKey());
  }
}

void writeCategories() {
  for (const tonelake::ChordCategory category : tonelake::ChordCategory::allCases()) {
    writeMessage("A category of chords of the day", category.localizedTitle());
  }
}

void writeCuratedLists() {
  for (const auto& [category, list] : tonelake::curatedChordLists()) {
    const std::string name(category.rawValue());
    writeMessage("The title of the chord pack " + name, list.title);
    writeMessage("The description of the chord pack " + name, list.description);
  }
}

void writeChordTexts(const std::string& comment, std::span<const tonelake::ChordTextRow> rows) {
  for (const tonelake::ChordTextRow& row : rows) {
    const bool hasSlots = row.text.find("(--") != std::string_view::npos;
    const char* slots = hasSlots ? "; (--1--) and so on become note names: root (C)" : "";
    writeMessage(comment + " of the chord type \"" + std::string(row.chordType) + "\"" + slots,
                 row.text);
  }
}

void writeChordTexts() {
  writeChordTexts("The character, four adjectives in small letters,",
                  tonelake::chordCharacterRows());
  writeChordTexts("The genres", tonelake::chordGenreRows());
  writeChordTexts("The description", tonelake::chordDescriptionRows());
  writeChordTexts("The description for jazz guitarists", tonelake::jazzChordDescriptionRows());
}

void writeProgressions(std::span<const tonelake::ChordProgressionRow> rows) {
  for (const tonelake::ChordProgressionRow& row : rows) {
    writeMessage("The description of the progression " + std::string(row.progression) +
                     "; (--V--) and so on become chords: (G major)",
                 row.descriptionKey);
  }
}

void writeReminders() {
  for (const std::string_view title : tonelake::notificationTitles) {
    writeMessage("A reminder of the chord of the day, its title", title);
  }
  for (const std::string_view body : tonelake::notificationBodies) {
    writeMessage("A reminder of the chord of the day, %s is the name of a chord", body);
  }
}

}  // namespace

int main() {
  std::puts("msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n");
  writeInversions();
  writeCategories();
  writeCuratedLists();
  writeChordTexts();
  writeProgressions(tonelake::majorProgressionRows());
  writeProgressions(tonelake::minorProgressionRows());
  writeReminders();
  return 0;
}
