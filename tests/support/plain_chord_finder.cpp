#include "tests/support/plain_chord_finder.h"

#include <algorithm>
#include <tuple>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/theory/spelling_tables.h"

namespace tonelake::testing {
namespace {

constexpr int noPitch = -1;

int pitchIndexOfName(const std::string& name) {
  for (std::size_t index = 0; index < 12; ++index) {
    for (const SpellingTable* table : spellingTables) {
      if ((*table)[index] == name) return static_cast<int>(index);
    }
  }
  return noPitch;
}

std::vector<int> pitchesOf(const std::string& notes) {
  std::vector<int> pitches;
  for (std::size_t begin = 0; begin <= notes.size();) {
    const std::size_t end = std::min(notes.find(',', begin), notes.size());
    std::string piece = notes.substr(begin, end - begin);
    begin = end + 1;
    if (piece.empty()) continue;
    piece.erase(0, piece.find_first_not_of(" \t\n"));
    piece.erase(piece.find_last_not_of(" \t\n") + 1);
    for (char& letter : piece) {
      if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    }
    if (piece.size() == 2 && piece[0] >= 'A' && piece[0] <= 'G' && piece[1] == 'B') {
      piece = piece.substr(0, 1) + "♭";
    }
    for (std::size_t at; (at = piece.find('#')) != std::string::npos;) piece.replace(at, 1, "♯");
    pitches.push_back(pitchIndexOfName(piece));
  }
  return pitches;
}

template <typename List, typename Element>
auto placeIn(const List& list, const Element& element) {
  return std::find(list.begin(), list.end(), element) - list.begin();
}

int favour(const std::string& type) {
  const std::string favoured[] = {"major", "minor", "dominant 7th", "major 7th", "minor 7th"};
  return static_cast<int>(std::find(std::begin(favoured), std::end(favoured), type) - favoured);
}

bool holds(const std::set<int>& all, const std::set<int>& some) {
  return std::includes(all.begin(), all.end(), some.begin(), some.end());
}

}  // namespace

PlainChordFinder::PlainChordFinder() {
  const ChordDataManager& manager = ChordDataManager::shared();
  const auto place = [&](const Known& known) {
    return std::tuple(placeIn(manager.allRootNotes(), known.chord.rootNote),
                      placeIn(manager.chordTypes(), known.chord.chordType), known.chord.variant);
  };
  for (const auto& [name, chord] : manager.chordDictionary()) {
    const WholeNumbers& notes = manager.chordData(chord.chordType)->notes;
    const int root = pitchIndexOfName(std::string(chord.rootNote.rawValue()));
    Known known{chord, {}, 0};
    for (const WholeNumber note : notes) known.tones.insert((root + static_cast<int>(note)) % 12);
    known.bass = (root + static_cast<int>(notes.at(static_cast<std::size_t>(chord.variant)))) % 12;
    chords_.push_back(known);
  }
  std::sort(chords_.begin(), chords_.end(),
            [&](const Known& a, const Known& b) { return place(a) < place(b); });
  const auto isSame = [](const Known& a, const Known& b) { return a.chord == b.chord; };
  chords_.erase(std::unique(chords_.begin(), chords_.end(), isSame), chords_.end());
}

std::vector<Chord> PlainChordFinder::findExact(const std::string& notes) const {
  const std::vector<int> pitches = pitchesOf(notes);
  if (pitches.empty() || pitches.front() == noPitch) return {};
  std::set<int> input(pitches.begin(), pitches.end());
  input.erase(noPitch);
  if (input.size() != pitches.size()) return {};
  std::vector<Chord> found;
  for (const Known& known : chords_) {
    if (known.tones == input && known.bass == pitches.front()) found.push_back(known.chord);
  }
  return found;
}

std::vector<Chord> PlainChordFinder::findMatching(const std::string& notes) const {
  const std::vector<int> pitches = pitchesOf(notes);
  std::set<int> input(pitches.begin(), pitches.end());
  input.erase(noPitch);
  if (input.size() < 2) return {};
  std::vector<std::tuple<std::size_t, int, std::string, Chord>> scored;
  for (const Known& known : chords_) {
    const std::set<int>& tones = known.tones;
    if (known.chord.variant != 0) continue;
    if (!holds(tones, input) && !holds(input, tones)) continue;
    const std::size_t score =
        holds(tones, input) ? tones.size() - input.size() : 100 + input.size() - tones.size();
    scored.emplace_back(score, favour(known.chord.chordType), known.chord.chordType, known.chord);
  }
  const auto key = [](const auto& entry) {
    return std::tie(std::get<0>(entry), std::get<1>(entry), std::get<2>(entry));
  };
  std::stable_sort(scored.begin(), scored.end(),
                   [&](const auto& a, const auto& b) { return key(a) < key(b); });
  std::vector<Chord> found;
  found.reserve(scored.size());
  for (const auto& entry : scored) found.push_back(std::get<3>(entry));
  return found;
}

}  // namespace tonelake::testing
