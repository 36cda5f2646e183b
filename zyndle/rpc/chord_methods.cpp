#include <cstdint>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_dictionary.h"
#include "Tonelake/chords/chord_intervals.h"
#include "Tonelake/chords/chord_json.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/chords/chord_note_numbers.h"
#include "Tonelake/chords/chord_spelling.h"
#include "zyndle/rpc/encoding.h"
#include "zyndle/rpc/method_table.h"
#include "zyndle/rpc/parameters.h"

namespace zyndle {
namespace {

namespace Chords = tonelake::Chords;
using tonelake::ChordDataManager;
using tonelake::WholeNumber;
using tonelake::WholeNumbers;

// The whole of an operation that takes a chord, whatever its type and variant, and nothing else.
template <auto operation>
json::Value ofChord(const json::Node& parameters, MethodContext&) {
  return operation(chordParameter(parameters));
}

json::Value chordTypes(const json::Node&, MethodContext&) {
  return tonelake::chordTypes();
}

json::Value allRootNotes(const json::Node&, MethodContext&) {
  return encodeList(ChordDataManager::shared().allRootNotes(),
                    [](tonelake::Note note) { return note.rawValue(); });
}

json::Value getChordData(const json::Node& parameters, MethodContext&) {
  const auto* data = Chords::getChordData(parameters.member("forChordType").text());
  if (data == nullptr) return nullptr;
  return {{"title", data->title},
          {"shortTitle", data->shortTitle},
          {"includesSpace", data->includesSpace},
          {"otherNames", data->otherNames},
          {"formula", data->formula},
          {"notes", data->notes}};
}

json::Value priorityList(const json::Node&, MethodContext&) {
  return encodeList(tonelake::priorityList(), [](const tonelake::PriorityEntry& entry) {
    return json::Value{
        {"chord", tonelake::encodeChord(entry.chord)},
        {"fingerings", encodeList(entry.fingerings, [](const tonelake::Frets& frets) {
           return json::Value(frets);
         })}};
  });
}

json::Value lookUpChord(const json::Node& parameters, MethodContext&) {
  return encodeOptional(Chords::lookUpChord(parameters.member("name").text()),
                        tonelake::encodeChord);
}

json::Value getTitleForChord(const json::Node& parameters, MethodContext&) {
  return Chords::getTitleForChord(
      titledChordParameter(parameters),
      wholeNumberOr(parameters, "maxChars", Chords::standardTitleLength));
}

json::Value getShortestTitleForChord(const json::Node& parameters, MethodContext&) {
  return Chords::getShortestTitleForChord(titledChordParameter(parameters));
}

json::Value getNoteNumbersForChord(const json::Node& parameters, MethodContext&) {
  const auto numbers = Chords::findNoteNumbersForChord(chordParameter(parameters));
  if (!numbers) parameters.member("chord").fail("the chord has no fingering");
  return *numbers;
}

json::Value getChordPianoNotes(const json::Node& parameters, MethodContext&) {
  constexpr WholeNumber farthest = Chords::farthestPianoTone;
  const tonelake::Note root = tonelake::decodeNote(parameters.member("root"));
  const WholeNumbers formula = json::decodeList(
      parameters.member("formula"),
      [](const json::Node& offset) { return offset.wholeNumber(-farthest, farthest); });
  return Chords::getChordPianoNotes(root, formula);
}

json::Value findChordsExact(const json::Node& parameters, MethodContext&) {
  return encodeList(ChordDataManager::shared().findChordsExact(parameters.member("notes").text()),
                    tonelake::encodeChord);
}

json::Value findChordsMatching(const json::Node& parameters, MethodContext&) {
  return encodeList(
      ChordDataManager::shared().findChordsMatching(parameters.member("notes").text()),
      tonelake::encodeChord);
}

constexpr MethodRow rows[] = {
    {"chordTypes", chordTypes},
    {"allRootNotes", allRootNotes},
    {"getChordData", getChordData},
    {"priorityList", priorityList},
    {"lookUpChord", lookUpChord},
    {"getNotesOfChord", ofChord<Chords::getNotesOfChord>},
    {"getShortestTitleForChord", getShortestTitleForChord},
    {"getAlternateTitlesForChord", ofChord<Chords::getAlternateTitlesForChord>},
    {"getIntervalsOfChord", ofChord<Chords::getIntervalsOfChord>},
    {"getIntervalsOfChordForToday", ofChord<Chords::getIntervalsOfChordForToday>},
    {"getNoteNumbersForChord", getNoteNumbersForChord},
    {"getTitleForChord", getTitleForChord},
    {"getChordPianoNotes", getChordPianoNotes},
    {"findChordsExact", findChordsExact},
    {"findChordsMatching", findChordsMatching},
};

}  // namespace

std::span<const MethodRow> chordMethods() noexcept {
  return rows;
}

}  // namespace zyndle
