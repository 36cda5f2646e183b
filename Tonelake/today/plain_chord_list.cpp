#include "Tonelake/today/plain_chord_list.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "Tonelake/foundation/text.h"

namespace tonelake {
namespace {

// What is left of a text that is read from its start.
class Remainder {
 public:
  explicit Remainder(std::string_view text) : text_(text) {}

  bool isEmpty() const { return text_.empty(); }

  bool take(std::string_view expected) {
    if (!text_.starts_with(expected)) return false;
    text_.remove_prefix(expected.size());
    return true;
  }

  // Up to the closing quotation mark.
  std::optional<std::string_view> takeText() {
    const std::size_t end = text_.find('"');
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view taken = text_.substr(0, end);
    const bool isPlain = std::none_of(taken.begin(), taken.end(), [](char byte) {
      return byte == '\\' || static_cast<unsigned char>(byte) < ' ';
    });
    if (!isPlain || !isValidUtf8(taken)) return std::nullopt;
    text_.remove_prefix(end + 1);
    return taken;
  }

  // Without a sign; JSON allows no zero before another digit.
  std::optional<WholeNumber> takeNumber() {
    WholeNumber number = 0;
    const auto [end, error] = std::from_chars(text_.data(), text_.data() + text_.size(), number);
    const auto length = static_cast<std::size_t>(end - text_.data());
    if (error != std::errc() || number < 0 || length != std::to_string(number).size()) {
      return std::nullopt;
    }
    text_.remove_prefix(length);
    return number;
  }

 private:
  std::string_view text_;
};

std::optional<Chord> takeChord(Remainder& text) {
  if (!text.take(R"({"rootNote":")")) return std::nullopt;
  const auto root = text.takeText();
  if (!root || !text.take(R"(,"chordType":")")) return std::nullopt;
  const auto type = text.takeText();
  if (!type || !text.take(R"(,"variant":)")) return std::nullopt;
  const auto variant = text.takeNumber();
  const auto note = Note::fromRawValue(*root);
  if (!variant || !note || !text.take("}")) return std::nullopt;
  return Chord{*note, std::string(*type), *variant};
}

}  // namespace

std::optional<std::vector<Chord>> readPlainChordList(std::string_view text) {
  std::vector<Chord> chords;
  chords.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')));
  Remainder remainder(text);
  if (!remainder.take("[\n")) return std::nullopt;
  do {
    const auto chord = takeChord(remainder);
    if (!chord) return std::nullopt;
    chords.push_back(*chord);
  } while (remainder.take(",\n"));
  if (!remainder.take("\n]\n") || !remainder.isEmpty()) return std::nullopt;
  return chords;
}

}  // namespace tonelake
