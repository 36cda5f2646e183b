#include "Tonelake/today/today_chord_library.h"

#include <string>
#include <utility>

#include "Tonelake/chords/chord_json.h"
#include "Tonelake/foundation/fatal.h"
#include "Tonelake/platform/platform.h"
#include "Tonelake/today/plain_chord_list.h"

namespace tonelake {
namespace {

// Shorter lists are repeated from their start, longer ones cut; an empty one stays empty.
std::vector<Chord> fillYear(std::vector<Chord> chords) {
  const std::size_t size = chords.size();
  chords.reserve(TodayChordLibrary::daysInYear);
  while (size > 0 && chords.size() < TodayChordLibrary::daysInYear) {
    chords.push_back(chords[chords.size() - size]);
  }
  if (chords.size() > TodayChordLibrary::daysInYear) chords.resize(TodayChordLibrary::daysInYear);
  return chords;
}

std::vector<Chord> loadChords(const ResourceBundle& resources, ChordCategory category) {
  const auto text = resources.load(std::string(category.rawValue()) + "_chords", "json");
  // Nobody can act on a broken package: stop without a word.
  if (!text) stopWithProgrammingError("");
  if (auto chords = readPlainChordList(*text)) return fillYear(std::move(*chords));
  try {
    const json::Value document = json::parse(*text);
    return fillYear(json::decodeList(json::Node(document), decodeChord));
  } catch (const json::DecodingError&) {
    stopWithProgrammingError("");
  }
}

}  // namespace

TodayChordLibrary::TodayChordLibrary()
    : TodayChordLibrary(*processPlatform().resources, processPlatform().calendar) {}

TodayChordLibrary::TodayChordLibrary(const ResourceBundle& resources,
                                     std::shared_ptr<const Calendar> calendar)
    : beginnerChords(loadChords(resources, ChordCategory::beginner)),
      advancedChords(loadChords(resources, ChordCategory::advanced)),
      jazzChords(loadChords(resources, ChordCategory::jazz)),
      calendar_(std::move(calendar)) {}

std::optional<Chord> TodayChordLibrary::chordOfTheDay(Instant date, ChordCategory category) const {
  return chordOfTheDay(date, category, *calendar_);
}

std::optional<Chord> TodayChordLibrary::chordOfTheDay(Instant date, ChordCategory category,
                                                      const Calendar& calendar) const {
  const auto ordinal = calendar.ordinalOfDay(date);
  if (!ordinal) return std::nullopt;
  const std::vector<Chord>& list = chords(category);
  if (list.empty()) stopWithProgrammingError("a list of daily chords is empty");
  return list[static_cast<std::size_t>(*ordinal - 1) % list.size()];
}

std::vector<Chord> TodayChordLibrary::getAllChords() const {
  std::vector<Chord> all = beginnerChords;
  all.insert(all.end(), advancedChords.begin(), advancedChords.end());
  all.insert(all.end(), jazzChords.begin(), jazzChords.end());
  return all;
}

const std::vector<Chord>& TodayChordLibrary::chords(ChordCategory category) const {
  switch (category) {
    case ChordCategory::beginner:
      return beginnerChords;
    case ChordCategory::advanced:
      return advancedChords;
    case ChordCategory::jazz:
      return jazzChords;
  }
  stopWithProgrammingError("a chord category is none of the three");
}

}  // namespace tonelake
