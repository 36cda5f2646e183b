#include <string>

#include "Tonelake/theory/interval.h"
#include "Tonelake/theory/note.h"
#include "Tonelake/theory/note_number.h"
#include "zyndle/rpc/encoding.h"
#include "zyndle/rpc/method_table.h"

namespace zyndle {
namespace {

using tonelake::Note;
using tonelake::WholeNumber;

std::string rawValue(Note note) {
  return std::string(note.rawValue());
}

json::Value encodeNoteRecord(Note note) {
  return {{"case", note.caseName()},
          {"rawValue", note.rawValue()},
          {"semitoneOffset", note.semitoneOffset()},
          {"enharmonics", encodeList(note.enharmonics(), rawValue)}};
}

json::Value noteRecord(const json::Node& parameters, MethodContext&) {
  return encodeOptional(Note::fromRawValue(parameters.member("rawValue").text()), encodeNoteRecord);
}

json::Value allNotes(const json::Node&, MethodContext&) {
  return encodeList(Note::allCases(), encodeNoteRecord);
}

json::Value getNote(const json::Node& parameters, MethodContext&) {
  const json::Node from = parameters.member("from");
  const WholeNumber number = from.wholeNumber();
  if (number >= 0 && number < tonelake::lowestSpelledNoteNumber) {
    from.fail("a MIDI number from 0 to 11 has no octave");
  }
  return encodeOptional(tonelake::getNote(number), [](const tonelake::NoteAndOctave& result) {
    return json::Value{{"note", result.note.rawValue()}, {"octave", result.octave}};
  });
}

json::Value getNoteWithDistance(const json::Node& parameters, MethodContext&) {
  namespace Interval = tonelake::Interval;
  constexpr WholeNumber unison = 1;  // a degree that every root can have
  const json::Node distance = parameters.member("distance");
  const json::Node degree = parameters.member("degree");
  const std::string& note = parameters.member("note").text();
  const WholeNumber semitones = distance.wholeNumber();
  const WholeNumber letters = degree.wholeNumber();
  if (!Interval::isSpellable(semitones, unison, note)) {
    distance.fail("leads out of the three octaves that can be spelled");
  }
  if (!Interval::isSpellable(semitones, letters, note)) {
    degree.fail("leads to no letter from " + note);
  }
  return Interval::getNoteWithDistance(semitones, letters, note);
}

json::Value getIntervalFromAlteredScaleDegree(const json::Node& parameters, MethodContext&) {
  return tonelake::Interval::getIntervalFromAlteredScaleDegree(parameters.member("token").text());
}

constexpr MethodRow rows[] = {
    {"Note", noteRecord},
    {"allNotes", allNotes},
    {"getNote", getNote},
    {"getNoteWithDistance", getNoteWithDistance},
    {"getIntervalFromAlteredScaleDegree", getIntervalFromAlteredScaleDegree},
};

}  // namespace

std::span<const MethodRow> theoryMethods() noexcept {
  return rows;
}

}  // namespace zyndle
