// The search for voicings, worked through for D major over F♯ in standard tuning with the hand on
// the second fret, which presses nothing below fret 2 and nothing above fret 5:
//
//   E: 2 (F♯), 5 (A)   A: open (A), 5 (D)   D: open (D), 4 (F♯)   G: 2 (A)   B: 3 (D)
//   E: 2 (F♯), 5 (A)
//
// The lowest string to sound must sound the bass: the low E string at fret 2, or a higher string
// with all below it muted. From there upwards each string sounds one of its notes or none, as
// long as the muted ones that come to lie inside are not too many and what is missing can still
// be had: every note of the chord, and the second fret pressed. One way through is 2, muted, open
// D, 2, 3, 2; its fingers are found, and it is judged.
//
// The hand's place is the lowest pressed fret, so every shape is met exactly once.

#include "Tonelake/fingering/voicing_search.h"

#include <algorithm>

#include "Tonelake/fingering/finger_assignment.h"
#include "Tonelake/fingering/finger_rules.h"
#include "Tonelake/fingering/pressed_strings.h"
#include "Tonelake/fingering/voicing_judgement.h"

namespace tonelake::Voicings {
namespace {

constexpr int stringCount = static_cast<int>(Tuning::stringCount);
constexpr int highestHandWithOpenStrings = 5;

// A fret that sounds a chord note.
struct Candidate {
  std::int8_t fret = openString;
  PitchClassSet note = 0;
};

// What one string offers to the hand: the open string and the frets within reach.
struct Candidates {
  std::array<Candidate, handFrets + 1> list;
  int count = 0;

  const Candidate* begin() const { return list.data(); }
  const Candidate* end() const { return list.data() + count; }
};

class VoicingSearch {
 public:
  VoicingSearch(const VoicingQuery& query, const VoicingOptions& options)
      : query_(query), options_(options), fewestStrings_(query.isPowerChord ? 2 : 3) {
    constexpr std::size_t expectedVoicings = 256;
    found_.reserve(expectedVoicings);
  }

  std::vector<Voicing> run() {
    const int highest = std::min(options_.highestFret, highestFretOfAll);
    for (hand_ = 0; hand_ <= highest; ++hand_) searchHand(std::min(hand_ + handFrets - 1, highest));
    return std::move(found_);
  }

 private:
  // A shape while it grows from the lowest string upwards.
  struct Partial {
    Frets frets{mutedString, mutedString, mutedString, mutedString, mutedString, mutedString};
    PitchClassSet notes = 0;  // sounding so far
    int sounding = 0;
    int innerMutes = 0;
    int mutesSince = 0;         // since the last sounding string: inner if another one sounds
    int groupsAboveLowest = 0;  // runs of neighbours pressed at one fret above the hand's
    bool pressesLowest = false;
  };

  // The shapes whose lowest pressed fret is hand_. With the hand at 0 nothing is pressed.
  void searchHand(int lastFret) {
    reachable_[stringCount] = 0;
    lowestWithin_[stringCount] = false;
    for (std::size_t string = stringCount; string-- > 0;) {
      reachable_[string] = reachable_[string + 1];
      lowestWithin_[string] = lowestWithin_[string + 1];
      collectCandidates(string, lastFret);
    }
    Partial nothing;
    nothing.pressesLowest = hand_ == 0;
    if (canBeCompleted(nothing, 0)) startOn<0>(nothing);
  }

  void collectCandidates(std::size_t string, int lastFret) {
    candidates_[string].count = 0;
    if (hand_ <= highestHandWithOpenStrings || options_.openStringsAboveFifthFret) {
      offer(string, openString);
    }
    if (hand_ == 0) return;
    for (int fret = hand_; fret <= lastFret; ++fret) offer(string, fret);
  }

  void offer(std::size_t string, int fret) {
    const PitchClassSet note = onlyPitchClass(query_.openPitches[string] + fret);
    if ((note & query_.chordNotes) == 0) return;
    Candidates& candidates = candidates_[string];
    candidates.list[static_cast<std::size_t>(candidates.count++)] = {static_cast<std::int8_t>(fret),
                                                                     note};
    reachable_[string] |= note;
    if (fret == hand_) lowestWithin_[string] = true;
  }

  // Whether the strings from `string` upwards could supply what is missing.
  bool canBeCompleted(const Partial& partial, std::size_t string) const {
    const auto notes = static_cast<PitchClassSet>(partial.notes | reachable_[string]);
    return includesAll(notes, query_.requiredNotes) &&
           (partial.pressesLowest || lowestWithin_[string]);
  }

  // Lets `string`, or a higher one, be the lowest to sound.
  template <int string>
  void startOn(const Partial& nothing) {
    if constexpr (string < stringCount) {
      for (const Candidate& candidate : candidates_[string]) {
        if (candidate.note == query_.bass) sound<string>(nothing, candidate);
      }
      startOn<string + 1>(nothing);
    }
  }

  template <int string>
  void sound(const Partial& partial, const Candidate& candidate) {
    Partial longer = partial;
    longer.frets[string] = candidate.fret;
    longer.notes |= candidate.note;
    ++longer.sounding;
    longer.innerMutes += longer.mutesSince;
    longer.mutesSince = 0;
    longer.pressesLowest = longer.pressesLowest || candidate.fret == hand_;
    if (candidate.fret > hand_ && !continuesGroup<string>(partial, candidate)) {
      // The index finger is on the lowest fret, and only neighbours share another finger.
      constexpr int fingersAboveLowest = littleFinger - indexFinger;
      if (++longer.groupsAboveLowest > fingersAboveLowest) return;
    }
    goOn<string + 1>(longer);
  }

  template <int string>
  static bool continuesGroup(const Partial& partial, const Candidate& candidate) {
    if constexpr (string == 0) {
      return false;
    } else {
      return partial.frets[std::size_t{string} - 1] == candidate.fret;
    }
  }

  // Every continuation from `string` upwards.
  template <int string>
  void goOn(Partial& partial) {
    if (!canBeCompleted(partial, string)) return;
    if constexpr (string == stringCount) {
      finish(partial);
    } else {
      if (partial.innerMutes + partial.mutesSince <= options_.innerMutes) {
        for (const Candidate& candidate : candidates_[string]) sound<string>(partial, candidate);
      }
      ++partial.mutesSince;
      goOn<string + 1>(partial);
    }
  }

  void finish(const Partial& partial) {
    if (partial.sounding < fewestStrings_) return;
    const auto fingers = findFingers(partial.frets, {.barreMayCoverMuted = true});
    if (fingers) found_.push_back(judgeVoicing(partial.frets, *fingers, query_));
  }

  const VoicingQuery& query_;
  const VoicingOptions& options_;
  const int fewestStrings_;
  int hand_ = 0;
  std::array<Candidates, stringCount> candidates_;
  // What the strings from here upwards can still supply.
  std::array<PitchClassSet, stringCount + 1> reachable_{};
  std::array<bool, stringCount + 1> lowestWithin_{};
  std::vector<Voicing> found_;
};

}  // namespace

std::vector<Voicing> searchVoicings(const VoicingQuery& query, const VoicingOptions& options) {
  return VoicingSearch(query, options).run();
}

}  // namespace tonelake::Voicings
