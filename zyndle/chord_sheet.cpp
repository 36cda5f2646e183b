#include "zyndle/chord_sheet.h"

#include <algorithm>

#include "TodayChordExtension/diagram/fingering_instructions.h"
#include "Tonelake/chords/chord_intervals.h"
#include "Tonelake/chords/chord_json.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/chords/chord_spelling.h"
#include "zyndle/text_layout.h"

namespace zyndle {
namespace {

using tonelake::WholeNumbers;
namespace Chords = tonelake::Chords;

std::vector<std::string> furtherNames(const tonelake::Chord& chord, const std::string& title) {
  std::vector<std::string> names{Chords::getShortestTitleForChord(chord)};
  for (std::string& name : Chords::getAlternateTitlesForChord(chord)) {
    names.push_back(std::move(name));
  }
  std::vector<std::string> distinct;
  for (std::string& name : names) {
    const bool isKnown = std::find(distinct.begin(), distinct.end(), name) != distinct.end();
    if (name != title && !isKnown) distinct.push_back(std::move(name));
  }
  return distinct;
}

}  // namespace

ChordSheet makeChordSheet(const tonelake::Chord& chord) {
  const std::string title = Chords::getTitleForChord(chord);
  return {chord,
          title,
          Chords::getShortestTitleForChord(chord),
          furtherNames(chord, title),
          Chords::getNotesOfChord(chord),
          Chords::getIntervalsOfChord(chord)};
}

ChordSheet makeChordSheetForToday(const tonelake::Chord& chord) {
  ChordSheet sheet = makeChordSheet(chord);
  sheet.intervals = Chords::getIntervalsOfChordForToday(chord);
  return sheet;
}

void addChordSheet(tonelake::json::Value& object, const ChordSheet& sheet) {
  object["chord"] = tonelake::encodeChord(sheet.chord);
  object["title"] = sheet.title;
  object["shortTitle"] = sheet.shortTitle;
  object["notes"] = sheet.notes;
  object["intervals"] = sheet.intervals;
}

std::vector<std::string> instructionsFor(const tonelake::ChordPosition& position) {
  return todaychord::fingeringInstructions(
      WholeNumbers(position.position.begin(), position.position.end()),
      WholeNumbers(position.fingering.begin(), position.fingering.end()));
}

std::string listInstructions(const tonelake::ChordPosition& position) {
  std::string text;
  for (const std::string& sentence : instructionsFor(position)) text += bulletedSentence(sentence);
  return text;
}

}  // namespace zyndle
