#include "TodayChordExtension/diagram/fingering_instructions.h"

#include <array>
#include <map>

#include "TodayChordExtension/diagram/diagram_layout.h"
#include "TodayChordExtension/diagram/diagram_metrics.h"
#include "Tonelake/foundation/text.h"

namespace todaychord {
namespace {

using tonelake::WholeNumber;
using tonelake::WholeNumbers;

using Items = std::vector<std::string>;

constexpr std::array<const char*, metrics::stringCount> stringWords{"first",  "second", "third",
                                                                    "fourth", "fifth",  "sixth"};

// "a", "a and b", "a, b, and c".
std::string enumerate(const Items& items) {
  std::string text;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const bool isLast = i + 1 == items.size();
    if (i > 0) text += items.size() == 2 ? " and " : isLast ? ", and " : ", ";
    text += items[i];
  }
  return text;
}

// What the hand does, strings by number: 1 is the highest.
struct Instructions {
  std::map<FretFinger1, std::vector<int>> pressed;
  std::vector<int> open;
  std::vector<int> muted;
};

// From the highest string down the neck's width, so that every list ascends by string number.
Instructions sortStrings(const WholeNumbers& position, const WholeNumbers& fingering) {
  Instructions instructions;
  for (int number = 1; number <= metrics::stringCount; ++number) {
    const auto i = static_cast<std::size_t>(metrics::stringCount - number);
    if (position[i] == -1) {
      instructions.muted.push_back(number);
    } else if (fingering[i] == -1) {
      continue;
    } else if (position[i] == 0) {
      instructions.open.push_back(number);
    } else {
      instructions.pressed[{position[i], fingering[i]}].push_back(number);
    }
  }
  return instructions;
}

std::string describeFinger(const FretFinger1& place, const std::vector<int>& strings) {
  if (strings.size() == 1) {
    return "Place the " + ordinal(place.finger) + " finger on the " + ordinal(place.fret) +
           " fret of the " + ordinal(strings.front()) + " string";
  }
  Items items;
  for (const int number : strings) items.push_back(ordinal(number) + " string");
  return "Use a barre with your " + ordinal(place.finger) + " finger at the " +
         ordinal(place.fret) + " fret on the " + enumerate(items);
}

std::string listStrings(const std::vector<int>& strings) {
  Items items;
  for (const int number : strings)
    items.push_back(stringWords[static_cast<std::size_t>(number - 1)]);
  return enumerate(items) + (strings.size() == 1 ? " string" : " strings");
}

}  // namespace

std::string ordinal(WholeNumber number) {
  const WholeNumber tens = number % 100;
  const WholeNumber ones = number % 10;
  const bool isTeen = tens >= 11 && tens <= 13;
  const char* suffix = isTeen || ones < 1 || ones > 3 ? "th"
                       : ones == 1                    ? "st"
                       : ones == 2                    ? "nd"
                                                      : "rd";
  return std::to_string(number) + suffix;
}

std::vector<std::string> fingeringInstructions(const WholeNumbers& position,
                                               const WholeNumbers& fingering) {
  if (position.size() != metrics::stringCount || fingering.size() != metrics::stringCount) {
    return {};
  }
  const Instructions instructions = sortStrings(position, fingering);
  std::vector<std::string> sentences;
  for (const auto& [place, strings] : instructions.pressed) {
    sentences.push_back(describeFinger(place, strings));
  }
  if (!instructions.open.empty()) {
    sentences.push_back("Let ring the " + listStrings(instructions.open) + " in open position" +
                        (instructions.open.size() == 1 ? "" : "s"));
  }
  if (!instructions.muted.empty()) {
    sentences.push_back("Mute the " + listStrings(instructions.muted));
  }
  return sentences;
}

std::string describeFingering(const WholeNumbers& position, const WholeNumbers& fingering) {
  const auto sentences = fingeringInstructions(position, fingering);
  return sentences.empty() ? "" : tonelake::join(sentences, ". ") + ".";
}

}  // namespace todaychord
