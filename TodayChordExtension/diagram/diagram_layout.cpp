#include "TodayChordExtension/diagram/diagram_layout.h"

#include <algorithm>

#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/fingering/finger_rules.h"
#include "Tonelake/theory/note.h"
#include "Tonelake/theory/octave.h"

namespace todaychord {
namespace {

using tonelake::Note;

constexpr WholeNumber muted = -1;
constexpr WholeNumber noFinger = -1;

double at(double first, double pitch, WholeNumber index) {
  return first + pitch * static_cast<double>(index);
}

// Row 1 is fret 1 for shapes that end below fret 5, else the lowest pressed fret, so that four
// rows are always enough: (x,5,7,7,6,5) is drawn in rows 1, 3, 3, 2, 1.
WholeNumber findBaseFret(const WholeNumbers& position) {
  WholeNumber lowest = 0;
  WholeNumber highest = 0;
  for (const WholeNumber fret : position) {
    if (fret <= 0) continue;
    lowest = lowest == 0 ? fret : std::min(lowest, fret);
    highest = std::max(highest, fret);
  }
  return highest > metrics::highestFretAtNut ? lowest : 1;
}

WholeNumbers displayFrets(const WholeNumbers& position, WholeNumber baseFret) {
  WholeNumbers rows = position;
  for (WholeNumber& fret : rows) {
    if (fret > 0) fret = fret - baseFret + 1;
  }
  return rows;
}

// For the left hand: the lowest string on the right, with `missing` where a short list ends.
WholeNumbers mirrored(WholeNumbers values, WholeNumber missing) {
  values.resize(metrics::stringCount, missing);
  std::reverse(values.begin(), values.end());
  return values;
}

std::vector<FingerDot> placeDots(const WholeNumbers& frets, const WholeNumbers& fingers) {
  std::vector<FingerDot> dots;
  for (std::size_t i = 0; i < frets.size(); ++i) {
    if (frets[i] <= 0) continue;
    const auto string = static_cast<int>(i);
    dots.push_back({string, at(metrics::firstDotX, metrics::stringPitch, string),
                    at(metrics::dotCentre, metrics::rowPitch, frets[i]),
                    i < fingers.size() ? fingers[i] : noFinger});
  }
  return dots;
}

// One segment between every two neighbours among the strings that a finger holds; the first of
// the two gives the row.
std::vector<BarreSegment> placeBarres(const WholeNumbers& frets, const WholeNumbers& fingers) {
  std::vector<BarreSegment> barres;
  for (WholeNumber finger = 1; finger <= tonelake::littleFinger; ++finger) {
    int previous = -1;
    for (std::size_t i = 0; i < std::min(frets.size(), fingers.size()); ++i) {
      if (fingers[i] != finger) continue;
      const auto string = static_cast<int>(i);
      if (previous >= 0) {
        const WholeNumber fret = frets[static_cast<std::size_t>(previous)];
        barres.push_back({previous, string, fret,
                          at(metrics::barreX, metrics::stringPitch, previous),
                          at(metrics::barreY, metrics::rowPitch, fret),
                          metrics::stringPitch * (string - previous)});
      }
      previous = string;
    }
  }
  return barres;
}

// The chord's own spelling of a pitch: the sharp name, else the first of its other spellings that
// is a chord tone, else "".
std::string spellInChord(int pitchClass, const std::vector<std::string>& tones) {
  const auto isTone = [&](Note note) {
    return std::find(tones.begin(), tones.end(), note.rawValue()) != tones.end();
  };
  const Note sharp = Note::sharpOfPitchClass(pitchClass);
  if (isTone(sharp)) return std::string(sharp.rawValue());
  const auto others = sharp.enharmonics();
  const auto found = std::find_if(others.begin(), others.end(), isTone);
  return found == others.end() ? "" : std::string(found->rawValue());
}

std::vector<NoteLabel> placeNoteLabels(const ChordView& view) {
  const std::vector<std::string> tones = tonelake::Chords::getNotesOfChord(view.chord);
  std::vector<NoteLabel> labels;
  constexpr std::size_t strings = metrics::stringCount;
  for (std::size_t i = 0; i < std::min({strings, view.position.size(), view.tuning.size()}); ++i) {
    const auto open = Note::fromRawValue(view.tuning[i]);
    if (view.position[i] == muted || !open) continue;
    const auto pitch = static_cast<int>(open->pitchClass() + tonelake::octave +
                                        view.position[i] % tonelake::octave);
    const int string =
        (view.isLeftHanded ? metrics::stringCount - 1 - static_cast<int>(i) : static_cast<int>(i));
    labels.push_back({string, spellInChord(pitch, tones),
                      at(metrics::noteLabelX, metrics::stringPitch, string), metrics::noteLabelY});
  }
  std::sort(labels.begin(), labels.end(),
            [](const NoteLabel& a, const NoteLabel& b) { return a.stringIndex < b.stringIndex; });
  return labels;
}

}  // namespace

double diagramScale(double width) {
  return std::max(metrics::smallestScale, width / metrics::designWidth);
}

DiagramLayout layOutDiagram(const ChordView& view, double width) {
  DiagramLayout layout;
  layout.scale = diagramScale(width);
  layout.baseFret = findBaseFret(view.position);
  layout.displayedFrets = displayFrets(view.position, layout.baseFret);
  WholeNumbers fingers = view.fingering;
  if (view.isLeftHanded) {
    fingers.resize(view.position.size(), noFinger);  // those of other strings hold nothing
    layout.displayedFrets = mirrored(layout.displayedFrets, noRow);
    fingers = mirrored(fingers, noFinger);
  }
  layout.dots = placeDots(layout.displayedFrets, fingers);
  layout.barres = placeBarres(layout.displayedFrets, fingers);
  if (view.displayNotes) layout.noteLabels = placeNoteLabels(view);
  return layout;
}

}  // namespace todaychord
