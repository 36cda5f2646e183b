#pragma once

#include <algorithm>
#include <cstddef>

#include "Tonelake/accompaniment/accompaniment.h"

namespace tonelake {

/// When which chord is to be heard. Refers to the piece: keep that alive.
class ChordChart {
 public:
  /// Of a piece that outlives the chart.
  explicit ChordChart(const Accompaniment& piece)
      : chords_(&piece.chords),
        bar_(ticksOfBar(piece.arpeggio.timeSignature)),
        bars_(std::clamp<WholeNumber>(piece.bars, 0, mostBars)) {}

  /// Of the piece, in ticks; 0 without a chord.
  WholeNumber length() const { return chords_->empty() ? 0 : bars_ * bar_; }

  /// The chord at a tick before length().
  const ChordShape& at(WholeNumber tick) const { return ofBar(tick / bar_); }

  /// Where the chord of `tick` ends: at the next bar with another, or with the piece.
  WholeNumber endOfChord(WholeNumber tick) const {
    WholeNumber bar = tick / bar_ + 1;
    while (bar < bars_ && ofBar(bar) == at(tick)) ++bar;
    return bar * bar_;
  }

 private:
  const ChordShape& ofBar(WholeNumber bar) const {
    return (*chords_)[static_cast<std::size_t>(bar) % chords_->size()];
  }

  const std::vector<ChordShape>* chords_;
  WholeNumber bar_;
  WholeNumber bars_;
};

}  // namespace tonelake
