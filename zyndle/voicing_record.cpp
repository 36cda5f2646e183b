#include "zyndle/voicing_record.h"

#include "Tonelake/chords/chord_json.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/fingering/chord_position_json.h"

namespace zyndle {

tonelake::json::Value encodeVoicing(const tonelake::Voicings::Voicing& voicing) {
  tonelake::json::Value record = tonelake::encodeChordPosition(voicing.position);
  record["cost"] = voicing.cost;
  record["bassTone"] = voicing.bassTone;
  record["lowestFret"] = voicing.lowestFret;
  record["span"] = voicing.span;
  record["fingers"] = voicing.fingers;
  record["barres"] = voicing.barres;
  record["innerMutes"] = voicing.innerMutes;
  record["soundingStrings"] = voicing.soundingStrings;
  record["openStrings"] = voicing.openStrings;
  return record;
}

tonelake::json::Value encodeRow(const std::vector<tonelake::Chord>& chords,
                                const std::vector<tonelake::Voicings::Voicing>& row,
                                const Instrument& instrument) {
  tonelake::json::Value object;
  object["tuning"] = instrument.tuning;
  object["capo"] = instrument.capo;
  object["chords"] = tonelake::json::Value::array();
  for (std::size_t i = 0; i < row.size(); ++i) {
    tonelake::json::Value& entry = object["chords"].emplace_back();
    entry["chord"] = tonelake::encodeChord(chords[i]);
    entry["title"] = tonelake::Chords::getTitleForChord(chords[i]);
    entry["voicing"] = encodeVoicing(row[i]);
  }
  return object;
}

}  // namespace zyndle
