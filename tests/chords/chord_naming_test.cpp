#include "Tonelake/chords/chord_naming.h"

#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_dictionary.h"
#include "Tonelake/chords/chord_intervals.h"
#include "Tonelake/chords/chord_note_numbers.h"
#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/chords/inversion.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Every chord that is offered: 17 roots, 49 types, every variant.
template <typename Visit>
void forEveryChord(Visit visit) {
  for (const Note root : ChordDataManager::shared().allRootNotes()) {
    for (const std::string& type : chordTypes()) {
      const auto variants = static_cast<WholeNumber>(Chords::getChordData(type)->notes.size());
      for (WholeNumber variant = 0; variant < variants; ++variant) {
        visit(Chord{root, type, variant});
      }
    }
  }
}

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

TEST(ChordSpelling, SpellsEveryChordByItsDegrees) {
  const std::pair<Chord, std::vector<std::string>> rows[] = {
      {{Note::C, "diminished 7th", 2}, {"C", "E♭", "G♭", "B♭♭"}},
      {{Note::Ef, "minor", 0}, {"E♭", "G♭", "B♭"}},
      {{Note::Gs, "major", 0}, {"G♯", "B♯", "D♯"}},
      {{Note::Cs, "augmented", 0}, {"C♯", "E♯", "G𝄪"}},
      {{Note::C, "dominant 7th add 13", 0}, {"C", "E", "G", "B♭", "A"}},
      {{Note::C, "", 0}, {}}};
  for (const auto& [chord, tones] : rows) {
    EXPECT_EQ(Chords::getNotesOfChord(chord), tones) << ::testing::PrintToString(chord);
  }
  forEveryChord([](const Chord& chord) {
    const auto& semitones = Chords::getChordData(chord.chordType)->notes;
    const auto tones = Chords::getNotesOfChord(chord);
    ASSERT_EQ(tones.size(), semitones.size());
    for (std::size_t i = 0; i < tones.size(); ++i) {
      const auto note = Note::fromRawValue(tones[i]);
      ASSERT_TRUE(note.has_value()) << tones[i] << " in " << ::testing::PrintToString(chord);
      EXPECT_EQ(note->pitchClass(), (chord.rootNote.pitchClass() + semitones[i]) % 12);
    }
  });
}

TEST(ChordIntervals, BeginWithTheBass) {
  const Chord root{Note::C, "major", 0};
  EXPECT_THAT(Chords::getIntervalsOfChord(root),
              ElementsAre("Unison", "Major Third", "Perfect Fifth"));
  for (const WholeNumber variant : {1, 4, -2}) {
    EXPECT_THAT(Chords::getIntervalsOfChordForToday({Note::C, "major", variant}),
                ElementsAre("Major Third", "Perfect Fifth", "Root"))
        << variant;
  }
  EXPECT_THAT(Chords::getIntervalsOfChord({Note::C, "?", 0}), IsEmpty());
  forEveryChord([](const Chord& chord) {
    EXPECT_THAT(Chords::getIntervalsOfChord(chord), ::testing::Not(::testing::Contains("")))
        << ::testing::PrintToString(chord);
  });
}

TEST(ChordNoteNumbers, SoundTheFirstFingering) {
  // x32010, an octave low.
  EXPECT_THAT(Chords::getNoteNumbersForChord({Note::C, "major", 0}),
              ElementsAre(36, 40, 43, 48, 52));
  EXPECT_DEATH(Chords::getNoteNumbersForChord({Note::C, "?", 0}), "without a fingering");
}

TEST(ChordNoteNumbers, StackPianoVoicingsUpwards) {
  const auto notes = [](Note root, WholeNumbers formula) {
    return Chords::getChordPianoNotes(root, formula);
  };
  EXPECT_THAT(notes(Note::C, {0, 4, 7}), ElementsAre(48, 52, 55));
  EXPECT_THAT(notes(Note::E, {0, 7, 4, 0}), ElementsAre(40, 47, 56, 64));
  EXPECT_THAT(notes(Note::Dds, {0}), ElementsAre(52));
  EXPECT_THAT(notes(Note::Ds, {12, 0, -24}), ElementsAre(63, 75, 87));
  EXPECT_THAT(notes(Note::C, {}), IsEmpty());
}

// A name leads back to a chord that sounds the same, bass included.
TEST(ChordDictionary, FindsEveryChordByEveryName) {
  const auto sound = [](const Chord& chord) {
    const auto& notes = Chords::getChordData(chord.chordType)->notes;
    std::set<WholeNumber> tones;
    for (const WholeNumber note : notes) tones.insert((chord.rootNote.pitchClass() + note) % 12);
    const WholeNumber bass = notes[static_cast<std::size_t>(chord.variant)];
    return std::pair(tones, (chord.rootNote.pitchClass() + bass) % 12);
  };
  forEveryChord([&](const Chord& chord) {
    auto names = Chords::getAlternateTitlesForChord(chord);
    names.push_back(Chords::getTitleForChord(chord));
    names.push_back(Chords::getShortestTitleForChord(chord));
    for (const std::string& name : names) {
      const auto found = Chords::lookUpChord(name);
      ASSERT_TRUE(found.has_value()) << name;
      ASSERT_EQ(sound(*found), sound(chord)) << name;
      ASSERT_TRUE(Chords::getChordDictionary().contains(name)) << name;
    }
    const auto byTitle = Chords::lookUpChord(names[names.size() - 2]);
    ASSERT_EQ(*byTitle, chord) << "an exact title belongs to its own chord";
  });
}

TEST(ChordDictionary, SettlesNamesThatTwoChordsClaim) {
  const std::pair<const char*, Chord> rows[] = {
      {"Cm6", {Note::C, "minor 6", 0}},
      {"Cm6/A", {Note::C, "minor 6", 3}},
      {"F#m7b5/E", {Note::Fs, "minor 7th flat 5", 3}},
      {"Bb", {Note::Bf, "major", 0}},
      {"Dbmaj7/C", {Note::Df, "major 7th", 3}},
      {"C half-diminished 7th", {Note::C, "dominant 7th flat 5", 0}},
      {"B/D#", {Note::B, "major", 1}},
  };
  for (const auto& [name, chord] : rows) EXPECT_EQ(Chords::lookUpChord(name), chord) << name;
  for (const char* name : {"", "H", "c", "Cmaj77", "E#", "C/F", "C major "}) {
    EXPECT_EQ(Chords::lookUpChord(name), std::nullopt) << name;
  }
}

TEST(Inversion, NamesTheBassPosition) {
  EXPECT_EQ(Inversion(Inversion::seventhInversion).localizedName(), "Seventh inversion");
  for (const Inversion inversion : Inversion::allCases()) {
    EXPECT_EQ(Inversion::fromRawValue(inversion.rawValue()), inversion);
    EXPECT_NE(inversion.localizedName(), inversion.localizedKey());
  }
  EXPECT_EQ(Inversion::fromRawValue("first"), std::nullopt);
}

}  // namespace
}  // namespace tonelake
