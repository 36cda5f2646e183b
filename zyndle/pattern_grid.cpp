#include "zyndle/pattern_grid.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Tonelake/accompaniment/pattern_repetition.h"
#include "zyndle/text_columns.h"
#include "zyndle/text_layout.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::ArpeggioDirection;
using tonelake::BassPitch;
using tonelake::DrumNoteType;
using tonelake::NoteArticulation;
using tonelake::WholeNumber;

constexpr std::size_t leastLabelWidth = 12;

// What the right hand does, each in a row of its own.
enum class Picking : std::uint8_t {
  downstroke,
  upstroke,
  upperThree,
  fingerDown,
  fingerUp,
  alternate,
  thumb,
  rest,
};

template <typename Voice>
struct Row {
  Voice voice;
  const char* name;
};

// From the top of the grid to its bottom, as the strings and the drum kit lie.
constexpr std::array<Row<Picking>, 8> arpeggioRows{{
    // TRANSLATORS: this and the next seven are rows of a picking grid: what the right hand does.
    {Picking::downstroke, message("downstroke")},
    {Picking::upstroke, message("upstroke")},
    // TRANSLATORS: a row of a picking grid: the three highest strings together.
    {Picking::upperThree, message("upper three")},
    // TRANSLATORS: a row of a picking grid: a finger plucks the next string towards the floor.
    {Picking::fingerDown, message("finger down")},
    {Picking::fingerUp, message("finger up")},
    // TRANSLATORS: a row of a picking grid: the alternate bass string of the thumb.
    {Picking::alternate, message("alternate")},
    {Picking::thumb, message("thumb")},
    // TRANSLATORS: a row of a picking grid: silence.
    {Picking::rest, message("rest")},
}};
constexpr std::array<Row<BassPitch>, 4> bassRows{{
    // TRANSLATORS: this and the next three are rows of a bass grid: tones of the chord.
    {BassPitch::octave, message("octave")},
    {BassPitch::fifth, message("fifth")},
    {BassPitch::third, message("third")},
    {BassPitch::root, message("root")},
}};
constexpr std::array<Row<DrumNoteType>, 11> drumRows{{
    // TRANSLATORS: this and the next ten are rows of a drum grid.
    {DrumNoteType::crash, message("crash")},
    {DrumNoteType::ride, message("ride")},
    {DrumNoteType::openHH, message("open hat")},
    {DrumNoteType::closedHH, message("closed hat")},
    {DrumNoteType::hiTom, message("high tom")},
    {DrumNoteType::midTom, message("middle tom")},
    {DrumNoteType::lowTom, message("low tom")},
    {DrumNoteType::rim, message("rim shot")},
    {DrumNoteType::sidestick, message("side stick")},
    {DrumNoteType::snare, message("snare")},
    {DrumNoteType::kick, message("kick")},
}};

template <typename Voice>
struct Grid {
  WholeNumber bar;         // ticks
  WholeNumber length = 0;  // ticks
  // The signs by their voices and ticks; where two fall together the first is shown.
  std::map<std::pair<Voice, WholeNumber>, char> marks;

  void mark(Voice voice, char sign) { marks.emplace(std::pair(voice, length), sign); }
};

char signOf(NoteArticulation articulation, WholeNumber velocity) {
  constexpr WholeNumber loud = 96;
  constexpr WholeNumber medium = 60;
  if (articulation == NoteArticulation::mute) return 'x';
  if (velocity >= loud) return 'O';
  return velocity >= medium ? 'o' : '.';
}

bool holds(const tonelake::ArpeggioStep& step, ArpeggioDirection direction) {
  return std::any_of(step.begin(), step.end(), [direction](const tonelake::ArpeggioNote& note) {
    return note.arpeggioDirection == direction;
  });
}

// With iii among its notes, d and u make a step a stroke.
std::optional<Picking> strokeOf(const tonelake::ArpeggioStep& step) {
  if (!holds(step, ArpeggioDirection::iii)) return std::nullopt;
  if (holds(step, ArpeggioDirection::d)) return Picking::downstroke;
  if (holds(step, ArpeggioDirection::u)) return Picking::upstroke;
  return std::nullopt;
}

Picking pickingOf(const tonelake::ArpeggioNote& note, std::optional<Picking> stroke) {
  switch (note.arpeggioDirection) {
    case ArpeggioDirection::t:
      return Picking::thumb;
    case ArpeggioDirection::b:
      return Picking::alternate;
    case ArpeggioDirection::r:
      return Picking::rest;
    case ArpeggioDirection::d:
      return stroke.value_or(Picking::fingerDown);
    case ArpeggioDirection::u:
      return stroke.value_or(Picking::fingerUp);
    case ArpeggioDirection::iii:
      break;
  }
  return stroke.value_or(Picking::upperThree);
}

void addMarks(Grid<Picking>& grid, const tonelake::ArpeggioStep& step) {
  const std::optional<Picking> stroke = strokeOf(step);
  for (const tonelake::ArpeggioNote& note : step) {
    const bool isRest = note.arpeggioDirection == ArpeggioDirection::r;
    if (!isRest && note.noteVelocity == 0) continue;
    const char sign = isRest ? '*' : signOf(note.noteArticulation, note.noteVelocity);
    grid.mark(pickingOf(note, stroke), sign);
  }
}

