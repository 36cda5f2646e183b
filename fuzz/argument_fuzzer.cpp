#include <optional>

#include "Tonelake/foundation/text.h"
#include "fuzz/fuzzer.h"
#include "zyndle/calendar_day.h"
#include "zyndle/command_error.h"
#include "zyndle/fret_list.h"
#include "zyndle/key_name.h"
#include "zyndle/note_name.h"
#include "zyndle/progression_text.h"

// Arguments of the command: what one is read as is read as the same again when it is written out.

namespace fuzz {
namespace {

// What `read` makes of an argument; nothing for one that is refused as it should be.
template <typename Read>
auto understood(Read read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const zyndle::CommandError& error) {
    require(error.status() == zyndle::ExitStatus::badArguments && *error.what() != '\0',
            "a wrong argument gets one clear message");
    return std::nullopt;
  }
}

std::string written(const tonelake::Frets& frets) {
  std::vector<std::string> words;
  for (const int fret : frets) words.push_back(fret < 0 ? "x" : std::to_string(fret));
  return tonelake::join(words, "-");
}

void examineText(const std::string& text) {
  const auto frets = understood([&] { return zyndle::readFrets(text); });
  if (frets) require(zyndle::readFrets(written(*frets)) == frets, "frets are read again");
  const auto key = understood([&] { return zyndle::readKey(text, "minor"); });
  if (key) require(zyndle::readKey(zyndle::nameOfKey(*key), "major") == key, "a key is read again");
  const auto numerals = understood([&] { return zyndle::readProgression({text}); });
  if (numerals) {
    require(zyndle::readProgression({*numerals}) == numerals, "numerals are read again");
  }
  const auto notes = understood([&] { return zyndle::readNoteNames({text}); });
  for (const tonelake::Note note : notes.value_or(std::vector<tonelake::Note>())) {
    require(zyndle::parseNoteName(note.rawValue()) == note, "a note is read again");
  }
  const auto day = zyndle::parseDay(text);
  if (day) require(zyndle::writeDay(*day) == text, "a day is written as it was");
}

}  // namespace

void examine(std::string_view input) {
  examineText(std::string(input));
}

std::vector<std::string> seeds() {
  return {"x32010",     "8 10 10 9 8 8", "x-3-2-0-1-0", "-1 3,2\t0 1 24",    "G",
          "A minor",    "F#m",           "eb Major",    "bVII | #iv – V, i", "I-V-vi-IV",
          "2024-02-29", "C, F#;Bb",      "F##|\teb",    "9999-12-31",        "0001-01-01"};
}

}  // namespace fuzz
