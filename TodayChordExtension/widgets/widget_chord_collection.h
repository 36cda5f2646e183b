#pragma once

#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"

namespace todaychord {

using tonelake::Chord;

/// A collection that the user made in the app. Its chords need not be showable.
struct WidgetChordCollection {
  std::string id;
  std::string title;
  std::string imageName;
  std::vector<Chord> chords;

  friend bool operator==(const WidgetChordCollection&, const WidgetChordCollection&) = default;
};

}  // namespace todaychord
