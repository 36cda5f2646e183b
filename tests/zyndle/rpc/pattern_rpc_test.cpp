// Every type of accompaniment patterns, decoded and encoded again.

#include <gtest/gtest.h>

#include "Tonelake/foundation/json.h"
#include "tests/zyndle/rpc/rpc_answers.h"

namespace zyndle {
namespace {

std::string parameters(const std::string& type, const std::string& text) {
  return "\"type\":\"" + type + "\",\"json\":" + tonelake::json::write(text);
}

const std::string id = R"("id":"0f8fad5b-d9cb-469f-a165-70867728950e")";
const std::string metre = R"("timeSignature":"3/4")";
const std::string pluck =
    R"({"noteDuration":0.125,"arpeggioDirection":{"iii":{}},"noteArticulation":{"mute":{}},)"
    R"("noteVelocity":255})";
const std::string bass =
    R"({"noteDuration":1.0,"pitch":{"octave":{}},"noteArticulation":{"pick":{}},)"
    R"("noteVelocity":-9223372036854775808})";
const std::string drums =
    R"({"drumMIDINote":[{"noteType":57,"noteVelocity":0},{"noteType":0,"noteVelocity":1}],)"
    R"("noteDuration":0.03125})";
const std::string bassPattern =
    "{" + id + R"(,"name":"♯","description":"","bassNotes":[)" + bass + "]," + metre + "}";
const std::string drumPattern =
    "{" + id + R"(,"name":"","description":"d","drumNotes":[)" + drums + "]," + metre + "}";
const std::string bassLink = "{" + id + R"(,"bassPattern":)" + bassPattern + R"(,"complexity":0})";
const std::string drumLink =
    "{" + id + R"(,"drumPattern":)" + drumPattern + R"(,"complexity":255})";
const std::string sequence = "{" + id + R"(,"name":"n","description":"d","sequence":[[],[)" +
                             pluck + "]]," + metre + R"(,"associatedBassPatterns":[)" + bassLink +
                             R"(],"associatedDrumPatterns":[)" + drumLink + "]}";

TEST(PatternRpc, GivesBackWhatItDecoded) {
  const std::pair<const char*, std::string> rows[] = {
      {"NoteDuration", "1.0"},
      {"NoteDuration", "0.5"},
      {"NoteDuration", "0.25"},
      {"NoteDuration", "0.0625"},
      {"TimeSignature", R"("4/4")"},
      {"DrumNoteType", "0"},
      {"DrumNoteType", "65"},
      {"ArpeggioDirection", R"({"t":{}})"},
      {"BassPitch", R"({"third":{}})"},
      {"NoteArticulation", R"({"mute":{}})"},
      {"ArpeggioNote", pluck},
      {"BassNote", bass},
      {"DrumMIDINote", R"({"noteType":48,"noteVelocity":7})"},
      {"DrumNote", drums},
      {"BassPattern", bassPattern},
      {"DrumPattern", drumPattern},
      {"BassPatternWithComplexity", bassLink},
      {"DrumPatternWithComplexity", drumLink},
      {"ArpeggioSequence", sequence},
      {"BassPatterns", R"({"bassPatterns":[)" + bassPattern + "]}"},
      {"DrumPatterns", R"({"drumPatterns":[]})"},
      {"ArpeggioSequences", R"({"sequences":[)" + sequence + "," + sequence + "]}"},
  };
  for (const auto& [type, text] : rows) {
    expectResults({{"decodePattern", parameters(type, text), "", text}});
  }
  expectResults({
      {"decodePattern", parameters("NoteDuration", "1"), "", "1.0"},
      {"decodePattern", parameters("NoteArticulation", R"({"x":1,"mute":{"y":2}})"), "",
       R"({"mute":{}})"},
      {"decodePattern", parameters("DrumMIDINote", R"({"a":0,"noteVelocity":1,"noteType":50})"), "",
       R"({"noteType":50,"noteVelocity":1})"},
      {"decodePattern",
       parameters("BassPattern",
                  R"({"id":"0F8FAD5B-D9CB-469F-A165-70867728950E","name":"","description":"",)"
                  R"("bassNotes":[],"timeSignature":"4/4"})"),
       "/id", R"("0f8fad5b-d9cb-469f-a165-70867728950e")"},
  });
}

// In a sequence, a text that is replaced, and the error.
struct Fault {
  std::string from;
  std::string to;
  std::string message;
};

TEST(PatternRpc, NamesTheFaultAndItsPlace) {
  const std::string oneKey = "Invalid number of keys found, expected one.";
  const std::string note = "sequence[1][0].";
  const std::string line = "associatedBassPatterns[0].bassPattern.";
  const std::string stroke = "associatedDrumPatterns[0].drumPattern.drumNotes[0].";
  const Fault faults[] = {
      {R"({"iii":{}})", "{}", note + "arpeggioDirection: " + oneKey},
      {R"({"iii":{}})", R"({"t":{},"iii":{}})", note + "arpeggioDirection: " + oneKey},
      {R"({"iii":{}})", R"("iii")", note + "arpeggioDirection: expected an object"},
      {R"({"iii":{}})", R"({"iii":null})", note + "arpeggioDirection.iii: expected an object"},
      {R"({"octave":{}})", R"({"Octave":{}})", line + "bassNotes[0].pitch: " + oneKey},
      {"0.125", "0.3", note + "noteDuration: 0.3 is no note duration"},
      {"0.125", R"("0.125")", note + "noteDuration: expected a number"},
      {":255}", ":256}", note + "noteVelocity: expected a whole number from 0 to 255"},
      {":255}", ":64.0}", note + "noteVelocity: expected a whole number"},
      {":255}", ":true}", note + "noteVelocity: expected a whole number"},
      {R"("noteVelocity":255)", R"("velocity":255)", note + "noteVelocity: missing"},
      {"-9223372036854775808", "9223372036854775808", line + "bassNotes[0].noteVelocity: expected"},
      {":57", ":56", stroke + "drumMIDINote[0].noteType: 56 is no drum note"},
      {":57", ":57.0", stroke + "drumMIDINote[0].noteType: expected a whole number"},
      {"3/4", "6/8", R"(timeSignature: "6/8" is no time signature)"},
      {"70867728950e", "70867728950", R"(id: "0f8fad5b-d9cb-469f-a165-70867728950" is no UUID)"},
      {"0f8fad5b-d9cb", "0f8fad5b d9cb", "id: "},
      {"0f8fad5b-d9cb", "0x8fad5b-d9cb", "id: "},
      {"[[],", "[{},", "sequence[0]: expected a list"},
  };
  for (const Fault& fault : faults) {
    std::string text = sequence;
    for (std::size_t at = text.find(fault.from); at != std::string::npos;
         at = text.find(fault.from, at + fault.to.size())) {
      text.replace(at, fault.from.size(), fault.to);
    }
    expectRefusals({{"decodePattern", parameters("ArpeggioSequence", text), fault.message}});
  }
  expectRefusals({
      {"decodePattern", parameters("NoteArticulation", "{}"), oneKey},
      {"decodePattern", parameters("NoteArticulation", R"({"pick":{},"mute":{}})"), oneKey},
      {"decodePattern", parameters("NoteArticulation", R"({"slap":{}})"), oneKey},
      {"decodePattern", parameters("TimeSignature", R"("6/8")"), R"("6/8" is no time signature)"},
      {"decodePattern", parameters("Chord", "{}"), R"(type: "Chord" is no type of patterns)"},
      {"decodePattern", parameters("BassPitch", "{"), "not JSON"},
      {"decodePattern", parameters("BassNote", std::string(100000, '[')), "nested deeper"},
      {"decodePattern", R"("type":"BassNote","json":{})", "json: expected a text"},
  });
}

}  // namespace
}  // namespace zyndle
