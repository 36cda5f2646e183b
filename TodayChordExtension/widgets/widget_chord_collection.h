#pragma once

#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"

namespace todaychord {

using tonelake::Chord;

/// A collection that the user made in the app. Its chords need not be showable.
struct WidgetChordCollection {
  std::string id;             ///< given by the app
  std::string title;          ///< what the user calls it; may be ""
  std::string imageName;      ///< an image of the app's own
  std::vector<Chord> chords;  ///< in the user's order

  friend bool operator==(const WidgetChordCollection&, const WidgetChordCollection&) = default;
};

}  // namespace todaychord
