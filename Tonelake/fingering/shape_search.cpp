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

#include <algorithm>
#include <cstdint>
#include <utility>

#include "Tonelake/fingering/finger_assignment.h"
#include "Tonelake/fingering/fret_spans.h"
#include "Tonelake/fingering/shape_set.h"

namespace tonelake {
namespace {

// String 0 is the highest here, string 5 the lowest: the order of the loops.
constexpr int stringCount = static_cast<int>(Tuning::stringCount);

// Names run two octaves up from C. A fret beyond that has no name and holds no chord note: the
// B string ends at fret 12, the A string at fret 14. Kept on purpose.
constexpr int namedPitches = 24;

// A string and where it sounds chord notes.
struct ChordString {
  FretSet chordFrets = 0;
  bool ringsOpen = false;  // the open string may stand in for a fret without a chord note
  std::array<PitchClassSet, fretCount> noteAt{};  // by fret

  // What the string can do in each span, by its place in fretSpans; nothing in noSpan.
  std::array<FretSet, spanCount + 1> offers{};
};

// A set of FretSpan::earlier: shapes made of nothing but what such a span offered were met there.
using EarlierSpans = std::uint8_t;

constexpr EarlierSpans firstEarlierSpan = 1;
constexpr EarlierSpans secondEarlierSpan = 2;
constexpr EarlierSpans bothEarlierSpans = firstEarlierSpan | secondEarlierSpan;

// A fret a string may take, the note it sounds there (no bit for a muted string), and the earlier
// spans that offered the same.
struct Candidate {
  PackedFrets fret;
  PitchClassSet note;
  EarlierSpans offeredIn;
};

// What one string offers in a span, in the order of discovery. Frets are all different.
struct Candidates {
  std::array<Candidate, widestSpan> list;
  int count;
  int firstOtherThanBass;  // the first that is not the bass note, or -1
};

class ShapeSearch {
 public:
  explicit ShapeSearch(const ShapeQuery& query)
      : query_(query),
        bass_(onlyPitchClass(query.bass)),
        // The limit is looked at after a shape has been added, so that 0 still gives one.
        limit_(query.limit == -1 ? SIZE_MAX
                                 : static_cast<std::size_t>(std::max<WholeNumber>(query.limit, 1))),
        seen_(expectedShapes) {
    main_.reserve(expectedShapes);
    for (std::size_t i = 0; i < strings_.size(); ++i) {
      strings_[i] = readString(query.strings[tuningIndex(i)]);
    }
  }

  std::vector<ChordPosition> run() {
    for (std::size_t span = 0; span < spanCount && !isFull_; ++span) searchSpan(span);
    if (isFull_) return std::move(main_);
    main_.insert(main_.end(), secondary_.begin(), secondary_.end());
    return std::move(main_);
  }

 private:
  // A combination while it grows from the highest string downwards. Small enough for registers.
  struct Partial {
    PackedFrets frets = 0;
    PitchClassSet notes = 0;     // sounding so far
    EarlierSpans offeredIn = 0;  // those that offered everything so far
    std::int8_t bassString = 0;  // the lowest string so far that sounds the bass note
    // Whether this is a new complete shape once all strings below the bass are muted: it sounds
    // every required note from there upwards, and the strings below took their first candidate
    // other than the bass. The others would be muted as well and give the same shape again.
    bool isSettled = false;
  };

  // What the strings from one downwards can still do for a combination.
  struct Outlook {
    PitchClassSet notes = 0;                  // notes that some candidate sounds
    EarlierSpans staying = bothEarlierSpans;  // earlier spans that offered every candidate
  };

  static constexpr std::size_t expectedShapes = 128;

  // Where the string that the search counts as `string` stands in a tuning, lowest first.
  static constexpr std::size_t tuningIndex(std::size_t string) { return stringCount - 1 - string; }

  ChordString readString(const OpenString& open) const {
    ChordString string;
    string.ringsOpen = open.isNamedLikeChordNotes && isChordNote(open.pitchClass);
    for (int fret = 0; fret < fretCount && open.pitchClass + fret < namedPitches; ++fret) {
      string.noteAt[static_cast<std::size_t>(fret)] = onlyPitchClass(open.pitchClass + fret);
      if (isChordNote(open.pitchClass + fret)) string.chordFrets |= fretBit(fret);
    }
    for (std::size_t span = 0; span < spanCount; ++span) {
      string.offers[span] = offersIn(string, fretSpans[span].frets());
    }
    return string;
  }

  // The frets of a span that sound a chord note, the open string in place of those that do not;
  // muted when there is neither.
  static FretSet offersIn(const ChordString& string, FretSet frets) {
    FretSet offered = frets & string.chordFrets;
    if (string.ringsOpen && (frets & ~string.chordFrets) != 0) offered |= fretBit(openString);
    return offered != 0 ? offered : fretBit(mutedString);
  }

