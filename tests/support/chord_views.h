#pragma once

#include <string>
#include <vector>

#include "TodayChordExtension/diagram/chord_view.h"
#include "Tonelake/fingering/chord_positions.h"

namespace todaychord::testing {

/// A view of a shape; what tests vary is set on it.
inline ChordView viewOf(const Chord& chord, const WholeNumbers& position,
                        const WholeNumbers& fingering) {
  ChordView view;
  view.chord = chord;
  view.position = position;
  view.fingering = fingering;
  return view;
}

inline const Chord cMajor{tonelake::Note::C, "major", 0};
inline const Chord dMinor{tonelake::Note::D, "minor", 0};
inline const Chord fMajor{tonelake::Note::F, "major", 0};

inline ChordView openC() {
  return viewOf(cMajor, {-1, 3, 2, 0, 1, 0}, {0, 3, 2, 0, 1, 0});
}
inline ChordView barreF() {
  return viewOf(fMajor, {1, 3, 3, 2, 1, 1}, {1, 3, 4, 2, 1, 1});
}
inline ChordView highDm() {
  return viewOf(dMinor, {-1, 5, 7, 7, 6, 5}, {0, 1, 3, 4, 2, 1});
}

/// Every shape of chords that between them have barres, inner muted strings, high frets and names
/// of one to three characters.
inline std::vector<ChordView> manyViews() {
  using tonelake::Note;
  std::vector<ChordView> views;
  for (const Chord& chord : {cMajor, fMajor, Chord{Note::Fs, "minor 7th flat 5", 0},
                             Chord{Note::C, "diminished 7th", 0}, Chord{Note::Ef, "major 9", 0}}) {
    for (const auto& shape :
         tonelake::Chords::getChordPositions(chord, -1, tonelake::Tuning::standard)) {
      views.push_back(viewOf(chord, {shape.position.begin(), shape.position.end()},
                             {shape.fingering.begin(), shape.fingering.end()}));
    }
  }
  return views;
}

}  // namespace todaychord::testing
