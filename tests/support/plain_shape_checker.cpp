#include "tests/support/plain_shape_checker.h"

#include <algorithm>
#include <optional>
#include <set>

#include "Tonelake/fingering/finger_assignment.h"
#include "Tonelake/theory/spelling_tables.h"

namespace tonelake::testing {
namespace {

using Names = std::vector<std::string>;

struct Combination {
  std::vector<int> frets;  // highest string first
  Names names;
};

struct Candidate {
  int fret;
  std::string name;
};

Names twoOctaves(const SpellingTable& table) {
  return Names(table.begin(), table.begin() + 24);
}

bool contains(const Names& list, const std::string& name) {
  return std::find(list.begin(), list.end(), name) != list.end();
}

std::optional<int> indexIn(std::initializer_list<const SpellingTable*> tables,
                           const std::string& name) {
  for (const SpellingTable* table : tables) {
    const Names names = twoOctaves(*table);
    const auto found = std::find(names.begin(), names.end(), name);
    if (found != names.end()) return static_cast<int>(found - names.begin());
  }
  return std::nullopt;
}

std::string nameAt(int index) {
  return index < 24 ? twoOctaves(notesArrayRegular)[static_cast<std::size_t>(index)] : "-";
}

std::vector<Candidate> candidatesOf(const std::string& open, int openIndex, int width, int start,
                                    const Names& chordNotes) {
  std::vector<Candidate> candidates;
  for (int fret = start; fret < start + width; ++fret) {
    const std::string name = nameAt(openIndex + fret);
    if (contains(chordNotes, name)) {
      candidates.push_back({fret, name});
    } else if (contains(chordNotes, open)) {
      candidates.push_back({0, open});
    }
  }
  if (candidates.empty()) candidates.push_back({-1, "-1"});
  std::vector<Candidate> unique;
  for (const Candidate& candidate : candidates) {
    const bool isMet = std::any_of(unique.begin(), unique.end(), [&](const Candidate& other) {
      return other.fret == candidate.fret;
    });
    if (!isMet) unique.push_back(candidate);
  }
  return unique;
}

std::vector<Combination> combine(const std::vector<std::vector<Candidate>>& strings) {
  std::vector<Combination> combinations{{}};
  for (const auto& candidates : strings) {
    std::vector<Combination> longer;
    for (const Combination& combination : combinations) {
      for (const Candidate& candidate : candidates) {
        longer.push_back(combination);
        longer.back().frets.push_back(candidate.fret);
        longer.back().names.push_back(candidate.name);
      }
    }
    combinations = std::move(longer);
  }
  return combinations;
}

std::string textOf(const Combination& combination) {
  std::string names;
  std::string frets;
  for (std::size_t i = 0; i < combination.frets.size(); ++i) {
    const char* separator = i > 0 ? "," : "";
    names += separator + combination.names[i];
    frets += separator + std::to_string(combination.frets[i]);
  }
  return names + "|" + frets;
}

// Drops combinations that are all muted and those that are written like an earlier one.
std::vector<Combination> withoutRepetitions(const std::vector<Combination>& combinations) {
  std::set<std::string> met;
  std::vector<Combination> kept;
  for (const Combination& combination : combinations) {
    const bool sounds = std::any_of(combination.names.begin(), combination.names.end(),
                                    [](const std::string& name) { return name != "-1"; });
    if (sounds && met.insert(textOf(combination)).second) kept.push_back(combination);
  }
  return kept;
}

bool applyBassRule(Combination& combination, const std::string& bass) {
  for (std::size_t string = 5; string >= 1; --string) {
    if (combination.names[string] == bass) return true;
    combination.frets[string] = -1;
    combination.names[string] = "-1";
  }
  return false;
}

bool isSecondary(const std::vector<int>& f) {
  return f[0] == -1 || f[1] == -1 || f[2] == -1 || f[3] == -1 || (f[4] == -1 && f[5] == 0);
}

class PlainSearch {
 public:
  PlainSearch(Names chordNotes, Names required, WholeNumber limit)
      : chordNotes_(std::move(chordNotes)), required_(std::move(required)), limit_(limit) {}

