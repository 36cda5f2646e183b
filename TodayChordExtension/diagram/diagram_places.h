#pragma once

#include "TodayChordExtension/diagram/chord_view.h"

// Pure functions: any thread may call.
namespace todaychord {

// Places that several parts of the diagram share, in view space. Strings are counted in display
// order from the left, 0 to 5; rows from 1.

/// Where the middle of a string lies.
constexpr double stringX(int string) {
  return metrics::firstStringX + metrics::stringPitch * string;
}

/// Where the middle of a row lies.
constexpr double rowY(WholeNumber row) {
  return metrics::rowPitch * static_cast<double>(row) + metrics::rowCentre;
}

/// Whether there is such a string and such a row.
constexpr bool isOnBoard(int string, WholeNumber row) {
  return string >= 0 && string < metrics::stringCount && row >= 1 && row <= metrics::fretRows;
}

/// The number players give a string: 6 for the lowest, which is the rightmost for the left hand.
inline int stringNumber(int string, const ChordView& view) {
  return view.isLeftHanded ? string + 1 : metrics::stringCount - string;
}

/// The baseline that centres capitals and digits of `fontSize` on `centre`.
constexpr double baselineAround(double centre, double fontSize) {
  return centre + metrics::capitalHeight * fontSize / 2;
}

}  // namespace todaychord
