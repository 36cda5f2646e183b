#include "Tonelake/chords/chord_finder.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

// C, E, G: the set of C major equals it and scores 0; that of C dominant 7th has one tone more
// and scores 1; that of C5 lacks one and scores 101. All others neither hold the notes nor are
// held by them.

namespace tonelake {
namespace {

// Of equally near chords these types come first, the others after them by name.
constexpr std::array<std::string_view, 5> favouredChordTypes{"major", "minor", "dominant 7th",
                                                             "major 7th", "minor 7th"};

// A chord that lacks some of the notes comes after every one that holds them all.
constexpr int scoreOfLacking = 100;
constexpr std::size_t scoreCount = scoreOfLacking + 12;

std::pair<std::ptrdiff_t, std::string_view> preference(std::string_view type) {
  const auto* const found = std::find(favouredChordTypes.begin(), favouredChordTypes.end(), type);
  return {found - favouredChordTypes.begin(), type};
}

}  // namespace

ChordFinder::ChordFinder(std::span<const ChordData* const> types, std::span<const Note> roots)
    : roots_(roots.begin(), roots.end()) {
  for (const ChordData* data : types) types_.push_back({data->title, data->notes});
  for (std::size_t root = 0; root < roots_.size(); ++root) {
    for (std::size_t type = 0; type < types_.size(); ++type) {
      const PitchClassSet tones = tonesAbove(roots_[root].pitchClass(), types_[type].notes);
      displayOrder_.push_back({tones, static_cast<std::uint16_t>(type),
                               static_cast<std::uint8_t>(root),
                               static_cast<std::uint8_t>(countPitchClasses(tones))});
    }
  }
  rankOrder_ = displayOrder_;
  std::stable_sort(rankOrder_.begin(), rankOrder_.end(), [this](const Entry& a, const Entry& b) {
    return preference(types_[a.type].name) < preference(types_[b.type].name);
  });
}

Chord ChordFinder::chordOf(const Entry& entry) const {
  return {roots_[entry.root], types_[entry.type].name, 0};
}

std::vector<Chord> ChordFinder::findExact(const NoteList& notes) const {
  const bool isEachPieceAPitch =
      static_cast<std::size_t>(countPitchClasses(notes.pitches)) == notes.pieceCount;
  if (!notes.firstPitch || !isEachPieceAPitch) return {};
  const PitchClassSet first = onlyPitchClass(*notes.firstPitch);
  std::vector<Chord> found;
  for (const Entry& entry : displayOrder_) {
    if (entry.tones != notes.pitches) continue;
    Chord chord = chordOf(entry);
    for (const WholeNumber note : types_[entry.type].notes) {
      if (onlyTone(chord.rootNote.pitchClass(), note) == first) found.push_back(chord);
      ++chord.variant;
    }
  }
  return found;
}

std::vector<Chord> ChordFinder::findMatching(PitchClassSet pitches) const {
  const int wanted = countPitchClasses(pitches);
  if (wanted < 2) return {};
  // The entries are in their order within a score, so that sorting is counting: how many have
  // which score, where each score begins, and then each to its place.
  std::vector<std::pair<std::uint8_t, const Entry*>> scored;
  scored.reserve(rankOrder_.size());
  std::array<std::size_t, scoreCount + 1> begins{};
  for (const Entry& entry : rankOrder_) {
    const bool holdsAll = includesAll(entry.tones, pitches);
    if (!holdsAll && !includesAll(pitches, entry.tones)) continue;
    const int score = holdsAll ? entry.size - wanted : scoreOfLacking + wanted - entry.size;
    scored.emplace_back(static_cast<std::uint8_t>(score), &entry);
    ++begins[static_cast<std::size_t>(score) + 1];
  }
  for (std::size_t score = 1; score < begins.size(); ++score) begins[score] += begins[score - 1];
  std::vector<const Entry*> ordered(scored.size());
  for (const auto& [score, entry] : scored) ordered[begins[score]++] = entry;
  std::vector<Chord> found;
  found.reserve(ordered.size());
  for (const Entry* entry : ordered) found.push_back(chordOf(*entry));
  return found;
}

}  // namespace tonelake
