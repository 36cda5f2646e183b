#include "zyndle/progressions_command.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Tonelake/chords/chord_json.h"
#include "Tonelake/content/chord_progression_json.h"
#include "Tonelake/content/chord_progressions.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/drawing.h"
#include "zyndle/host.h"
#include "zyndle/key_name.h"
#include "zyndle/output_options.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::Chord;
using tonelake::ChordProgression;
using tonelake::MusicStyles;
namespace ChordProgressions = tonelake::ChordProgressions;

constexpr const char* description = message("List well-known progressions and what they do");

constexpr const char* examples = message(R"(
Examples:
  zyndle progressions
  zyndle progressions --key "A minor"
  zyndle progressions --key Eb --style rock
  zyndle progression I-V-vi-IV --key Eb    how to play one of them)");

struct ProgressionsOptions {
  std::optional<std::string> key;
  std::optional<std::string> style;
  OutputOptions output;
};

// The progressions of one key.
struct Listing {
  Chord key;
  std::vector<ChordProgression> progressions;
};

// "Hip Hop", "hip-hop" and "hiphop" are one style.
std::string lettersOf(std::string_view text) {
  std::string letters;
  for (const char c : text) {
    const char letter = tonelake::lowercase(c);
    if (letter >= 'a' && letter <= 'z') letters += letter;
  }
  return letters;
}

bool isIn(const ChordProgression& progression, MusicStyles style) {
  return std::find(progression.styles.begin(), progression.styles.end(), style) !=
         progression.styles.end();
}

// Those that some progression of the catalogue has.
std::vector<std::string> usedStyles() {
  std::vector<std::string> names;
  for (const MusicStyles style : MusicStyles::allCases()) {
    for (const char* type : {"major", "minor"}) {
      const auto known = ChordProgressions::getChordProgressionsDataForChordType(type);
      const bool isUsed = std::any_of(known.begin(), known.end(), [=](const auto& progression) {
        return isIn(progression, style);
      });
      if (!isUsed) continue;
      names.emplace_back(style.rawValue());
      break;
    }
  }
  return names;
}

std::optional<MusicStyles> readStyle(const std::optional<std::string>& text) {
  if (!text) return std::nullopt;
  for (const MusicStyles style : MusicStyles::allCases()) {
    const bool isRawValue = lettersOf(style.rawValue()) == lettersOf(*text);
    if (isRawValue || lettersOf(style.caseName()) == lettersOf(*text)) return style;
  }
  refuse(translated("{0} {1} is not one of {2}", "--style", tonelake::quoted(*text),
                    tonelake::join(usedStyles(), ", ")));
}

std::vector<Listing> listProgressions(const ProgressionsOptions& options) {
  const std::optional<MusicStyles> style = readStyle(options.style);
  std::vector<Chord> keys{{tonelake::Note::C, "major", 0}, {tonelake::Note::A, "minor", 0}};
  if (options.key) keys = {readKey(*options.key, "major")};
  std::vector<Listing> listings;
  for (const Chord& key : keys) {
    auto progressions = ChordProgressions::getChordProgressionsDataForChordType(key.chordType);
    std::erase_if(progressions, [&](const ChordProgression& progression) {
      return style && !isIn(progression, *style);
    });
    if (!progressions.empty()) listings.push_back({key, std::move(progressions)});
  }
  return listings;
}

std::string jsonOf(const std::vector<Listing>& listings) {
  tonelake::json::Value object;
  object["progressions"] = tonelake::json::Value::array();
  for (const Listing& listing : listings) {
    for (const ChordProgression& progression : listing.progressions) {
      tonelake::json::Value& entry = object["progressions"].emplace_back();
      ChordProgression described = progression;
      described.description = ChordProgressions::getDescription(progression, listing.key);
      entry["key"] = tonelake::encodeChord(listing.key);
      entry.update(tonelake::encodeChordProgression(described));
      entry["titles"] = ChordProgressions::getChordTitles(progression, listing.key);
    }
  }
  return tonelake::json::write(object) + '\n';
}

std::string textOf(const ChordProgression& progression, const Chord& key,
                   const DrawingStyle& style) {
  constexpr std::size_t indent = 2;
  std::vector<std::string> styles;
  for (const MusicStyles known : progression.styles) styles.emplace_back(known.rawValue());
  const std::string chords =
      tonelake::join(ChordProgressions::getChordTitles(progression, key), ", ");
  return emphasized(progression.progression, style) + "  " + tonelake::join(styles, ", ") + '\n' +
         paragraph(chords, indent) +
         paragraph(ChordProgressions::getDescription(progression, key), indent);
}

std::string textOf(const std::vector<Listing>& listings, const DrawingStyle& style) {
  std::string text;
  for (const Listing& listing : listings) {
    text += (text.empty() ? "" : "\n") +
            // TRANSLATORS: a heading, {} is a key: "Progressions in A minor".
            emphasized(translated("Progressions in {}", nameOfKey(listing.key)), style) + '\n';
    for (const ChordProgression& progression : listing.progressions) {
      text += '\n' + textOf(progression, listing.key, style);
    }
  }
  if (!text.empty()) return text;
  return translated("No progression of this key and style is listed; the styles in use are") +
         '\n' + paragraph(tonelake::join(usedStyles(), ", "), 2);
}

void showProgressions(const ProgressionsOptions& options) {
  installHost(options.output.isForPrograms());
  const std::vector<Listing> listings = listProgressions(options);
  writeText(options.output,
            options.output.json ? jsonOf(listings) : textOf(listings, textStyle(options.output)));
}

}  // namespace

void addProgressionsCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<ProgressionsOptions>();
  CLI::App& command = *app.add_subcommand("progressions", translated(description));
  command.footer(translated(examples));
  addOption(command, "--key", options->key, message("Only of this key (both of C and A minor)"),
            "KEY");
  addOption(command, "--style", options->style, message("Only of this style, for example rock"),
            "STYLE");
  addFormatOptions(command, options->output);
  command.callback([options, &action] { action = [options] { showProgressions(*options); }; });
}

}  // namespace zyndle
