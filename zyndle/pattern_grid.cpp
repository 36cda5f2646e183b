#include "zyndle/pattern_grid.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <span>
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

struct Grid {
  WholeNumber bar;         // ticks
  WholeNumber length = 0;  // ticks
  // The signs by their rows and ticks; where two fall together the first is shown.
  std::map<std::pair<std::string_view, WholeNumber>, char> marks;

  void mark(std::string_view row, char sign) { marks.emplace(std::pair(row, length), sign); }
};

// From the top of the grid to its bottom, as the strings and the drum kit lie.
constexpr std::array<std::string_view, 8> arpeggioRows{
    // TRANSLATORS: this and the next seven are rows of a picking grid: what the right hand does.
    message("downstroke"),
    message("upstroke"),
    // TRANSLATORS: a row of a picking grid: the three highest strings together.
    message("upper three"),
    // TRANSLATORS: a row of a picking grid: a finger plucks the next string towards the floor.
    message("finger down"),
    message("finger up"),
    // TRANSLATORS: a row of a picking grid: the alternate bass string of the thumb.
    message("alternate"),
    message("thumb"),
    // TRANSLATORS: a row of a picking grid: silence.
    message("rest"),
};
constexpr std::array<std::string_view, 4> bassRows{
    // TRANSLATORS: this and the next three are rows of a bass grid: tones of the chord.
    message("octave"), message("fifth"), message("third"), message("root")};

