#include "zyndle/found_chords.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/octave.h"

namespace zyndle {
namespace {

using tonelake::Chord;
using tonelake::ChordDataManager;
using tonelake::Note;

bool hasSign(Note note, std::string_view sign) {
  return note.rawValue().find(sign) != std::string_view::npos;
}

bool anyHasSign(const SoughtNotes& sought, std::string_view sign) {
  return sought.areSpelled && std::any_of(sought.notes.begin(), sought.notes.end(),
                                          [=](Note note) { return hasSign(note, sign); });
}

std::vector<int> pitchesOf(const Chord& chord) {
  std::vector<int> pitches;
  for (const tonelake::WholeNumber note : tonelake::Chords::getChordData(chord.chordType)->notes) {
    pitches.push_back((chord.rootNote.pitchClass() + static_cast<int>(note)) % tonelake::octave);
  }
  return pitches;
}

// The less, the better the spelling of a chord suits what was sought.
auto oddity(const FoundChord& found, const SoughtNotes& sought) {
  const bool flats = anyHasSign(sought, "♭");
  const bool sharps = anyHasSign(sought, "♯") || anyHasSign(sought, "𝄪");
  const Note root = found.chord.rootNote;
  const bool hasOtherSign = flats != sharps && hasSign(root, flats ? "♯" : "♭");
  std::ptrdiff_t sharedNames = 0;
  std::size_t signs = 0;
  for (const std::string& tone : found.tones) {
    signs += tonelake::countCharacters(tone) - 1;
    if (!sought.areSpelled) continue;
    sharedNames += std::count_if(sought.notes.begin(), sought.notes.end(),
                                 [&](Note note) { return note.rawValue() == tone; });
  }
  return std::tuple(hasOtherSign, -sharedNames, signs, hasSign(root, "♭"),
                    found.chord.chordType.size());
}

FoundChord describe(const Chord& chord, const SoughtNotes& sought) {
  FoundChord found{chord, tonelake::Chords::getNotesOfChord(chord), {}, {}};
  const std::vector<int> pitches = pitchesOf(chord);
  for (std::size_t i = 0; i < pitches.size(); ++i) {
    const bool isSought = std::any_of(sought.notes.begin(), sought.notes.end(),
                                      [&](Note note) { return note.pitchClass() == pitches[i]; });
    if (!isSought) found.missing.push_back(found.tones[i]);
    if (pitches[i] == sought.notes.front().pitchClass()) {
      found.chord.variant = static_cast<tonelake::WholeNumber>(i);
    }
  }
  for (const Note note : sought.notes) {
    if (std::find(pitches.begin(), pitches.end(), note.pitchClass()) != pitches.end()) continue;
    found.extra.emplace_back(note.rawValue());
  }
  return found;
}

// One of those that sound alike, in the place of the first.
std::vector<FoundChord> describeEachOnce(const std::vector<Chord>& chords,
                                         const SoughtNotes& sought) {
  std::vector<FoundChord> answers;
  for (const Chord& chord : chords) {
    FoundChord found = describe(chord, sought);
    const auto same = std::find_if(answers.begin(), answers.end(), [&](const FoundChord& answer) {
      return pitchesOf(answer.chord) == pitchesOf(found.chord);
    });
    if (same == answers.end()) {
      answers.push_back(std::move(found));
    } else if (oddity(found, sought) < oddity(*same, sought)) {
      *same = std::move(found);
    }
  }
  return answers;
}

std::string listOf(const SoughtNotes& sought) {
  std::vector<std::string> names;
  for (const Note note : sought.notes) names.emplace_back(note.rawValue());
  return tonelake::join(names, ",");
}

// Chords of one type that are equally near stand together; this moves those with the root in the
// bass to the front of each such run.
void putSoughtBassFirst(std::vector<FoundChord>& answers) {
  const auto isOfSameRun = [](const FoundChord& one, const FoundChord& other) {
    return one.chord.chordType == other.chord.chordType &&
           one.missing.size() == other.missing.size() && one.extra.size() == other.extra.size();
  };
  for (auto begin = answers.begin(); begin != answers.end();) {
    const auto end = std::find_if_not(begin, answers.end(), [&](const FoundChord& answer) {
      return isOfSameRun(*begin, answer);
    });
    std::stable_partition(begin, end,
                          [](const FoundChord& answer) { return answer.chord.variant == 0; });
    begin = end;
  }
}

}  // namespace

std::vector<Note> eachPitchOnce(const std::vector<Note>& notes) {
  std::vector<Note> kept;
  for (const Note note : notes) {
    const bool isNew = std::none_of(kept.begin(), kept.end(), [=](Note earlier) {
      return earlier.pitchClass() == note.pitchClass();
    });
    if (isNew) kept.push_back(note);
  }
  return kept;
}

std::vector<FoundChord> findExactly(const SoughtNotes& sought) {
  std::vector<FoundChord> answers =
      describeEachOnce(ChordDataManager::shared().findChordsExact(listOf(sought)), sought);
  std::stable_partition(answers.begin(), answers.end(),
                        [](const FoundChord& answer) { return answer.chord.variant == 0; });
  return answers;
}

std::vector<FoundChord> findNearly(const SoughtNotes& sought) {
  std::vector<FoundChord> answers =
      describeEachOnce(ChordDataManager::shared().findChordsMatching(listOf(sought)), sought);
  putSoughtBassFirst(answers);
  return answers;
}

}  // namespace zyndle
