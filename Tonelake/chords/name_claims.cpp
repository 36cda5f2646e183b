#include "Tonelake/chords/name_claims.h"

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/music_signs.h"

namespace tonelake {
namespace {

// The name as it stands, and as it is typed.
void claimBothSpellings(ClaimedNames& names, const std::string& name, const ClaimedChord& chord) {
  claimName(names, name, chord);
  claimName(names, withTypedSigns(name), chord);
}

void claimNamesOf(const Chord& chord, const ChordData& data, ClaimedNames& names) {
  const NamedChord named(chord, data);
  const std::string title = titleOf(named, Chords::standardTitleLength);
  const ClaimedChord byTitle{chord, {false, countCharacters(data.title)}};
  const ClaimedChord byOtherName{chord, {true, countCharacters(data.title)}};
  claimBothSpellings(names, title, byTitle);
  claimBothSpellings(names, shortestTitleOf(named), byOtherName);
  for (const std::string& name : alternateTitlesOf(named)) {
    claimBothSpellings(names, name, name == title ? byTitle : byOtherName);
  }
}

}  // namespace

void claimName(ClaimedNames& names, const std::string& name, const ClaimedChord& chord) {
  const auto [holder, isNew] = names.try_emplace(name, chord);
  if (!isNew && chord.claim < holder->second.claim) holder->second = chord;
}

ClaimedNames namesOnRoot(const ChordDataManager& manager, Note root) {
  ClaimedNames names;
  for (const std::string& type : manager.chordTypes()) {
    const ChordData& data = *manager.chordData(type);
    const auto variants = static_cast<WholeNumber>(data.notes.size());
    for (WholeNumber variant = 0; variant < variants; ++variant) {
      claimNamesOf(Chord{root, type, variant}, data, names);
    }
  }
  return names;
}

}  // namespace tonelake
