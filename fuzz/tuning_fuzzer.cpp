#include <algorithm>

#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/note.h"
#include "Tonelake/theory/tuning_parsing.h"
#include "fuzz/fuzzer.h"

// Typed tunings: six notes or one line that says what is wrong, and notes that are read again.

namespace fuzz {

using tonelake::ParsedTuning;
using tonelake::Tuning::parseTuning;

void examine(std::string_view input) {
  const ParsedTuning tuning = parseTuning(input);
  if (!tuning.problem.empty()) {
    require(tuning.names.empty(), "a refused tuning has no names");
    require(tuning.problem.size() < 200, "a problem does not repeat a long text");
    return;
  }
  require(tuning.names.size() == tonelake::Tuning::stringCount, "a tuning has six names");
  require(std::all_of(tuning.names.begin(), tuning.names.end(),
                      [](const auto& name) { return tonelake::Note::fromRawValue(name); }),
          "the names of a tuning are notes");
  for (const char* separator : {" ", ",", ""}) {
    require(parseTuning(tonelake::join(tuning.names, separator)).names == tuning.names,
            "a tuning that is written out is read as the same");
  }
}

std::vector<std::string> seeds() {
  std::vector<std::string> seeds{"D A D G A D", "Eb,Ab,Db,Gb,Bb,Eb", "eadgbe"};
  for (const tonelake::NamedTuning& tuning : tonelake::Tuning::namedTunings()) {
    seeds.emplace_back(tuning.name);
    seeds.push_back(tonelake::join({tuning.notes.begin(), tuning.notes.end()}, " "));
  }
  return seeds;
}

}  // namespace fuzz
