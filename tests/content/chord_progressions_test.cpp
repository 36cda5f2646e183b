#include "Tonelake/content/chord_progressions.h"

#include <map>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/content/chord_progression_json.h"
#include "Tonelake/foundation/text.h"
#include "tests/support/printing.h"
#include "tests/support/shouting.h"

namespace tonelake::ChordProgressions {
namespace {

using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

// The natural notes and their single sharps and flats: every key that somebody may ask for.
std::vector<Note> keyRoots() {
  std::vector<Note> roots;
  for (const Note note : Note::allCases()) {
    if (countCharacters(note.rawValue()) <= 2 && !note.rawValue().ends_with("𝄪")) {
      roots.push_back(note);
    }
  }
  return roots;
}

std::string titles(const Chord& key, const std::string& progression) {
  return join(getChordTitles({progression, "", {}}, key), ", ");
}

TEST(ChordProgressions, NamesTheChordsOfAKey) {
  struct Row {
    Chord key;
    std::string progression;
    const char* chords;
  };
  const Chord c{Note::C, "major", 0};
  const Chord a{Note::A, "minor", 0};
  const Chord d{Note::D, "major", 0};
  const Row rows[] = {
      {c, "I-V-vi-IV", "C major, G major, A minor, F major"},
      {{Note::G, "major", 2}, "I-V-vi-IV", "G major, D major, E minor, C major"},
      {a, "i-VI-III-VII", "A minor, F major, C major, G major"},
      {{Note::A, "Minor", 0}, "VI", "F major"},
      {{Note::A, "m7", 0}, "VI", "F♯ major"},
      {c, "I-♭VII-IV-I", "C major, B♭ major, F major, C major"},
      {c, "bVII-#iv-♭♭VII-viii", "B♭ major, F♯ minor, B♭♭ major, C minor"},
      {{Note::Bs, "major", 0}, "III-V", "D𝄪 major, F𝄪 major"},
      {{Note::Cf, "minor", 0}, "ii-III-VI", "D♭ minor, E♭♭ major, A♭♭ major"},
      {c, " I - \u00A0vi\t-IV\n", "C major, A minor, F major"},
      {c, "Iv-xI", "F minor"},
      // A numeral with a suffix lies on the root, which hardly any letter but its own can spell.
      {c, "V7-I7-vii°", "C major, B♯ minor"},
      {c, "abc-♭I-0-\xff-#", ""},
      {d, "abc", "C𝄪 major"},
      {c, "", ""},
      {c, "-", ""},
      {c, "--I--", "C major"},
      {c, std::string(40, '#') + "I", ""},
      {d, std::string(100'000, 'I'), ""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(titles(row.key, row.progression), row.chords) << row.progression.substr(0, 99);
  }
  std::string endless;
  while (endless.size() < 100'000) endless += "I-";
  EXPECT_THAT(getChordsForChordProgression(c, endless), SizeIs(50'000));
}

TEST(ChordProgressions, NamesTheNeighborsOfAKey) {
  const auto related = [](Note root, const char* type) {
    std::vector<std::string> names;
    for (const Chord& chord : getRelatedChordsForKeySignature({root, type, 0})) {
      names.push_back(std::string(chord.rootNote.rawValue()) + " " + chord.chordType);
    }
    return join(names, ", ");
  };
  const char* const ofMajor = "A major, D major, E major, F♯ minor, B minor, C♯ minor";
  EXPECT_EQ(related(Note::A, "major"), ofMajor);
  EXPECT_EQ(related(Note::A, "m7"), ofMajor);
  EXPECT_EQ(related(Note::A, "minor"), "A minor, C major, D minor, E major, F major");
  EXPECT_EQ(related(Note::A, "Minor"), "A major, D major, E major, F minor, B minor, C minor");
}

// Steps of the scale of a key, counted independently of the library.
TEST(ChordProgressions, FitEveryKey) {
  const std::map<std::string, std::vector<int>> scales{{"major", {0, 2, 4, 5, 7, 9, 11}},
                                                       {"minor", {0, 2, 3, 5, 7, 8, 10}}};
  const std::vector<std::string> numerals{"I", "II", "III", "IV", "V", "VI", "VII"};
  const std::string letters = "CDEFGAB";
  ASSERT_THAT(keyRoots(), SizeIs(21));
  for (const auto& [type, scale] : scales) {
    for (const ChordProgression& progression : getChordProgressionsDataForChordType(type)) {
      const auto tokens = split(progression.progression, '-');
      for (const Note root : keyRoots()) {
        SCOPED_TRACE(progression.progression + " in " + std::string(root.rawValue()) + type);
        const auto chords = getChordsForChordProgression({root, type, 0}, progression.progression);
        ASSERT_EQ(chords.size(), tokens.size());
        for (std::size_t i = 0; i < chords.size(); ++i) {
          const bool isFlat = tokens[i].starts_with("♭");
          std::string capital = replaceAll(tokens[i], "♭", "");
          const bool isMajor = std::isupper(capital.front()) != 0;
          for (char& letter : capital) letter = uppercase(letter);
          const auto degree = static_cast<std::size_t>(
              std::find(numerals.begin(), numerals.end(), capital) - numerals.begin());
          ASSERT_LT(degree, scale.size());
          const int pitch = root.pitchClass() + scale[degree] - (isFlat ? 1 : 0);
          EXPECT_EQ(chords[i].rootNote.pitchClass(), pitch % 12);
          EXPECT_EQ(chords[i].rootNote.rawValue()[0],
                    letters[(letters.find(root.rawValue()[0]) + degree) % letters.size()]);
          EXPECT_EQ(chords[i].chordType, isMajor ? "major" : "minor");
          EXPECT_EQ(chords[i].variant, 0);
        }
      }
    }
  }
}

TEST(ChordProgressions, AreDescribedByTheirOwnChords) {
  std::set<std::string> descriptions;
  for (const std::string type : {"major", "minor"}) {
    for (const ChordProgression& progression : getChordProgressionsDataForChordType(type)) {
      SCOPED_TRACE(progression.progression);
      EXPECT_TRUE(isValidUtf8(progression.description));
      EXPECT_THAT(progression.description,
                  AnyOf(HasSubstr("--i--"), HasSubstr("--I--"), HasSubstr("--V--")));
      const std::string marked = replaceAll(progression.description, "--", "|");
      const auto pieces = split(marked, '|');
      const auto tokens = split(progression.progression, '-');
      ASSERT_EQ(pieces.size() % 2, 1U) << "a marker is open";
      for (std::size_t i = 1; i < pieces.size(); i += 2) {
        EXPECT_THAT(tokens, ::testing::Contains(pieces[i]));
      }
      for (const Note root : keyRoots()) {
        EXPECT_THAT(getDescription(progression, {root, type, 0}), Not(HasSubstr("--")));
      }
      descriptions.insert(progression.description);
    }
  }
  EXPECT_THAT(descriptions, SizeIs(18 + 14));
  for (const char* other : {"Major", "m", "min7", ""}) {
    EXPECT_THAT(getChordProgressionsDataForChordType(other), IsEmpty()) << other;
  }
}

TEST(ChordProgressions, PutChordsInPlaceOfMarkers) {
  const Chord c{Note::C, "major", 0};
  const std::pair<const char*, const char*> rows[] = {
      {"(--iii-- and --vi--)", "(E minor and A minor)"},
      {"home (--I--), away (--♭VII--), home (--I--)",
       "home (C major), away (B♭ major), home (C major)"},
      {"--I", "--I"},
      {"--I\n--", "--I\n--"},
      {"----", "----"},
      // What cannot be resolved moves the others up, and the last markers stay.
      {"--abc-- --IV--", "F major --IV--"},
  };
  for (const auto& [description, text] : rows) {
    EXPECT_EQ(getDescription({"", description, {}}, c), text);
  }
}

TEST(ChordProgressions, SpeakTheLanguageTheyAreGiven) {
  const auto plain = getChordProgressionsDataForChordType("minor");
  const auto shouted = getChordProgressionsDataForChordType("minor", testing::Shouting());
  ASSERT_EQ(plain.size(), shouted.size());
  for (std::size_t i = 0; i < plain.size(); ++i) {
    EXPECT_EQ(shouted[i].description, plain[i].description + "!");
    EXPECT_EQ(shouted[i].progression, plain[i].progression);
    const json::Value encoded = encodeChordProgression(plain[i]);
    EXPECT_EQ(decodeChordProgression(json::Node(encoded)), plain[i]);
  }
}

TEST(ChordProgressions, HaveStylesOfExactNames) {
  EXPECT_THAT(MusicStyles::allCases(), SizeIs(25));
  for (const MusicStyles style : MusicStyles::allCases()) {
    EXPECT_EQ(MusicStyles::fromRawValue(style.rawValue()), style);
  }
  EXPECT_EQ(MusicStyles::fromRawValue("R&B"), MusicStyles(MusicStyles::rnb));
  for (const char* other : {"", "rock", "Rnb", "Hip hop", "Rock "}) {
    EXPECT_EQ(MusicStyles::fromRawValue(other), std::nullopt) << other;
  }
}

}  // namespace
}  // namespace tonelake::ChordProgressions