  void searchSpan(std::size_t span) {
    for (std::size_t i = stringCount; i-- > 0;) {
      collectCandidates(i, fretSpans[span]);
      outlooks_[i] = outlooks_[i + 1];
      for (int c = 0; c < candidates_[i].count; ++c) {
        const Candidate& candidate = candidates_[i].list[static_cast<std::size_t>(c)];
        outlooks_[i].notes |= candidate.note;
        outlooks_[i].staying &= candidate.offeredIn;
      }
    }
    Partial nothing;
    nothing.offeredIn = bothEarlierSpans;
    const bool hasBass = (outlooks_[1].notes & bass_) != 0;
    if (hasBass && isPromising(nothing, outlooks_[0])) extend<0>(nothing);
  }

  // What a string offers in a span, in order: its frets from the lowest up, the open string taking
  // the place of the first that sounds no chord note.
  void collectCandidates(std::size_t string, const FretSpan& span) {
    const ChordString& notes = strings_[string];
    const FretSet first = notes.offers[span.earlier[0]];
    const FretSet second = notes.offers[span.earlier[1]];
    Candidates& candidates = candidates_[string];
    candidates.count = 0;
    candidates.firstOtherThanBass = -1;
    FretSet added = 0;
    const auto add = [&](int fret, FretSet bit, PitchClassSet note) {
      if ((added & bit) != 0) return;
      added |= bit;
      if (note != bass_ && candidates.firstOtherThanBass < 0) {
        candidates.firstOtherThanBass = candidates.count;
      }
      const EarlierSpans inFirst = (first & bit) != 0 ? firstEarlierSpan : 0;
      const EarlierSpans inSecond = (second & bit) != 0 ? secondEarlierSpan : 0;
      candidates.list[static_cast<std::size_t>(candidates.count++)] = {
          packFret(tuningIndex(string), fret), note, static_cast<EarlierSpans>(inFirst | inSecond)};
    };
    FretSet bit = fretBit(span.start);
    for (int fret = span.start; fret < span.start + span.width; ++fret, bit <<= 1U) {
      if ((notes.chordFrets & bit) != 0) {
        add(fret, bit, notes.noteAt[static_cast<std::size_t>(fret)]);
      } else if (notes.ringsOpen) {
        add(openString, fretBit(openString), notes.noteAt[openString]);
      }
    }
    if (candidates.count == 0) add(mutedString, fretBit(mutedString), 0);
  }

  bool isChordNote(int pitch) const { return (query_.chordNotes & onlyPitchClass(pitch)) != 0; }

  bool holdsRequired(PitchClassSet notes) const { return includesAll(notes, query_.requiredNotes); }

  // Extends a combination by each candidate of `string` in turn, and judges it once the strings
  // below cannot add a deeper bass: whatever they take, the bass rule mutes it.
  template <int string>
  void extend(const Partial partial) {
    const Candidates& candidates = candidates_[string];
    const Outlook below = outlooks_[string + 1];
    for (int c = 0; c < candidates.count; ++c) {
      const Candidate candidate = candidates.list[static_cast<std::size_t>(c)];
      Partial longer = partial;
      longer.frets |= candidate.fret;
      longer.notes |= candidate.note;
      longer.offeredIn &= candidate.offeredIn;
      if (string > 0 && candidate.note == bass_) {
        // String 0 is never the bass: a root on the highest string alone is no chord.
        longer.bassString = string;
        longer.isSettled = holdsRequired(longer.notes);
      } else if (c != candidates.firstOtherThanBass) {
        longer.isSettled = false;
      }
      if ((below.notes & bass_) == 0) {
        if (longer.isSettled) judge(longer);
      } else if constexpr (string + 1 < stringCount) {
        if (isPromising(longer, below)) extend<string + 1>(longer);
      }
      if (isFull_) return;
    }
  }

  // Whether the strings below, which can sound the bass note, can make this a new complete shape:
  // one that no earlier span offered, with a deeper bass or with those strings silent.
  bool isPromising(const Partial partial, const Outlook below) const {
    if ((partial.offeredIn & below.staying) != 0) return false;
    return partial.isSettled ||
           holdsRequired(static_cast<PitchClassSet>(partial.notes | below.notes));
  }

  void judge(const Partial partial) {
    const PackedFrets packed = applyBassRule(partial);
    if (!seen_.insert(packed)) return;
    const Frets frets = unpackFrets(packed);
    const auto fingers = findFingers(frets);
    if (!fingers) return;
    const bool isPressed = *fingers != Fingers{};
    (isSecondary(frets) ? secondary_ : main_)
        .push_back({frets, isPressed ? PerString(*fingers) : PerString()});
    isFull_ = main_.size() >= limit_;
  }

  // Mutes every string below the bass: muted is 0 when packed.
  static PackedFrets applyBassRule(const Partial partial) {
    const std::size_t mutedStrings = tuningIndex(static_cast<std::size_t>(partial.bassString));
    return partial.frets >> (bitsPerString * mutedStrings) << (bitsPerString * mutedStrings);
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
  const std::size_t limit_;
  std::array<ChordString, stringCount> strings_;
  std::array<Candidates, stringCount> candidates_;
  std::array<Outlook, stringCount + 1> outlooks_{};
  ShapeSet seen_;
  std::vector<ChordPosition> main_;
  std::vector<ChordPosition> secondary_;
  bool isFull_ = false;  // the limit is reached: stop at once
};

}  // namespace

std::vector<ChordPosition> searchShapes(const ShapeQuery& query) {
  return ShapeSearch(query).run();
}

}  // namespace tonelake
