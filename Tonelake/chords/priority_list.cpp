#include "Tonelake/chords/priority_list.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tonelake {
namespace {

struct PreferredShape {
  Note::Case root;
  std::string_view chordType;
  Frets frets;
};

// One shape a line, lowest string first; the shapes of a chord stand together, and their order is
// the order of preference. Facts: the shapes that chord books teach first. The D♯ major shape
// with an open G string is kept on purpose.
// clang-format off
constexpr std::array<PreferredShape, 56> preferredShapes{{
    {Note::C,  "major",         {-1,  3,  2,  0,  1,  0}},
    {Note::C,  "major",         {-1,  3,  2,  0,  1,  3}},
    {Note::C,  "major",         {-1,  3,  5,  5,  5,  3}},
    {Note::C,  "major",         { 8, 10, 10,  9,  8,  8}},
    {Note::C,  "minor",         {-1,  3,  5,  5,  4,  3}},
    {Note::C,  "minor",         { 8, 10, 10,  8,  8,  8}},
    {Note::C,  "9",             {-1,  3,  2,  3,  3,  0}},
    {Note::D,  "major",         {-1, -1,  0,  2,  3,  2}},
    {Note::D,  "major",         {-1,  5,  4,  2,  3,  2}},
    {Note::D,  "major",         {-1,  5,  7,  7,  7,  5}},
    {Note::D,  "major",         {10, 12, 12, 11, 10, 10}},
    {Note::D,  "minor",         {-1, -1,  0,  2,  3,  1}},
    {Note::D,  "minor",         {-1,  5,  7,  7,  6,  5}},
    {Note::E,  "major",         { 0,  2,  2,  1,  0,  0}},
    {Note::E,  "minor",         { 0,  2,  2,  0,  0,  0}},
    {Note::F,  "major",         { 1,  3,  3,  2,  1,  1}},
    {Note::F,  "major",         {-1, -1,  3,  2,  1,  1}},
    {Note::F,  "major",         {-1,  8,  7,  5,  6,  5}},
    {Note::F,  "major",         {-1,  8, 10, 10, 10,  8}},
    {Note::F,  "major 7th",     {-1, -1,  3,  2,  1,  0}},
    {Note::F,  "major 7th",     { 1,  3,  2,  2,  1,  1}},
    {Note::F,  "major 7th",     {-1, -1,  3,  5,  5,  5}},
    {Note::F,  "minor major 7th", { 1,  3,  2,  1,  1,  1}},
    {Note::G,  "major",         { 3,  2,  0,  0,  0,  3}},
    {Note::G,  "major",         { 3,  2,  0,  0,  3,  3}},
    {Note::G,  "major",         { 3,  5,  5,  4,  3,  3}},
    {Note::G,  "major",         {-1, 10, 12, 12, 12, 10}},
    {Note::G,  "minor",         {-1, -1,  5,  3,  3,  3}},
    {Note::G,  "dominant 7th",  { 3,  2,  0,  0,  0,  1}},
    {Note::A,  "major",         {-1,  0,  2,  2,  2,  0}},
    {Note::A,  "major",         { 5,  7,  7,  6,  5,  5}},
    {Note::B,  "minor",         {-1,  2,  4,  4,  3,  2}},
    {Note::B,  "minor",         { 7,  9,  9,  7,  7,  7}},
    {Note::Ds, "major",         {-1, -1,  1,  3,  4,  3}},
    {Note::Ds, "major",         {-1,  6,  5,  0,  4,  6}},
    {Note::Ds, "major",         {-1,  6,  8,  8,  8,  6}},
    {Note::Ds, "major",         {11, 13, 13, 12, 11, 11}},
    {Note::As, "major",         {-1,  1,  3,  3,  3,  1}},
    {Note::As, "major",         { 6,  8,  8,  7,  6,  6}},
    {Note::As, "major",         {-1, 13, 12, 10, 11, 10}},
    {Note::As, "dominant 7th",  {-1,  1,  3,  1,  3,  1}},
    {Note::As, "major 7th",     {-1,  1,  3,  2,  3,  1}},
    {Note::As, "major 7th",     { 6,  8,  7,  7,  6,  6}},
    {Note::C,  "5",             {-1,  3,  5,  5, -1, -1}},
    {Note::Cs, "5",             {-1,  4,  6,  6, -1, -1}},
    {Note::D,  "5",             {-1,  5,  7,  7, -1, -1}},
    {Note::Ds, "5",             {-1,  6,  8,  8, -1, -1}},
    {Note::E,  "5",             { 0,  2,  2,  4,  0,  0}},
    {Note::E,  "5",             { 0,  2,  2, -1, -1, -1}},
    {Note::F,  "5",             { 1,  3,  3, -1, -1, -1}},
    {Note::Fs, "5",             { 2,  4,  4, -1, -1, -1}},
    {Note::G,  "5",             { 3,  5,  5, -1, -1, -1}},
    {Note::Gs, "5",             { 4,  6,  6, -1, -1, -1}},
    {Note::A,  "5",             {-1,  0,  2,  2, -1, -1}},
    {Note::As, "5",             {-1,  1,  3,  3, -1, -1}},
    {Note::B,  "5",             {-1,  2,  4,  4, -1, -1}},
}};
// clang-format on

constexpr std::array<Frets, preferredShapes.size()> listFrets() {
  std::array<Frets, preferredShapes.size()> list{};
  for (std::size_t i = 0; i < list.size(); ++i) list[i] = preferredShapes[i].frets;
  return list;
}
constexpr auto preferredFrets = listFrets();

std::vector<PriorityEntry> groupByChord() {
  std::vector<PriorityEntry> entries;
  for (std::size_t i = 0; i < preferredShapes.size(); ++i) {
    const Chord chord{preferredShapes[i].root, std::string(preferredShapes[i].chordType), 0};
    if (entries.empty() || entries.back().chord != chord) {
      entries.push_back({chord, std::span(preferredFrets).subspan(i, 0)});
    }
    std::span<const Frets>& fingerings = entries.back().fingerings;
    fingerings = {fingerings.data(), fingerings.size() + 1};
  }
  return entries;
}

}  // namespace

std::span<const PriorityEntry> priorityList() {
  static const std::vector<PriorityEntry> entries = groupByChord();
  return entries;
}

std::span<const Frets> preferredFingerings(const Chord& chord) {
  const auto entries = priorityList();
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [&](const PriorityEntry& entry) { return entry.chord == chord; });
  return found == entries.end() ? std::span<const Frets>() : found->fingerings;
}

}  // namespace tonelake
