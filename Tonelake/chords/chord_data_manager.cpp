#include "Tonelake/chords/chord_data_manager.h"

#include <algorithm>
#include <array>

#include "Tonelake/chords/chord_types_json.h"
#include "Tonelake/chords/name_claims.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/embedded_resources.h"
#include "Tonelake/platform/platform.h"

namespace tonelake {
namespace {

// No E♯, B♯, C♭ or F♭: nobody looks a chord up there.
constexpr std::array<Note, 17> rootNotes{Note::C,  Note::D,  Note::E,  Note::F,  Note::G,  Note::A,
                                         Note::B,  Note::Cs, Note::Ds, Note::Fs, Note::Gs, Note::As,
                                         Note::Df, Note::Ef, Note::Gf, Note::Af, Note::Bf};

// An empty text means no names; anything else is cut at every comma, so that ",M" holds the
// empty name: a bare root is a major chord.
std::vector<std::string> splitNames(const std::string& otherNames) {
  if (otherNames.empty()) return {};
  const auto pieces = split(otherNames, ',');
  return {pieces.begin(), pieces.end()};
}

ChordData resolve(const std::string& title, const ChordDefinition& definition) {
  return ChordData{title,
                   definition.shortName,
                   definition.prefixSpace == 1,
                   splitNames(definition.otherNames),
                   definition.formula,
                   definition.notes};
}

// In the text "5" stands beside the triads; screens show it after the seventh chords.
void moveToDisplayOrder(std::vector<std::string>& types) {
  const auto power = std::find(types.begin(), types.end(), "5");
  const auto target = std::find(types.begin(), types.end(), "minor major 7th");
  if (power < target && target != types.end()) std::rotate(power, power + 1, target + 1);
}

ChordFinder makeFinder(const ChordDataManager& manager) {
  std::vector<const ChordData*> types;
  for (const std::string& type : manager.chordTypes()) types.push_back(manager.chordData(type));
  return {types, rootNotes};
}

}  // namespace

const ChordDataManager& ChordDataManager::shared() {
  static const ChordDataManager manager(
      findResource(embeddedResources(), "chord_types.json").value_or(""),
      *processPlatform().diagnostics);
  return manager;
}

ChordDataManager::ChordDataManager(std::string_view text, Diagnostics& diagnostics) {
  try {
    const json::Value document = json::parse(text);
    for (const auto& [title, definition] : decodeChordsWrapper(json::Node(document)).chords) {
      chordData_.emplace(title, resolve(title, definition));
      chordTypes_.push_back(title);
    }
    moveToDisplayOrder(chordTypes_);
    finder_ = makeFinder(*this);
  } catch (const json::DecodingError& error) {
    diagnostics.write(std::string("Failed to parse JSON: ") + error.what());
  }
}

const ChordData* ChordDataManager::chordData(std::string_view chordType) const {
  const auto found = chordData_.find(chordType);
  return found == chordData_.end() ? nullptr : &found->second;
}

const ChordDataManager::ChordDictionary& ChordDataManager::chordDictionary() const {
  std::call_once(dictionaryOnce_, [this] { chordDictionary_ = makeDictionary(); });
  return chordDictionary_;
}

ChordDataManager::ChordDictionary ChordDataManager::makeDictionary() const {
  ClaimedNames all;
  for (std::size_t i = 0; i < rootNotes.size(); ++i) {
    for (const auto& [name, chord] : namesOn(i)) claimName(all, name, chord);
  }
  ChordDictionary dictionary;
  for (const auto& [name, claimed] : all) dictionary.emplace(name, claimed.chord);
  return dictionary;
}

// "C♯" begins with "C" as well, where it might be a type's sign: both roots have a say.
std::optional<Chord> ChordDataManager::chordNamed(std::string_view name) const {
  const ClaimedChord* holder = nullptr;
  const std::string key(name);
  for (std::size_t i = 0; i < rootNotes.size(); ++i) {
    if (!name.starts_with(rootNotes[i].rawValue())) continue;
    const ClaimedNames& names = namesOn(i);
    const auto found = names.find(key);
    if (found == names.end()) continue;
    if (holder == nullptr || found->second.claim < holder->claim) holder = &found->second;
  }
  return holder == nullptr ? std::nullopt : std::optional(holder->chord);
}

const ClaimedNames& ChordDataManager::namesOn(std::size_t rootIndex) const {
  static_assert(std::tuple_size_v<decltype(rootNames_)> == rootNotes.size());
  RootNames& root = rootNames_[rootIndex];
  std::call_once(root.once, [&] { root.names = namesOnRoot(*this, rootNotes[rootIndex]); });
  return root.names;
}

std::span<const Note> ChordDataManager::allRootNotes() const {
  return rootNotes;
}

std::vector<Chord> ChordDataManager::findChordsExact(std::string_view notes) const {
  return finder_.findExact(readNoteList(notes));
}

std::vector<Chord> ChordDataManager::findChordsMatching(std::string_view notes) const {
  return finder_.findMatching(readNoteList(notes).pitches);
}

const std::vector<std::string>& chordTypes() {
  return ChordDataManager::shared().chordTypes();
}

namespace Chords {

const std::map<std::string, ChordData, std::less<>>& getChordData() {
  return ChordDataManager::shared().chordData();
}

const ChordData* getChordData(std::string_view forChordType) {
  return ChordDataManager::shared().chordData(forChordType);
}

const ChordDataManager::ChordDictionary& getChordDictionary() {
  return ChordDataManager::shared().chordDictionary();
}

}  // namespace Chords
}  // namespace tonelake
