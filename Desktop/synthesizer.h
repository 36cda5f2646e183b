#pragma once

#include <optional>
#include <string>

namespace desktop {

/// What turns MIDI files into sound: the program fluidsynth with the sampled instruments of a
/// soundfont.
struct Synthesizer {
  std::string program;    ///< its path
  std::string soundfont;  ///< the path of a .sf2 or .sf3 file
};

/// The synthesizer that is installed, with the soundfont at a path if one is given. Nothing when
/// there is none: `problem` then says what to install or what is wrong with the path.
std::optional<Synthesizer> findSynthesizer(const std::optional<std::string>& soundfont,
                                           std::string& problem);

/// Plays a MIDI file, given as its bytes, through the loudspeakers and waits for its end. What went
/// wrong, or "".
std::string playMidi(const Synthesizer& synthesizer, const std::string& midi);

/// Makes `wav` the bytes of a WAV file with the sound of a MIDI file: 16 bits, stereo, 44100 Hz,
/// `seconds` long at most. What went wrong, or "".
std::string renderMidi(const Synthesizer& synthesizer, const std::string& midi, int seconds,
                       std::string& wav);

}  // namespace desktop