  // Whether the search is to stop.
  bool searchSpan(const Names& highestFirst, const std::vector<int>& openIndexes, int width,
                  int start) {
    std::vector<std::vector<Candidate>> strings;
    for (std::size_t k = 0; k < 6; ++k) {
      strings.push_back(candidatesOf(highestFirst[k], openIndexes[k], width, start, chordNotes_));
    }
    for (Combination combination : withoutRepetitions(combine(strings))) {
      if (judge(combination)) return true;
    }
    return false;
  }

  std::vector<ChordPosition> finish(bool isStopped) {
    if (!isStopped) main_.insert(main_.end(), secondary_.begin(), secondary_.end());
    return main_;
  }

 private:
  bool judge(Combination& combination) {
    if (!applyBassRule(combination, chordNotes_.front())) return false;
    for (const std::string& name : required_) {
      if (!contains(combination.names, name)) return false;
    }
    const WholeNumbers frets(combination.frets.rbegin(), combination.frets.rend());
    const WholeNumbers fingers = assignFingers(frets);
    for (std::size_t i = 0; i < fingers.size(); ++i) {
      if (frets[i] >= 1 && fingers[i] == 0) return false;
    }
    const bool goesSecond = isSecondary(combination.frets);
    auto& met = goesSecond ? metSecondary_ : metMain_;
    if (!met.insert(frets).second) return false;
    (goesSecond ? secondary_ : main_).push_back({toPerString(frets), toPerString(fingers)});
    return !goesSecond && limit_ != -1 && static_cast<WholeNumber>(main_.size()) >= limit_;
  }

  static PerString toPerString(const WholeNumbers& list) {
    if (list.empty()) return {};
    PerString::Numbers numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = static_cast<std::int8_t>(list[i]);
    return numbers;
  }

  Names chordNotes_;
  Names required_;
  WholeNumber limit_;
  std::set<WholeNumbers> metMain_;
  std::set<WholeNumbers> metSecondary_;
  std::vector<ChordPosition> main_;
  std::vector<ChordPosition> secondary_;
};

}  // namespace

std::vector<ChordPosition> generatePlainly(const std::string& rootNote,
                                           const WholeNumbers& intervals, WholeNumber limit,
                                           const TuningNames& tuning) {
  const auto root = indexIn({&notesArrayRegular, &notesArrayFlatNotes, &notesArraySharpNotes,
                             &notesArrayDoubleSharpNotes, &notesArrayDoubleFlatNotes},
                            rootNote);
  if (!root) return {};
  Names chordNotes;
  Names required;
  const bool mayLackFifth =
      intervals.size() >= 4 &&
      std::any_of(intervals.begin(), intervals.end(), [](WholeNumber n) { return n % 12 == 7; });
  for (const WholeNumber interval : intervals) {
    const auto semitones = static_cast<int>(interval > 12 ? interval % 12 : interval);
    chordNotes.push_back(nameAt(*root + semitones));
  }
  for (const std::string& note : chordNotes) {
    if (!mayLackFifth || note != nameAt(*root + 7)) required.push_back(note);
  }
  const Names highestFirst(tuning.rbegin(), tuning.rend());
  std::vector<int> openIndexes;
  for (const std::string& open : highestFirst) {
    const auto index = indexIn({&notesArrayRegular, &notesArraySharpNotes, &notesArrayFlatNotes,
                                &notesArrayDoubleSharpNotes, &notesArrayDoubleFlatNotes},
                               open);
    if (!index) return {};
    openIndexes.push_back(*index);
  }
  PlainSearch search(chordNotes, required, limit);
  for (const int width : {2, 3, 4}) {
    for (int start = 0; start <= (width == 2 ? 0 : 12); ++start) {
      if (search.searchSpan(highestFirst, openIndexes, width, start)) return search.finish(true);
    }
  }
  return search.finish(false);
}

}  // namespace tonelake::testing
