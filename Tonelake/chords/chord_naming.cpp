#include "Tonelake/chords/chord_naming.h"

#include <algorithm>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/chords/variant.h"
#include "Tonelake/foundation/fatal.h"
#include "Tonelake/foundation/text.h"

namespace tonelake {
namespace {

WholeNumber length(std::string_view text) {
  return static_cast<WholeNumber>(countCharacters(text));
}

bool contains(const std::vector<std::string>& list, std::string_view text) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

// "" for the root position, else "/" and the tone in the bass.
std::string bassSuffix(const NamedChord& chord) {
  if (!hasVariant(chord.variant, chord.tones.size())) {
    stopWithProgrammingError("a chord has no such variant");
  }
  return chord.variant == 0 ? "" : "/" + chord.tones[static_cast<std::size_t>(chord.variant)];
}

// " major" but "9".
std::string spacedTitle(const ChordData& data) {
  return data.includesSpace ? " " + data.title : data.title;
}

// One way to write a root: which sign becomes which ASCII letter, if any.
struct RootSpelling {
  std::string_view sign;
  std::string_view ascii;

  std::string write(std::string_view name) const {
    return sign.empty() ? std::string(name) : replaceAll(name, sign, ascii);
  }
};

// As it stands, then with "b" for a flat root and with "#" for a sharp one.
std::vector<RootSpelling> rootSpellings(std::string_view root) {
  std::vector<RootSpelling> spellings{{"", ""}};
  if (root.ends_with("♭")) spellings.push_back({"♭", "b"});
  if (root.ends_with("♯")) spellings.push_back({"♯", "#"});
  return spellings;
}

// Key, short name, spaced key, then the other names that are not there yet.
std::vector<std::string> typeNames(const ChordData& data) {
  std::vector<std::string> names{data.title, data.shortTitle, spacedTitle(data)};
  for (const std::string& name : data.otherNames) {
    if (!name.empty() && !contains(names, name)) names.push_back(name);
  }
  return names;
}

// The tone in the bass, or "" in root position and for a variant that the chord does not have.
std::string bassTone(const NamedChord& chord) {
  const bool hasBass = chord.variant != 0 && hasVariant(chord.variant, chord.tones.size());
  return hasBass ? chord.tones[static_cast<std::size_t>(chord.variant)] : "";
}

}  // namespace

NamedChord::NamedChord(const Chord& chord, const ChordData& chordData)
    : root(chord.rootNote),
      variant(chord.variant),
      data(chordData),
      tones(spellTones(chord.rootNote, chordData)) {}

std::string titleOf(const NamedChord& chord, WholeNumber maxChars) {
  const bool fits = length(chord.data.title) <= maxChars;
  return std::string(chord.root.rawValue()) +
         (fits ? spacedTitle(chord.data) : chord.data.shortTitle) + bassSuffix(chord);
}

std::string shortestTitleOf(const NamedChord& chord) {
  std::vector<std::string> candidates{spacedTitle(chord.data), chord.data.title,
                                      chord.data.shortTitle};
  candidates.insert(candidates.end(), chord.data.otherNames.begin(), chord.data.otherNames.end());
  // min_element keeps the earlier of two that are equally short.
  const auto shortest = std::min_element(
      candidates.begin(), candidates.end(),
      [](const std::string& a, const std::string& b) { return length(a) < length(b); });
  return std::string(chord.root.rawValue()) + *shortest + bassSuffix(chord);
}

std::vector<std::string> alternateTitlesOf(const NamedChord& chord) {
  const std::string bass = bassTone(chord);
  const std::vector<std::string> names = typeNames(chord.data);
  std::vector<std::string> titles;
  for (const RootSpelling& spelling : rootSpellings(chord.root.rawValue())) {
    const std::string root = spelling.write(chord.root.rawValue());
    const std::string suffix = bass.empty() ? "" : "/" + spelling.write(bass);
    for (const std::string& name : names) {
      std::string title = root;
      title += name;
      title += suffix;
      if (!contains(titles, title)) titles.push_back(std::move(title));
    }
  }
  return titles;
}

namespace Chords {
namespace {

// Passes the chord with its dictionary entry to `rule`; an unknown type gives the empty result.
template <typename Rule>
auto withData(const Chord& chord, Rule rule) {
  const ChordData* data = getChordData(chord.chordType);
  using Result = decltype(rule(NamedChord(chord, *data)));
  return data == nullptr ? Result() : rule(NamedChord(chord, *data));
}

}  // namespace

std::string getTitleForChord(const Chord& chord, WholeNumber maxChars) {
  return withData(chord, [=](const NamedChord& named) { return titleOf(named, maxChars); });
}

std::string getShortestTitleForChord(const Chord& chord) {
  return withData(chord, shortestTitleOf);
}

std::vector<std::string> getAlternateTitlesForChord(const Chord& chord) {
  return withData(chord, alternateTitlesOf);
}

}  // namespace Chords
}  // namespace tonelake
