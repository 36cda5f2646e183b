#include "Tonelake/theory/note.h"

#include <array>
#include <utility>

#include "Tonelake/foundation/case_table.h"
#include "Tonelake/theory/octave.h"
#include "Tonelake/theory/spelling_tables.h"

namespace tonelake {
namespace {

struct NoteRow {
  Note::Case note;
  std::string_view caseName;
  std::string_view rawValue;
  std::int8_t semitoneOffset;  // above E
  std::uint8_t enharmonicCount;
  std::array<Note::Case, 3> enharmonics;
};

using N = Note;

// One row a note in declaration order: case, case name, name, semitones above E, other spellings
// (their number first). The offsets of D𝄪 and D♯𝄪 are not reduced to 0 and 1, kept on purpose.
// Facts: twelve-tone equal temperament and the usual accidentals.
// clang-format off
constexpr std::array<NoteRow, noteCount> noteTable{{
    {N::C,    "C",    "C",    8, 3, {N::Bs, N::Asds, N::Ddf}},
    {N::D,    "D",    "D",   10, 2, {N::Cds, N::Edf}},
    {N::E,    "E",    "E",    0, 2, {N::Ff, N::Dds}},
    {N::F,    "F",    "F",    1, 3, {N::Es, N::Dsds, N::Gdf}},
    {N::G,    "G",    "G",    3, 2, {N::Fds, N::Adf}},
    {N::A,    "A",    "A",    5, 2, {N::Gds, N::Bdf}},
    {N::B,    "B",    "B",    7, 3, {N::Cf, N::Ads, N::Dfdf}},
    {N::Cs,   "Cs",   "C♯",   9, 2, {N::Df, N::Bds}},
    {N::Ds,   "Ds",   "D♯",  11, 2, {N::Ef, N::Csds}},
    {N::Es,   "Es",   "E♯",   1, 3, {N::F, N::Dsds, N::Gdf}},
    {N::Fs,   "Fs",   "F♯",   2, 2, {N::Gf, N::Eds}},
    {N::Gs,   "Gs",   "G♯",   4, 2, {N::Af, N::Fsds}},
    {N::As,   "As",   "A♯",   6, 2, {N::Bf, N::Gsds}},
    {N::Bs,   "Bs",   "B♯",   8, 3, {N::C, N::Asds, N::Ddf}},
    {N::Cf,   "Cf",   "C♭",   7, 0, {}},
    {N::Df,   "Df",   "D♭",   9, 0, {}},
    {N::Ef,   "Ef",   "E♭",  11, 0, {}},
    {N::Ff,   "Ff",   "F♭",   0, 0, {}},
    {N::Gf,   "Gf",   "G♭",   2, 0, {}},
    {N::Af,   "Af",   "A♭",   4, 0, {}},
    {N::Bf,   "Bf",   "B♭",   6, 0, {}},
    {N::Cds,  "Cds",  "C𝄪",  10, 0, {}},
    {N::Csds, "Csds", "C♯𝄪", 11, 0, {}},
    {N::Dds,  "Dds",  "D𝄪",  12, 0, {}},
    {N::Dsds, "Dsds", "D♯𝄪", 13, 0, {}},
    {N::Eds,  "Eds",  "E𝄪",   2, 0, {}},
    {N::Fds,  "Fds",  "F𝄪",   3, 0, {}},
    {N::Fsds, "Fsds", "F♯𝄪",  4, 0, {}},
    {N::Gds,  "Gds",  "G𝄪",   5, 0, {}},
    {N::Gsds, "Gsds", "G♯𝄪",  6, 0, {}},
    {N::Ads,  "Ads",  "A𝄪",   7, 0, {}},
    {N::Asds, "Asds", "A♯𝄪",  8, 0, {}},
    {N::Bds,  "Bds",  "B𝄪",   9, 0, {}},
    {N::Cdf,  "Cdf",  "C♭♭",  6, 0, {}},
    {N::Dfdf, "Dfdf", "D♭♭♭", 7, 0, {}},
    {N::Ddf,  "Ddf",  "D♭♭",  8, 0, {}},
    {N::Efdf, "Efdf", "E♭♭♭", 9, 0, {}},
    {N::Edf,  "Edf",  "E♭♭", 10, 0, {}},
    {N::Fdf,  "Fdf",  "F♭♭", 11, 0, {}},
    {N::Gfdf, "Gfdf", "G♭♭♭", 0, 0, {}},
    {N::Gdf,  "Gdf",  "G♭♭",  1, 0, {}},
    {N::Afdf, "Afdf", "A♭♭♭", 2, 0, {}},
    {N::Adf,  "Adf",  "A♭♭",  3, 0, {}},
    {N::Bfdf, "Bfdf", "B♭♭♭", 4, 0, {}},
    {N::Bdf,  "Bdf",  "B♭♭",  5, 0, {}},
}};
// clang-format on

constexpr int pitchClassOfE = 4;

constexpr int pitchClassOf(const NoteRow& row) {
  return (row.semitoneOffset + pitchClassOfE) % octave;
}

// The offset must be what the raw value says: its letter raised or lowered by its signs.
constexpr bool offsetMatchesName(const NoteRow& row) {
  constexpr std::array<int, 7> naturals{9, 11, 0, 2, 4, 5, 7};  // A to G above C
  int pitch = naturals[static_cast<std::size_t>(row.rawValue[0] - 'A')];
  std::string_view signs = row.rawValue.substr(1);
  for (const auto& [sign, change] :
       {std::pair<std::string_view, int>{"♯", 1}, {"𝄪", 2}, {"♭", -1}}) {
    for (std::size_t at = 0; (at = signs.find(sign, at)) != std::string_view::npos; ++at) {
      pitch += change;
    }
  }
  return (pitch + octave) % octave == pitchClassOf(row);
}

// Row i describes case i, and its other spellings sound the same.
constexpr bool tableIsConsistent() {
  for (std::size_t i = 0; i < noteTable.size(); ++i) {
    const NoteRow& row = noteTable[i];
    if (row.note != i || !offsetMatchesName(row)) return false;
    for (std::size_t k = 0; k < row.enharmonicCount; ++k) {
      if (pitchClassOf(noteTable[row.enharmonics[k]]) != pitchClassOf(row)) return false;
    }
  }
  return true;
}
static_assert(tableIsConsistent());

constexpr auto cases = listCases<Note>(noteTable, &NoteRow::note);

constexpr auto enharmonicNotes = []<std::size_t... i>(std::index_sequence<i...>) {
  return std::array<std::array<Note, 3>, noteCount>{
      {{{noteTable[i].enharmonics[0], noteTable[i].enharmonics[1],
         noteTable[i].enharmonics[2]}}...}};
}
(std::make_index_sequence<noteCount>());

}  // namespace

std::optional<Note> Note::fromRawValue(std::string_view rawValue) noexcept {
  return findCase<Note>(noteTable, &NoteRow::note, rawValue);
}

Note Note::sharpOfPitchClass(int pitchClass) noexcept {
  return *fromRawValue(notesArrayRegular[static_cast<std::size_t>(pitchClass % octave)]);
}

std::span<const Note> Note::allCases() noexcept {
  return cases;
}

std::string_view Note::rawValue() const noexcept {
  return noteTable[case_].rawValue;
}

std::string_view Note::caseName() const noexcept {
  return noteTable[case_].caseName;
}

int Note::semitoneOffset() const noexcept {
  return noteTable[case_].semitoneOffset;
}

int Note::pitchClass() const noexcept {
  return pitchClassOf(noteTable[case_]);
}

std::span<const Note> Note::enharmonics() const noexcept {
  return std::span(enharmonicNotes[case_]).first(noteTable[case_].enharmonicCount);
}

}  // namespace tonelake
