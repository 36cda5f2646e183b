#pragma once

#include <string>
#include <vector>

#include "Tonelake/theory/frets.h"

namespace benchmarks {

/// A shape as a chord book prints it, in standard tuning.
struct PublishedShape {
  std::string root;
  std::string chordType;
  tonelake::Frets frets{};
  tonelake::Fingers fingers{};
};

/// Reads a file of one JSON record a line, lowest string first:
///
///   {"root": "C", "chordType": "major", "position": [-1,3,2,0,1,0], "fingering": [0,3,2,0,1,0]}
///
/// Throws std::runtime_error, which names the file and the line, when it cannot or there is none.
std::vector<PublishedShape> readPublishedShapes(const std::string& path);

}  // namespace benchmarks
