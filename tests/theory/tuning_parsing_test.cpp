#include "Tonelake/theory/tuning_parsing.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/note.h"

namespace tonelake {
namespace {

using testing::HasSubstr;

TEST(TuningParsing, ReadsWhatPlayersWrite) {
  const std::pair<const char*, const char*> rows[] = {
      {"DADGAD", "D A D G A D"},
      {"  D,A,D,  G,A,D ", "D A D G A D"},
      {"eb ab db gb bb eb", "E♭ A♭ D♭ G♭ B♭ E♭"},
      {"ebabdbgbbbeb", "E♭ A♭ D♭ G♭ B♭ E♭"},
      {"C#G#C#F#A#D#", "C♯ G♯ C♯ F♯ A♯ D♯"},
      {"bf#bebe", "B F♯ B E B E"},
      {"DAD GAD", "D A D G A D"},
      {"OPEN  g", "D G D G B D"},
      {"Drop C#", "C♯ G♯ C♯ F♯ A♯ D♯"},
      {"half-step down", "E♭ A♭ D♭ G♭ B♭ E♭"},
  };
  for (const auto& [typed, names] : rows) {
    SCOPED_TRACE(typed);
    const ParsedTuning parsed = Tuning::parseTuning(typed);
    EXPECT_EQ(parsed.problem, "");
    EXPECT_EQ(join(parsed.names, " "), names);
  }
}

TEST(TuningParsing, NamesWhatIsWrong) {
  const std::pair<std::string, const char*> rows[] = {
      {"", "the tuning is empty"},
      {"E A D Gb E", "names 5 strings"},
      {"E", "names 1 string,"},
      {"E A D H B E", "\"H\" is not a note name"},
      {"EADGBX", "\"EADGBX\" is neither"},
      {"E2 A2 D3 G3 B3 E4", "\"E2\" is not a note name"},
      {"\xff\xfe", "neither"},
      {std::string(1000, 'E'), "EEE...\" names 1000 strings"},
      {std::string(12, ' ').append(99, 'b'), "strings"},
  };
  for (const auto& [typed, problem] : rows) {
    SCOPED_TRACE(typed);
    const ParsedTuning parsed = Tuning::parseTuning(typed);
    EXPECT_TRUE(parsed.names.empty());
    EXPECT_THAT(parsed.problem, HasSubstr(problem));
    EXPECT_LT(parsed.problem.size(), 120U);
  }
}

TEST(TuningParsing, EveryNamedTuningCanBeTypedAsItsNotes) {
  for (const NamedTuning& tuning : Tuning::namedTunings()) {
    SCOPED_TRACE(tuning.name);
    const TuningNames notes(tuning.notes.begin(), tuning.notes.end());
    for (const std::string& note : notes) EXPECT_TRUE(Note::fromRawValue(note)) << note;
    EXPECT_EQ(Tuning::parseTuning(tuning.name).names, notes);
    EXPECT_EQ(Tuning::parseTuning(join(notes, "")).names, notes);
    EXPECT_EQ(Tuning::parseTuning(join(notes, " ")).names, notes);
  }
}

}  // namespace
}  // namespace tonelake
