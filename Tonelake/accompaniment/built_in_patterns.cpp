#include "Tonelake/accompaniment/built_in_patterns.h"

#include <exception>
#include <string>
#include <string_view>

#include "Tonelake/foundation/fatal.h"
#include "Tonelake/patterns/pattern_json.h"
#include "Tonelake/platform/platform.h"

namespace tonelake {
namespace {

json::Value parseResource(std::string_view name) {
  const auto text = processPlatform().resources->load(name, "json");
  // Nobody can act on a broken package: stop without a word.
  if (!text) stopWithProgrammingError("");
  return json::parse(*text);
}

// In the packaged text a link names its pattern, so that nothing is written twice; here the name
// gives way to the pattern. A name that nobody has stays and does not decode.
template <typename Library, typename Pattern>
void fillLinks(json::Value& sequences, const char* links, const char* key, const Library& library,
               const Pattern* (Library::*named)(std::string_view) const noexcept) {
  for (json::Value& sequence : sequences) {
    for (json::Value& link : sequence.at(links)) {
      json::Value& place = link.at(key);
      const Pattern* pattern = (library.*named)(place.get<std::string>());
      if (pattern != nullptr) place = encodePattern(*pattern);
    }
  }
}

PatternLibrary loadPatterns() {
  PatternLibrary library;
  const json::Value basses = parseResource("bass_patterns");
  library.basses = decodePattern<BassPatterns>(json::Node(basses));
  const json::Value drums = parseResource("drum_patterns");
  library.drums = decodePattern<DrumPatterns>(json::Node(drums));
  json::Value arpeggios = parseResource("arpeggio_sequences");
  json::Value& sequences = arpeggios.at("sequences");
  fillLinks(sequences, "associatedBassPatterns", "bassPattern", library.basses,
            &BassPatterns::getBassPattern);
  fillLinks(sequences, "associatedDrumPatterns", "drumPattern", library.drums,
            &DrumPatterns::getDrumPattern);
  library.arpeggios = decodePattern<ArpeggioSequences>(json::Node(arpeggios));
  return library;
}

PatternLibrary loadPackagedPatterns() {
  try {
    return loadPatterns();
  } catch (const std::exception&) {
    stopWithProgrammingError("");
  }
}

}  // namespace

const PatternLibrary& builtInPatterns() {
  static const PatternLibrary library = loadPackagedPatterns();
  return library;
}

}  // namespace tonelake
