#include "Tonelake/theory/spelling_tables.h"

#include <gtest/gtest.h>

#include "Tonelake/theory/note.h"

namespace tonelake {
namespace {

// Every name in the tables is a note of the pitch at which it stands.
TEST(SpellingTables, AgreeWithTheNotes) {
  for (const SpellingTable* table : spellingTables) {
    for (std::size_t i = 0; i < table->size(); ++i) {
      const auto note = Note::fromRawValue((*table)[i]);
      ASSERT_TRUE(note.has_value()) << (*table)[i];
      EXPECT_EQ(note->pitchClass(), static_cast<int>(i % 12)) << (*table)[i];
      EXPECT_EQ(noteIndexByName().at((*table)[i]), note->pitchClass());
    }
  }
  EXPECT_EQ(noteIndexByName().size(), noteCount);
}

}  // namespace
}  // namespace tonelake
