#include "zyndle/key_name.h"

#include <algorithm>
#include <optional>

#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/note_name.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::Chord;
using tonelake::Note;

struct Parts {
  std::string_view root;
  std::string_view quality;
};

// "Abm" is "Ab" and "m": the letter and the signs that follow it are the root.
Parts splitKey(std::string_view key) {
  std::size_t end = std::min<std::size_t>(1, key.size());
  const auto signAt = [&](std::string_view sign) { return key.substr(end).starts_with(sign); };
  while (signAt("#") || signAt("b")) ++end;
  while (signAt("♯") || signAt("♭")) end += std::string_view("♯").size();
  return {key.substr(0, end), tonelake::trimmed(key.substr(end))};
}

std::optional<std::string> typeOf(std::string_view quality, const std::string& typeOfRoot) {
  if (quality.empty()) return typeOfRoot;
  if (quality == "M") return "major";  // the one letter whose case tells
  const std::string small = tonelake::inSmallLetters(quality);
  if (small == "major" || small == "maj") return "major";
  if (small == "minor" || small == "min" || small == "m") return "minor";
  return std::nullopt;
}

}  // namespace

Chord readKey(const std::string& text, const std::string& typeOfRoot) {
  const Parts parts = splitKey(tonelake::trimmed(text));
  const std::optional<Note> root = parseNoteName(parts.root);
  const std::optional<std::string> type = typeOf(parts.quality, typeOfRoot);
  // No piece of music has a key with a double sign.
  const bool isKey =
      root && tonelake::countCharacters(root->rawValue()) <= 2 && !root->rawValue().ends_with("𝄪");
  if (!isKey || !type) {
    refuse(translated(R"({0} {1} is not a key; keys look like G, "A minor" or Bbm)", "--key",
                      tonelake::quoted(text)));
  }
  return {*root, *type, 0};
}

std::string nameOfKey(const Chord& key) {
  return std::string(key.rootNote.rawValue()) + " " + key.chordType;
}

}  // namespace zyndle
