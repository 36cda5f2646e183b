// The search for shapes, worked through for C major (C E G) in standard tuning:
//
// A hand covers a few neighbouring frets, so the search looks at one fret span after another: two
// frets wide at the nut, then three frets wide from fret 0 to 12, then four. In a span every
// string offers the frets that sound a chord note; a fret that does not is replaced by the open
// string where that is a chord note; a string that offers nothing is muted. At the span of frets
// 1 to 3, highest string first:
//
//   E: 3 (G), open (E)   B: 1 (C)   G: open (G)   D: 2 (E)   A: 3 (C)   E: 3 (G), open (E)
//
// One offer of each string makes a combination. The bass rule mutes what lies below the lowest
// root: with the A string sounding C, the low E string falls silent. What remains must hold every
// required note and be playable by four fingers: open E, 1, open G, 2, 3, muted. Read from the
// lowest string that is x32010.
//
// The order of discovery is the order of the result, so loops run exactly this way: the highest
// string varies slowest, and the first discovery of a shape keeps its place.

#include "Tonelake/fingering/shape_search.h"

#include <bit>

#include "Tonelake/fingering/finger_assignment.h"
#include "Tonelake/fingering/shape_set.h"

namespace tonelake {
namespace {

// String 0 is the highest here, string 5 the lowest: the order of the loops.
constexpr int stringCount = static_cast<int>(Tuning::stringCount);

// Names run two octaves up from C. A fret beyond that has no name and holds no chord note: the
// B string ends at fret 12, the A string at fret 14. Kept on purpose.
constexpr int namedPitches = 24;

constexpr int highestStart = 12;
constexpr int widestSpan = 4;
constexpr int fretCount = highestStart + widestSpan;

constexpr PitchClassSet noteBit(int pitch) {
  return static_cast<PitchClassSet>(1U << static_cast<unsigned>(pitch % 12));
}

// A fret a string may take and the note it sounds there; no bit for a muted string.
struct Candidate {
  std::int8_t fret = mutedString;
  PitchClassSet note = 0;
};

// What one string offers in a span. Frets are all different.
struct Candidates {
  std::array<Candidate, widestSpan + 1> list;
  int count = 0;
  int firstOtherThanBass = -1;  // the first that is not the bass note, or -1

  void add(Candidate candidate, PitchClassSet bass) {
    if (candidate.note != bass && firstOtherThanBass < 0) firstOtherThanBass = count;
    list[static_cast<std::size_t>(count++)] = candidate;
  }
};

class ShapeSearch {
 public:
  explicit ShapeSearch(const ShapeQuery& query)
      : query_(query), bass_(noteBit(query.bass)), seen_(expectedShapes) {
    main_.reserve(expectedShapes);
  }

  std::vector<ChordPosition> run() {
    constexpr int narrowestSpan = 2;
    for (int width = narrowestSpan; width <= widestSpan; ++width) {
      const int lastStart = width == narrowestSpan ? 0 : highestStart;
      for (int start = 0; start <= lastStart; ++start) {
        searchSpan(width, start);
        if (isFull()) return std::move(main_);
      }
    }
    main_.insert(main_.end(), secondary_.begin(), secondary_.end());
    return std::move(main_);
  }

 private:
  // A combination while it grows from the highest string downwards.
  struct Partial {
    Frets frets{};            // lowest string first, as in the result
    PitchClassSet notes = 0;  // sounding so far
    // The lowest string so far that sounds the bass note (-1: none), the notes sounding from there
    // upwards, and whether every string below it took its first candidate other than the bass.
    // The bass rule mutes those strings, so their other candidates would give the same shape.
    int bassString = -1;
    PitchClassSet notesAboveBass = 0;
    bool isFirstBelowBass = true;
  };

  static constexpr std::size_t expectedShapes = 256;

  void searchSpan(int width, int start) {
    for (int string = 0; string < stringCount; ++string) collectCandidates(string, width, start);
    // Notes and bass notes that the strings from here downwards could still add.
    reachable_[stringCount] = 0;
    for (int string = stringCount - 1; string >= 0; --string) {
      const auto i = static_cast<std::size_t>(string);
      reachable_[i] = reachable_[i + 1];
      for (int c = 0; c < candidates_[i].count; ++c) {
        reachable_[i] |= candidates_[i].list[static_cast<std::size_t>(c)].note;
      }
    }
    if (holdsRequired(reachable_[0])) extend<0>(Partial());
  }

