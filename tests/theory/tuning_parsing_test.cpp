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
  struct Row {
    const char* typed;
    const char* names;
  };
  const Row rows[] = {
      {"DADGAD", "D A D G A D"},
      {"dadgad", "D A D G A D"},
      {"EADGBE", "E A D G B E"},
      {"eadgbe", "E A D G B E"},
      {"D A D G A D", "D A D G A D"},
      {"  D,A,D,  G,A,D ", "D A D G A D"},
      {"Eb Ab Db Gb Bb Eb", "E♭ A♭ D♭ G♭ B♭ E♭"},
      {"E♭ A♭ D♭ G♭ B♭ E♭", "E♭ A♭ D♭ G♭ B♭ E♭"},
      {"eb ab db gb bb eb", "E♭ A♭ D♭ G♭ B♭ E♭"},
      {"EbAbDbGbBbEb", "E♭ A♭ D♭ G♭ B♭ E♭"},
      {"ebabdbgbbbeb", "E♭ A♭ D♭ G♭ B♭ E♭"},
      {"CGCFAD", "C G C F A D"},
      {"C#G#C#F#A#D#", "C♯ G♯ C♯ F♯ A♯ D♯"},
      {"BF#BEG#C#", "B F♯ B E G♯ C♯"},
      {"bf#bebe", "B F♯ B E B E"},
      {"DAD GAD", "D A D G A D"},
      {"open G", "D G D G B D"},
      {"OPEN  g", "D G D G B D"},
      {"drop D", "D A D G B E"},
      {"double drop d", "D A D G B D"},
      {"Drop C#", "C♯ G♯ C♯ F♯ A♯ D♯"},
      {"half-step down", "E♭ A♭ D♭ G♭ B♭ E♭"},
      {"Standard", "E A D G B E"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.typed);
    const ParsedTuning parsed = Tuning::parseTuning(row.typed);
    EXPECT_EQ(parsed.problem, "");
    EXPECT_EQ(join(parsed.names, " "), row.names);
  }
}

TEST(TuningParsing, NamesWhatIsWrong) {
  struct Row {
    std::string typed;
    const char* problem;
  };
  const Row rows[] = {
      {"", "the tuning is empty"},
      {" , ", "the tuning is empty"},
      {"E A D G B", "names 5 strings"},
      {"E A D Gb E", "names 5 strings"},
      {"B E A D G B E", "names 7 strings"},
      {"EADGbE", "names 5 strings"},
      {"E", "names 1 string,"},
      {"E A D H B E", "\"H\" is not a note name"},
      {"open Q", "\"open\" is not a note name"},
      {"EADGBX", "\"EADGBX\" is neither"},
      {"E2 A2 D3 G3 B3 E4", "\"E2\" is not a note name"},
      {"🎸", "\"🎸\" is neither"},
      {"\xff\xfe", "neither"},
      {std::string(1000, 'E'), "EEE...\" names 1000 strings"},
      {std::string(12, ' ') + std::string(99, 'b'), "strings"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.typed);
    const ParsedTuning parsed = Tuning::parseTuning(row.typed);
    EXPECT_TRUE(parsed.names.empty());
    EXPECT_THAT(parsed.problem, HasSubstr(row.problem));
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
