#include "zyndle/nearest_names.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <unordered_map>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/theory/music_signs.h"

namespace zyndle {
namespace {

using tonelake::Chord;

constexpr std::size_t handful = 5;

// One slip in a name of up to five letters, another for every further two or three.
std::size_t tolerance(std::string_view name) {
  return std::max<std::size_t>(1, name.size() * 2 / 5);
}

struct Candidate {
  std::size_t distance;
  bool hasOtherRoot;
  tonelake::WholeNumber variant;
  std::string_view name;

  // Root positions and the typed root letter come first among equally near names; the name
  // itself makes the order the same on every run.
  auto rank() const { return std::tuple(distance, hasOtherRoot, variant, name.size(), name); }
};

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::size_t editDistance(std::string_view one, std::string_view other, std::size_t limit) {
  const std::size_t lengths[] = {one.size(), other.size()};
  if (std::max(lengths[0], lengths[1]) - std::min(lengths[0], lengths[1]) > limit) return limit + 1;
  // row[j]: from the bytes of `one` so far to the first j of `other`.
  std::vector<std::size_t> row(other.size() + 1);
  for (std::size_t j = 0; j < row.size(); ++j) row[j] = j;
  for (std::size_t i = 0; i < one.size(); ++i) {
    std::size_t diagonal = row[0];
    std::size_t least = row[0] = i + 1;
    for (std::size_t j = 0; j < other.size(); ++j) {
      const std::size_t changed = diagonal + (one[i] == other[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
      least = std::min(least, row[j + 1]);
    }
    if (least > limit) return limit + 1;
  }
  return row.back();
}

std::vector<Chord> nearestChords(std::string_view name) {
  // Compared in their ASCII form, in which a sign is one byte. Every name has one but those with
  // a double sharp.
  const std::string plain = tonelake::withTypedSigns(name);
  std::size_t limit = tolerance(plain);
  std::unordered_map<Chord, Candidate> best;
  for (const auto& [key, chord] : tonelake::Chords::getChordDictionary()) {
    if (!isAscii(key)) continue;
    const std::size_t distance = editDistance(plain, key, limit);
    if (distance > limit || distance >= plain.size()) continue;
    // Names much farther than the nearest would only distract.
    limit = std::min(limit, distance + 1);
    const Candidate candidate{distance, key.front() != plain.front(), chord.variant, key};
    const auto [found, isNew] = best.try_emplace(chord, candidate);
    if (!isNew && candidate.rank() < found->second.rank()) found->second = candidate;
  }
  std::vector<std::pair<Chord, Candidate>> ranked(best.begin(), best.end());
  std::sort(ranked.begin(), ranked.end(),
            [](const auto& a, const auto& b) { return a.second.rank() < b.second.rank(); });
  std::vector<Chord> chords;
  for (const auto& [chord, candidate] : ranked) {
    if (chords.size() == handful || candidate.distance > limit) break;
    chords.push_back(chord);
  }
  return chords;
}

}  // namespace zyndle
