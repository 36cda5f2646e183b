#include "Tonelake/fingering/stored_positions.h"

#include <utility>

#include "Tonelake/fingering/chord_engine.h"
#include "Tonelake/fingering/chord_position_json.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/frets.h"

namespace tonelake {
namespace {

constexpr std::string_view positionKey = R"("position":[)";
constexpr std::string_view fingeringKey = R"("fingering":[)";

void appendList(std::string& text, std::string_view key, const PerString& numbers) {
  text += key;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (i > 0) text += ',';
    text += std::to_string(numbers[i]);
  }
  text += ']';
}

// Reads lists exactly as encodePositions writes them, without blanks and with keys in order.
// Searching takes some microseconds: a general JSON reader would cost more than it saves. Whatever
// else stands in a text is left to that reader.
class OwnTextReader {
 public:
  explicit OwnTextReader(std::string_view text) : text_(text) {}

  std::optional<std::vector<ChordPosition>> read() {
    std::vector<ChordPosition> positions;
    positions.reserve(text_.size() / shortestRecord);
    if (!take("[")) return std::nullopt;
    while (!take("]")) {
      if (!positions.empty() && !take(",")) return std::nullopt;
      ChordPosition position;
      const bool isRead =
          take("{") && take(positionKey) && takeNumbers(position.position, highestFret) &&
          take(",") && take(fingeringKey) &&
          (take("]") || takeNumbers(position.fingering, highestFinger)) && take("}");
      if (!isRead) return std::nullopt;
      positions.push_back(position);
    }
    return text_.empty() ? std::optional(std::move(positions)) : std::nullopt;
  }

 private:
  static constexpr std::size_t shortestRecord = 42;  // bytes, six open strings without fingers

  bool take(std::string_view expected) {
    if (!text_.starts_with(expected)) return false;
    text_.remove_prefix(expected.size());
    return true;
  }

  // Six numbers of at most `highest`, and the bracket after them.
  bool takeNumbers(PerString& list, int highest) {
    PerString::Numbers numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const auto number = takeNumber();
      if (!number || *number > highest || !take(i + 1 < numbers.size() ? "," : "]")) return false;
      numbers[i] = *number;
    }
    list = numbers;
    return true;
  }

  // -1 or up to two digits, all that a search writes.
  std::optional<std::int8_t> takeNumber() {
    if (take("-1")) return mutedString;
    const auto digit = [this] {
      if (text_.empty() || text_.front() < '0' || text_.front() > '9') return -1;
      const int value = text_.front() - '0';
      text_.remove_prefix(1);
      return value;
    };
    const int first = digit();
    if (first < 0) return std::nullopt;
    const int second = first == 0 ? -1 : digit();
    return static_cast<std::int8_t>(second < 0 ? first : 10 * first + second);
  }

  std::string_view text_;
};

}  // namespace

std::string storedPositionsKey(std::string_view rootNote, std::span<const WholeNumber> intervals,
                               WholeNumber limit, const TuningNames& tuning,
                               const ApplicationInformation& application) {
  std::string key = "chordPositions-";
  key.append(rootNote).append("-");
  for (std::size_t i = 0; i < intervals.size(); ++i) {
    if (i > 0) key += ',';
    key += std::to_string(intervals[i]);
  }
  key.append("-").append(std::to_string(limit)).append("-").append(join(tuning, ","));
  key.append("-g").append(std::to_string(chordShapeGeneratorVersion));
  return key.append("-v").append(application.version).append("-b").append(application.build);
}

std::string encodePositions(const std::vector<ChordPosition>& positions) {
  std::string text = "[";
  for (const ChordPosition& position : positions) {
    text += text.size() > 1 ? ",{" : "{";
    appendList(text, positionKey, position.position);
    text += ',';
    appendList(text, fingeringKey, position.fingering);
    text += '}';
  }
  return text += ']';
}

std::optional<std::vector<ChordPosition>> decodePositions(std::string_view text) {
  if (auto positions = OwnTextReader(text).read()) return positions;
  try {
    const json::Value document = json::parse(text);
    return json::decodeList(json::Node(document), decodeChordPosition);
  } catch (const json::DecodingError&) {
    return std::nullopt;
  }
}

}  // namespace tonelake
