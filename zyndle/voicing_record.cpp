#include "zyndle/voicing_record.h"

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

}  // namespace zyndle
