#include "Tonelake/chords/chord_json.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/today/plain_chord_list.h"
#include "Tonelake/today/today_chord_library.h"
#include "fuzz/json_agreement.h"

// Lists of daily chords: what the fast reader takes for a list, JSON takes for the same.

namespace fuzz {
namespace {

using Chords = std::vector<tonelake::Chord>;
using tonelake::TodayChordLibrary;

// Hands out one text for every list.
class OneListBundle final : public tonelake::ResourceBundle {
 public:
  explicit OneListBundle(std::string_view text) : text_(text) {}

  std::optional<std::string> load(std::string_view, std::string_view) const override {
    return std::string(text_);
  }

 private:
  std::string_view text_;
};

Chords decodeChords(const json::Node& node) {
  return json::decodeList(node, tonelake::decodeChord);
}

std::string encodeChords(const Chords& chords) {
  std::vector<std::string> rows;
  for (const auto& chord : chords) rows.push_back(json::write(tonelake::encodeChord(chord)));
  return "[\n" + tonelake::join(rows, ",\n") + "\n]\n";
}

}  // namespace

void examine(std::string_view input) {
  const auto plain = tonelake::readPlainChordList(input);
  const auto document = parseJson(input);
  const auto chords = document ? decoded(*document, decodeChords) : std::nullopt;
  if (plain) require(plain == chords, "the fast reader agrees with JSON");
  if (!chords) return;
  const std::string written = encodeChords(*chords);
  const auto again = tonelake::readPlainChordList(written);
  // Escapes, negative variants and empty lists are left to the JSON decoder.
  if (again) require(again == chords, "a list that is written plainly is read as the same");
  require(decodeChords(json::Node(json::parse(written))) == *chords, "so it is as JSON");

  const TodayChordLibrary library(OneListBundle(input), tonelake::makeUtcCalendar());
  const std::size_t days = chords->empty() ? 0 : TodayChordLibrary::daysInYear;
  require(library.jazzChords.size() == days, "a list fills a year");
  for (std::size_t day = 0; day < days; ++day) {
    require(library.jazzChords[day] == (*chords)[day % chords->size()], "a list is repeated");
  }
}

std::vector<std::string> seeds() {
  const std::string text = projectFile("Tonelake/resources/jazz_chords.json");
  const Chords chords = *tonelake::readPlainChordList(text);
  std::vector<std::string> seeds{"[]", "[\n\n]\n"};
  for (std::size_t day = 0; day + 2 < chords.size(); day += 40) {
    seeds.push_back(encodeChords({chords[day], chords[day + 1], chords[day + 2]}));
  }
  return seeds;
}

}  // namespace fuzz