void addMarks(Grid<BassPitch>& grid, const tonelake::BassNote& note) {
  if (note.pitch == BassPitch::rest || note.noteVelocity <= 0) return;
  grid.mark(note.pitch, signOf(note.noteArticulation, note.noteVelocity));
}

void addMarks(Grid<DrumNoteType>& grid, const tonelake::DrumNote& note) {
  for (const tonelake::DrumMIDINote& drum : note.drumMIDINote) {
    if (drum.noteType == DrumNoteType::rest || drum.noteVelocity == 0) continue;
    grid.mark(drum.noteType, signOf(NoteArticulation::pick, drum.noteVelocity));
  }
}

template <typename Voice, typename Step>
Grid<Voice> layOut(const std::vector<Step>& steps, tonelake::TimeSignature timeSignature) {
  Grid<Voice> grid{tonelake::ticksOfBar(timeSignature), 0, {}};
  for (const Step& step : steps) {
    addMarks(grid, step);
    grid.length += tonelake::lengthOf(step);
  }
  return grid;
}

// The time from column to column: as fine as the pattern is, and no coarser than a beat.
template <typename Voice>
WholeNumber columnOf(const Grid<Voice>& grid) {
  WholeNumber column = tonelake::ticksPerCrotchet;
  for (const auto& [place, sign] : grid.marks) column = std::gcd(column, place.second);
  return std::gcd(column, grid.length);
}

// How one counts within a beat of so many columns.
char countSign(WholeNumber tick, WholeNumber column) {
  constexpr WholeNumber beat = tonelake::ticksPerCrotchet;
  constexpr std::string_view fine = " . e . & . a .";
  const WholeNumber place = tick % beat * static_cast<WholeNumber>(fine.size() + 2) / beat;
  if (place == 0) return static_cast<char>('1' + tick / beat);
  return column == beat ? ' ' : fine[static_cast<std::size_t>(place - 1)];
}

std::string padded(std::string text, std::size_t width) {
  const std::size_t columns = countColumns(text);
  return text.append(width > columns ? width - columns : 0, ' ');
}

// The columns of one row from a tick up to another, a bar line before every bar.
template <typename SignAt>
std::string rowText(std::string_view label, WholeNumber bar, WholeNumber begin, WholeNumber end,
                    WholeNumber column, SignAt signAt) {
  std::string text(label);
  for (WholeNumber tick = begin; tick < end; tick += column) {
    text += tick % bar == 0 ? '|' : ' ';
    text += signAt(tick);
  }
  return text + "\n";
}

template <typename Voice>
char signAt(const Grid<Voice>& grid, Voice voice, WholeNumber tick) {
  const auto found = grid.marks.find({voice, tick});
  return found == grid.marks.end() ? '-' : found->second;
}

// The voices that do something, with their names in the language of this run.
template <typename Voice, std::size_t count>
std::vector<std::pair<Voice, std::string>> usedRows(const Grid<Voice>& grid,
                                                    const std::array<Row<Voice>, count>& rows) {
  std::vector<std::pair<Voice, std::string>> used;
  for (const Row<Voice>& row : rows) {
    const auto first = grid.marks.lower_bound({row.voice, 0});
    if (first == grid.marks.end() || first->first.first != row.voice) continue;
    used.emplace_back(row.voice, translated(row.name));
  }
  return used;
}

template <typename Voice, std::size_t count>
std::string draw(const Grid<Voice>& grid, const std::array<Row<Voice>, count>& rows) {
  if (grid.length == 0) return translated("It takes no time.") + '\n';
  const auto used = usedRows(grid, rows);
  std::size_t labelWidth = leastLabelWidth;
  for (const auto& [voice, name] : used) labelWidth = std::max(labelWidth, countColumns(name) + 1);
  const WholeNumber column = columnOf(grid);
  const WholeNumber room = static_cast<WholeNumber>((pageWidth - labelWidth) / 2) * column;
  const WholeNumber atOnce = std::max<WholeNumber>(1, room / grid.bar) * grid.bar;
  std::string text;
  for (WholeNumber begin = 0; begin < grid.length; begin += atOnce) {
    const WholeNumber end = std::min(grid.length, begin + atOnce);
    if (begin > 0) text += "\n";
    text += rowText(padded("", labelWidth), grid.bar, begin, end, column,
                    [&](WholeNumber tick) { return countSign(tick % grid.bar, column); });
    for (const auto& row : used) {
      text += rowText(padded(row.second, labelWidth), grid.bar, begin, end, column,
                      [&](WholeNumber tick) { return signAt(grid, row.first, tick); });
    }
  }
  return text;
}

}  // namespace

std::string gridLegend() {
  return translated("O loud   o medium   . soft   x muted   * rest") + '\n';
}

std::string drawGrid(const tonelake::ArpeggioSequence& pattern) {
  return draw(layOut<Picking>(pattern.sequence, pattern.timeSignature), arpeggioRows);
}

std::string drawGrid(const tonelake::BassPattern& pattern) {
  return draw(layOut<BassPitch>(pattern.bassNotes, pattern.timeSignature), bassRows);
}

std::string drawGrid(const tonelake::DrumPattern& pattern) {
  return draw(layOut<DrumNoteType>(pattern.drumNotes, pattern.timeSignature), drumRows);
}

}  // namespace zyndle