  // Every fret of the span that sounds a chord note; the open string in place of one that does
  // not; muted when there is neither. The first time a fret is met counts.
  void collectCandidates(int string, int width, int start) {
    const OpenString& open = query_.strings[static_cast<std::size_t>(stringCount - 1 - string)];
    const bool ringsOpen = open.isNamedLikeChordNotes && isChordNote(open.pitchClass);
    Candidates candidates;
    bool hasOpen = false;
    for (int fret = start; fret < start + width; ++fret) {
      const int pitch = open.pitchClass + fret;
      if (pitch < namedPitches && isChordNote(pitch)) {
        if (fret == openString) hasOpen = true;
        candidates.add({static_cast<std::int8_t>(fret), noteBit(pitch)}, bass_);
      } else if (ringsOpen && !hasOpen) {
        hasOpen = true;
        candidates.add({openString, noteBit(open.pitchClass)}, bass_);
      }
    }
    if (candidates.count == 0) candidates.add({}, bass_);
    candidates_[static_cast<std::size_t>(string)] = candidates;
  }

  bool isChordNote(int pitch) const { return (query_.chordNotes & noteBit(pitch)) != 0; }

  bool holdsRequired(PitchClassSet notes) const { return (query_.requiredNotes & ~notes) == 0; }

  bool isFull() const {
    return query_.limit != -1 && !main_.empty() &&
           static_cast<WholeNumber>(main_.size()) >= query_.limit;
  }

  // Extends a combination by each candidate of `string` in turn; complete ones are judged.
  template <int string>
  void extend(const Partial& partial) {
    if constexpr (string == stringCount) {
      judge(partial);
    } else {
      const Candidates& candidates = candidates_[string];
      for (int c = 0; c < candidates.count; ++c) {
        const Candidate candidate = candidates.list[static_cast<std::size_t>(c)];
        Partial longer = partial;
        longer.frets[stringCount - 1 - string] = candidate.fret;
        longer.notes |= candidate.note;
        if (string > 0 && candidate.note == bass_) {
          // String 0 is never the bass: a root on the highest string alone is no chord.
          longer.bassString = string;
          longer.notesAboveBass = longer.notes;
          longer.isFirstBelowBass = true;
        } else if (c != candidates.firstOtherThanBass) {
          longer.isFirstBelowBass = false;
        }
        if (isPromising(longer, reachable_[string + 1])) extend<string + 1>(longer);
        if (isFull()) return;
      }
    }
  }

  // Whether the strings below, which can sound `reachable`, can make this a new complete shape:
  // by a deeper bass, or by falling silent under the one there is.
  bool isPromising(const Partial& partial, PitchClassSet reachable) const {
    if (isSettled(partial)) return true;
    return (reachable & bass_) != 0 &&
           holdsRequired(static_cast<PitchClassSet>(partial.notes | reachable));
  }

  // Bass rule and completeness in one: what sounds from the bass string upwards is complete, and
  // no earlier combination gave the same shape.
  bool isSettled(const Partial& partial) const {
    return partial.bassString >= 0 && partial.isFirstBelowBass &&
           holdsRequired(partial.notesAboveBass);
  }

  void judge(const Partial& partial) {
    if (!isSettled(partial)) return;
    const Frets frets = applyBassRule(partial);
    if (!seen_.insert(frets)) return;
    const auto fingers = findFingers(frets);
    if (!fingers) return;
    const bool isPressed = *fingers != Fingers{};
    (isSecondary(frets) ? secondary_ : main_)
        .push_back({frets, isPressed ? PerString(*fingers) : PerString()});
  }

  // Mutes every string below the bass.
  static Frets applyBassRule(const Partial& partial) {
    Frets frets = partial.frets;
    for (int below = 0; below < stringCount - 1 - partial.bassString; ++below) {
      frets[static_cast<std::size_t>(below)] = mutedString;
    }
    return frets;
  }

  // Shapes that mute one of the four highest strings come second, and so do those that mute the
  // fifth while the sixth rings open; other shapes with a muted fifth string do not, kept on
  // purpose. frets[5] is the highest string, frets[0] the lowest.
  static bool isSecondary(const Frets& frets) {
    return frets[5] == mutedString || frets[4] == mutedString || frets[3] == mutedString ||
           frets[2] == mutedString || (frets[1] == mutedString && frets[0] == openString);
  }

  const ShapeQuery& query_;
  const PitchClassSet bass_;
  std::array<Candidates, stringCount> candidates_;
  std::array<PitchClassSet, stringCount + 1> reachable_{};
  ShapeSet seen_;
  std::vector<ChordPosition> main_;
  std::vector<ChordPosition> secondary_;
};

}  // namespace

std::vector<ChordPosition> searchShapes(const ShapeQuery& query) {
  return ShapeSearch(query).run();
}

}  // namespace tonelake
