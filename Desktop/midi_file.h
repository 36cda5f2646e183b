#pragma once

#include <string>

#include "Tonelake/accompaniment/performance.h"

namespace desktop {

/// A performance as the bytes of a Standard MIDI File of format 1. Its first track has `title`, the
/// tempo and the metre; "Guitar", "Bass" and "Drums" follow, each only where it has something to
/// play. The guitar has a channel for every string, 1 to 6, so that two strings may sound the same
/// note; the bass has channel 7 and the drums 10. Every track ends with the last bar.
/// `title` is UTF-8. Throws std::runtime_error when the machine has no room for the file.
std::string midiFile(const tonelake::Performance& performance, const std::string& title);

}  // namespace desktop