struct DrumRow {
  DrumNoteType type;
  std::string_view label;
};
constexpr std::array<DrumRow, 11> drumRows{{
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

char signOf(NoteArticulation articulation, WholeNumber velocity) {
  constexpr WholeNumber loud = 96;
  constexpr WholeNumber medium = 60;
  if (articulation == NoteArticulation::mute) return 'x';
  if (velocity >= loud) return 'O';
  return velocity >= medium ? 'o' : '.';
}

// What a note is called beside the others of its step: with iii, d and u are strokes.
std::string_view rowOf(const tonelake::ArpeggioNote& note, std::string_view stroke) {
  switch (note.arpeggioDirection) {
    case ArpeggioDirection::t:
      return "thumb";
    case ArpeggioDirection::b:
      return "alternate";
    case ArpeggioDirection::r:
      return "rest";
    case ArpeggioDirection::d:
      return stroke.empty() ? "finger down" : stroke;
    case ArpeggioDirection::u:
      return stroke.empty() ? "finger up" : stroke;
    case ArpeggioDirection::iii:
      break;
  }
  return stroke.empty() ? "upper three" : stroke;
}

bool holds(const tonelake::ArpeggioStep& step, ArpeggioDirection direction) {
  return std::any_of(step.begin(), step.end(), [direction](const tonelake::ArpeggioNote& note) {
    return note.arpeggioDirection == direction;
  });
}

std::string_view strokeOf(const tonelake::ArpeggioStep& step) {
  if (!holds(step, ArpeggioDirection::iii)) return "";
  if (holds(step, ArpeggioDirection::d)) return "downstroke";
  return holds(step, ArpeggioDirection::u) ? "upstroke" : "";
}

void addMarks(Grid& grid, const tonelake::ArpeggioStep& step) {
  const std::string_view stroke = strokeOf(step);
  for (const tonelake::ArpeggioNote& note : step) {
    const bool isRest = note.arpeggioDirection == ArpeggioDirection::r;
    if (!isRest && note.noteVelocity == 0) continue;
    const char sign = isRest ? '*' : signOf(note.noteArticulation, note.noteVelocity);
    grid.mark(rowOf(note, stroke), sign);
  }
}

void addMarks(Grid& grid, const tonelake::BassNote& note) {
  if (note.pitch == BassPitch::rest || note.noteVelocity <= 0) return;
  grid.mark(tonelake::caseName(note.pitch), signOf(note.noteArticulation, note.noteVelocity));
}

void addMarks(Grid& grid, const tonelake::DrumNote& note) {
  for (const tonelake::DrumMIDINote& voice : note.drumMIDINote) {
    for (const DrumRow& row : drumRows) {
      if (row.type != voice.noteType || voice.noteVelocity == 0) continue;
      grid.mark(row.label, signOf(NoteArticulation::pick, voice.noteVelocity));
    }
  }
}

template <typename Step>
Grid layOut(const std::vector<Step>& steps, tonelake::TimeSignature timeSignature) {
  Grid grid{tonelake::ticksOfBar(timeSignature), 0, {}};
  for (const Step& step : steps) {
    addMarks(grid, step);
    grid.length += tonelake::lengthOf(step);
  }
  return grid;
}

// The time from column to column: as fine as the pattern is, and no coarser than a beat.
WholeNumber columnOf(const Grid& grid) {
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

std::string labelText(std::string_view row) {
  return strings()->localized(row);
}

std::string padded(std::string text, std::size_t width) {
  const std::size_t columns = countColumns(text);
  return text.append(width > columns ? width - columns : 0, ' ');
}

// The columns of one row from a tick up to another, a bar line before every bar.
template <typename SignAt>
std::string rowText(std::string_view label, const Grid& grid, WholeNumber begin, WholeNumber end,
                    WholeNumber column, SignAt signAt) {
  std::string text(label);
  for (WholeNumber tick = begin; tick < end; tick += column) {
    text += tick % grid.bar == 0 ? '|' : ' ';
    text += signAt(tick);
  }
  return text + "\n";
}

char signAt(const Grid& grid, std::string_view row, WholeNumber tick) {
  const auto found = grid.marks.find({row, tick});
  return found == grid.marks.end() ? '-' : found->second;
}

bool isUsed(const Grid& grid, std::string_view row) {
  const auto first = grid.marks.lower_bound({row, 0});
  return first != grid.marks.end() && first->first.first == row;
}

std::size_t widthOfLabels(const Grid& grid, std::span<const std::string_view> rows) {
  std::size_t width = leastLabelWidth;
  for (const std::string_view row : rows) {
    if (isUsed(grid, row)) width = std::max(width, countColumns(labelText(row)) + 1);
  }
  return width;
}

std::string draw(const Grid& grid, std::span<const std::string_view> rows) {
  if (grid.length == 0) return translated("It takes no time.") + '\n';
  const std::size_t labelWidth = widthOfLabels(grid, rows);
  const WholeNumber column = columnOf(grid);
  const WholeNumber room = static_cast<WholeNumber>((pageWidth - labelWidth) / 2) * column;
  const WholeNumber atOnce = std::max<WholeNumber>(1, room / grid.bar) * grid.bar;
  std::string text;
  for (WholeNumber begin = 0; begin < grid.length; begin += atOnce) {
    const WholeNumber end = std::min(grid.length, begin + atOnce);
    if (begin > 0) text += "\n";
    text += rowText(padded("", labelWidth), grid, begin, end, column,
                    [&](WholeNumber tick) { return countSign(tick % grid.bar, column); });
    for (const std::string_view row : rows) {
      if (!isUsed(grid, row)) continue;
      text += rowText(padded(labelText(row), labelWidth), grid, begin, end, column,
                      [&](WholeNumber tick) { return signAt(grid, row, tick); });
    }
  }
  return text;
}

}  // namespace

std::string gridLegend() {
  return translated("O loud   o medium   . soft   x muted") + '\n';
}

std::string drawGrid(const tonelake::ArpeggioSequence& pattern) {
  return draw(layOut(pattern.sequence, pattern.timeSignature), arpeggioRows);
}

std::string drawGrid(const tonelake::BassPattern& pattern) {
  return draw(layOut(pattern.bassNotes, pattern.timeSignature), bassRows);
}

std::string drawGrid(const tonelake::DrumPattern& pattern) {
  std::array<std::string_view, drumRows.size()> labels;
  std::transform(drumRows.begin(), drumRows.end(), labels.begin(),
                 [](const DrumRow& row) { return row.label; });
  return draw(layOut(pattern.drumNotes, pattern.timeSignature), labels);
}

}  // namespace zyndle
