// What the players make of patterns.

#include "Tonelake/accompaniment/accompaniment.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "Tonelake/accompaniment/built_in_patterns.h"
#include "Tonelake/accompaniment/pattern_repetition.h"
#include "Tonelake/accompaniment/picking_hand.h"
#include "Tonelake/accompaniment/standard_pitches.h"
#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/fingering/voicings.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/octave.h"
#include "tests/support/named_chord.h"

namespace tonelake {
namespace {

using Frets = std::array<std::int8_t, 6>;

const Chord cMajor{Note::C, "major", 0};
const ChordShape openC{cMajor, {Frets{-1, 3, 2, 0, 1, 0}, {}}};

// "t d+iii": a step a word, its notes with + between them; "t*" is muted, "t0" in the air.
std::vector<ArpeggioStep> steps(std::string_view text) {
  std::vector<ArpeggioStep> list;
  for (const std::string_view word : split(text, ' ')) {
    ArpeggioStep& step = list.emplace_back();
    for (std::string_view name : split(word, '+')) {
      const bool isMuted = name.ends_with('*');
      const bool isInAir = name.ends_with('0');
      if (isMuted || isInAir) name.remove_suffix(1);
      step.push_back({NoteDuration::quaver, arpeggioDirectionNamed(name).value(),
                      isMuted ? NoteArticulation::mute : NoteArticulation::pick,
                      static_cast<std::uint8_t>(isInAir ? 0 : 80)});
    }
  }
  return list;
}

Accompaniment piece(std::vector<ChordShape> chords, std::vector<ArpeggioStep> sequence,
                    WholeNumber bars) {
  return {std::move(chords),
          {"", "", std::move(sequence), TimeSignature::ts_44, {}, {}},
          std::nullopt,
          std::nullopt,
          92,
          bars};
}

TEST(Accompaniment, PlucksLikeAGuitarist) {
  const Chord e{Note::E, "minor", 0};
  const Chord power{Note::E, "5", 0};
  struct Row {
    Chord chord;
    Frets frets;
    const char* sequence;
    const char* strings;  // of each step, in the order in which they sound
  };
  const Row rows[] = {
      {cMajor, {-1, 3, 2, 0, 1, 0}, "t d b d", "1 3 2 4 "},
      {cMajor, {-1, 3, 2, 0, 1, 0}, "t d d d d u u", "1 3 4 5 3 5 4 "},
      {cMajor, {-1, 3, 2, 0, 1, 0}, "u u t u b u", "5 4 1 5 2 4 "},
      {cMajor, {-1, 3, 2, 0, 1, 0}, "d+iii u+iii t+iii iii r", "12345 5432 1345 345 - "},
      {{Note::G, "major", 0}, {3, 2, 0, 0, 0, 3}, "t b d+iii", "0 2 012345 "},
      {e, {0, 2, 2, 0, 0, 0}, "t b", "0 1 "},
      {{Note::D, "major", 0}, {-1, -1, 0, 2, 3, 2}, "t b b", "2 3 3 "},
      {power, {0, 2, -1, -1, -1, -1}, "u t b d d d d u iii+u", "1 0 1 0 1 0 1 0 10 "},
      {power, {-1, -1, -1, -1, -1, -1}, "t", " "},
  };
  for (const Row& row : rows) {
    PickingHand hand;
    std::string strings;
    for (const ArpeggioStep& step : steps(row.sequence)) {
      const HandMotion motion = hand.play(step, {row.chord, {row.frets, {}}});
      if (motion.silencesStrings) strings += '-';
      WholeNumber last = 0;
      for (const Pluck& pluck : motion.plucks) {
        strings += std::to_string(pluck.string);
        EXPECT_GE(pluck.delay, last);
        last = pluck.delay;
      }
      strings += ' ';
    }
    EXPECT_EQ(strings, row.strings) << row.sequence;
  }
  // The hand has left the highest of three strings when it finds but one.
  PickingHand hand;
  for (const ArpeggioStep& step : steps("d d d")) hand.play(step, openC);
  const HandMotion motion = hand.play(steps("u")[0], {e, {Frets{0, -1, -1, -1, -1, -1}, {}}});
  ASSERT_EQ(motion.plucks.size(), 1U);
  EXPECT_EQ(motion.plucks[0].string, 0);
}

// String, start and end of each note.
std::string notesOf(const Performance& performance) {
  std::string text;
  for (const NoteEvent& event : performance.guitar) {
    text += std::to_string(event.string) + ":" + std::to_string(event.sounds()) + "-" +
            std::to_string(event.end()) + " ";
  }
  return text;
}

TEST(Accompaniment, LetsStringsRing) {
  const ChordShape openE{{Note::E, "minor", 0}, {Frets{0, 2, 2, 0, 0, 0}, {}}};
  std::string heldForTwoBars = "iii";
  for (int i = 0; i < 15; ++i) heldForTwoBars += " t0";
  struct Row {
    std::string sequence;
    std::vector<ChordShape> chords;
    WholeNumber bars;
    const char* notes;
  };
  // clang-format off
  const Row rows[] = {
      {"t d d d t d0 u r", {openC}, 1,
       "1:0-960 3:240-1680 4:480-1680 5:720-1440 1:960-1680 5:1440-1680 "},
      {"t d t* r0 d t0 t0 t0", {openC}, 1, "1:0-480 3:240-720 1:480-515 3:960-1920 "},
      {heldForTwoBars, {openC, openC}, 2, "3:0-3840 4:0-3840 5:0-3840 "},
      {heldForTwoBars, {openC, openE}, 2, "3:0-1920 4:0-1920 5:0-1920 "},
      {"u+iii t0 t0 t0 t0 t0 d+iii*", {openE}, 1,
       "5:0-1465 4:4-1460 3:8-1455 2:12-1450 0:1440-1920 1:1445-1920 2:1450-1692 3:1455-1490 "
       "4:1460-1495 5:1465-1500 5:1680-1920 4:1684-1920 3:1688-1920 2:1692-1920 "},
      {"t", {}, 1, ""},
      {"t", {openC}, 0, ""},
  };
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_EQ(notesOf(perform(piece(row.chords, steps(row.sequence), row.bars))), row.notes)
        << row.sequence;
  }
  EXPECT_EQ(notesOf(perform(piece({openC}, {{}, {}}, 4))), "");
}

std::set<int> tonesOf(const Chord& chord) {
  std::set<int> tones;
  for (const WholeNumber tone : Chords::getChordData(chord.chordType)->notes) {
    tones.insert((chord.rootNote.pitchClass() + static_cast<int>(tone)) % octave);
  }
  return tones;
}

// On the grid, in order, in the chord, over before the same string or the bass sounds again, before
// the chord changes and before the end.
void checkNotes(const std::vector<NoteEvent>& notes, const Accompaniment& accompaniment) {
  const WholeNumber bar = ticksOfBar(accompaniment.arpeggio.timeSignature);
  std::map<int, WholeNumber> free;
  std::set<WholeNumber> bars;
  WholeNumber last = 0;
  for (const NoteEvent& note : notes) {
    const ChordShape& shape =
        accompaniment
            .chords[static_cast<std::size_t>(note.start / bar) % accompaniment.chords.size()];
    EXPECT_TRUE(tonesOf(shape.chord).contains(note.noteNumber % octave)) << note.start;
    EXPECT_EQ(note.start % ticksOf(NoteDuration::semiquaver), 0);
    EXPECT_GE(note.start, last);
    EXPECT_LT(note.delay, ticksOf(NoteDuration::demisemiquaver));
    EXPECT_GE(note.length, 1);
    EXPECT_LE(note.end(), (note.start / bar + 1) * bar) << "rings into another chord";
    EXPECT_GE(note.sounds(), free[note.string]) << "struck while it sounds";
    EXPECT_TRUE(note.velocity >= 1 && note.velocity <= 127);
    EXPECT_TRUE(note.noteNumber >= openBassString && note.noteNumber <= 88) << note.noteNumber;
    free[note.string] = note.end();
    last = note.start;
    bars.insert(note.start / bar);
  }
  EXPECT_EQ(static_cast<WholeNumber>(bars.size()), accompaniment.bars);
}

TEST(Accompaniment, PlaysEveryBuiltInPatternCleanly) {
  const PatternLibrary& library = builtInPatterns();
  std::vector<Chord> chords;
  for (const char* name : {"C", "G/B", "Bm7♭5", "A♭sus2"}) {
    chords.push_back(testing::chordNamed(name));
  }
  const auto voicings = Voicings::connectVoicings(chords, Tuning::standard);
  std::vector<ChordShape> shapes;
  for (std::size_t i = 0; i < chords.size(); ++i) {
    shapes.push_back({chords[i], voicings[i].position});
  }
  for (const ArpeggioSequence& sequence : library.arpeggios.sequences) {
    SCOPED_TRACE(sequence.name);
    Accompaniment accompaniment{shapes, sequence, std::nullopt, std::nullopt, 92, 8};
    checkNotes(perform(accompaniment).guitar, accompaniment);
    for (const BassPattern& bass : library.basses.bassPatterns) {
      SCOPED_TRACE(bass.name);
      if (bass.timeSignature != sequence.timeSignature) continue;
      accompaniment.bass = bass;
      checkNotes(perform(accompaniment).bass, accompaniment);
    }
    for (const DrumPattern& drums : library.drums.drumPatterns) {
      SCOPED_TRACE(drums.name);
      accompaniment.drums = drums;
      const Performance performance = perform(accompaniment);
      const WholeNumber bar = ticksOfBar(sequence.timeSignature);
      EXPECT_EQ(performance.length, 8 * bar);
      std::set<std::pair<WholeNumber, DrumNoteType>> struck;
      std::set<WholeNumber> bars;
      for (const DrumEvent& event : performance.drums) {
        EXPECT_EQ(event.start % ticksOf(NoteDuration::semiquaver), 0);
        EXPECT_LT(event.start, performance.length);
        EXPECT_TRUE(struck.emplace(event.start, event.type).second);
        EXPECT_TRUE(event.velocity >= 1 && event.velocity <= 127);
        bars.insert(event.start / bar);
      }
      EXPECT_EQ(bars.size(), 8U);
    }
  }
}

TEST(Accompaniment, BringsTheBassIntoItsRange) {
  struct Row {
    const char* chord;
    std::array<int, 4> notes;  // root, fifth, octave, third
  };
  const Row rows[] = {{"E", {28, 35, 40, 32}},     {"E♭m", {39, 34, 51, 42}},
                      {"C", {36, 31, 48, 40}},     {"C/E", {28, 31, 40, 40}},
                      {"Dsus4", {38, 33, 50, 43}}, {"G5", {31, 38, 43, 43}}};
  for (const Row& row : rows) {
    Accompaniment accompaniment =
        piece({{testing::chordNamed(row.chord), openC.position}}, steps("t"), 1);
    accompaniment.bass = BassPattern{"", "", {}, TimeSignature::ts_44};
    for (const BassPitch pitch :
         {BassPitch::root, BassPitch::fifth, BassPitch::octave, BassPitch::third}) {
      accompaniment.bass->bassNotes.push_back(
          {NoteDuration::crochet, pitch, NoteArticulation::pick, 300});
    }
    std::array<int, 4> notes{};
    const Performance performance = perform(accompaniment);
    ASSERT_EQ(performance.bass.size(), notes.size());
    std::transform(performance.bass.begin(), performance.bass.end(), notes.begin(),
                   [](const NoteEvent& event) { return event.noteNumber; });
    EXPECT_EQ(notes, row.notes) << row.chord;
    EXPECT_EQ(performance.bass.front().velocity, 127);
  }
  EXPECT_EQ(findPillars({Note::C, "major", -1}).bass, 7) << "the last tone, G";
}

}  // namespace
}  // namespace tonelake
