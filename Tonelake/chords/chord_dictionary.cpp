#include "Tonelake/chords/chord_dictionary.h"

#include <tuple>

#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/foundation/text.h"

namespace tonelake {
namespace {

// What a chord's claim to a name is worth; the smaller claim wins. Display order is kept by
// claiming in that order and giving way only to a smaller claim.
using Claim = std::tuple<bool, std::size_t>;  // name is not the exact title, length of type name

class DictionaryBuilder {
 public:
  void add(const Chord& chord, const ChordData& data) {
    const NamedChord named(chord, data);
    const std::string title = titleOf(named, Chords::standardTitleLength);
    const std::size_t typeLength = countCharacters(data.title);
    claim(title, chord, {false, typeLength});
    claim(shortestTitleOf(named), chord, {true, typeLength});
    for (const std::string& name : alternateTitlesOf(named)) {
      claim(name, chord, {name != title, typeLength});
    }
  }

  ChordDataManager::ChordDictionary take() { return std::move(dictionary_); }

 private:
  void claim(const std::string& name, const Chord& chord, const Claim& worth) {
    enter(name, chord, worth);
    enter(replaceAll(replaceAll(name, "♭", "b"), "♯", "#"), chord, worth);
  }

  void enter(const std::string& name, const Chord& chord, const Claim& worth) {
    const auto [claimed, isNew] = claims_.try_emplace(name, worth);
    if (!isNew && claimed->second <= worth) return;
    claimed->second = worth;
    dictionary_.insert_or_assign(name, chord);
  }

  ChordDataManager::ChordDictionary dictionary_;
  std::unordered_map<std::string, Claim> claims_;
};

}  // namespace

ChordDataManager::ChordDictionary makeChordDictionary(const ChordDataManager& manager) {
  DictionaryBuilder builder;
  for (const Note root : manager.allRootNotes()) {
    for (const std::string& type : manager.chordTypes()) {
      const ChordData& data = *manager.chordData(type);
      const auto variants = static_cast<WholeNumber>(data.notes.size());
      for (WholeNumber variant = 0; variant < variants; ++variant) {
        builder.add(Chord{root, type, variant}, data);
      }
    }
  }
  return builder.take();
}

namespace Chords {

std::optional<Chord> lookUpChord(std::string_view name) {
  // No chord name holds a "b" that is not a flat, so reading every one as "♭" is safe.
  const std::string signedName = replaceAll(replaceAll(name, "#", "♯"), "b", "♭");
  const auto& dictionary = getChordDictionary();
  const auto found = dictionary.find(signedName);
  return found == dictionary.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace Chords
}  // namespace tonelake
