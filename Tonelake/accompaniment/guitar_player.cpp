#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "Tonelake/accompaniment/pattern_repetition.h"
#include "Tonelake/accompaniment/picking_hand.h"
#include "Tonelake/accompaniment/players.h"
#include "Tonelake/accompaniment/standard_pitches.h"

namespace tonelake {
namespace {

// The guitar's events, with the strings that still ring.
class Guitar {
 public:
  explicit Guitar(const ChordChart& chart) : chart_(&chart) {}

  void play(const HandMotion& motion, WholeNumber start) {
    if (motion.silencesStrings) silence(start);
    for (const Pluck& pluck : motion.plucks) strike(pluck, start);
  }

  std::vector<NoteEvent> finish() {
    silence(chart_->length());
    return std::move(events_);
  }

 private:
  static constexpr std::size_t none = SIZE_MAX;

  void strike(const Pluck& pluck, WholeNumber start) {
    const int velocity = playableVelocity(pluck.velocity);
    if (velocity == 0) return;  // through the air
    const auto string = static_cast<std::size_t>(pluck.string);
    silenceString(string, start + pluck.delay);
    const ChordShape& shape = chart_->at(start);
    events_.push_back({start, pluck.delay, muteLength, pitchOnString(shape, pluck.string), velocity,
                       pluck.string});
    if (pluck.articulation == NoteArticulation::pick) ringing_[string] = events_.size() - 1;
  }

  void silence(WholeNumber tick) {
    for (std::size_t string = 0; string < ringing_.size(); ++string) silenceString(string, tick);
  }

  void silenceString(std::size_t string, WholeNumber tick) {
    const std::size_t index = std::exchange(ringing_[string], none);
    if (index == none) return;
    NoteEvent& event = events_[index];
    event.length = std::min(tick, chart_->endOfChord(event.start)) - event.sounds();
  }

  const ChordChart* chart_;
  std::vector<NoteEvent> events_;
  std::array<std::size_t, Tuning::stringCount> ringing_{none, none, none, none, none, none};
};

}  // namespace

std::vector<NoteEvent> playGuitar(const ArpeggioSequence& arpeggio, const ChordChart& chart) {
  Guitar guitar(chart);
  PickingHand hand;
  repeatPattern(arpeggio.sequence, chart.length(),
                [&](const ArpeggioStep& step, WholeNumber start, bool isFirst) {
                  if (isFirst) hand = PickingHand();
                  guitar.play(hand.play(step, chart.at(start)), start);
                });
  return guitar.finish();
}

}  // namespace tonelake
