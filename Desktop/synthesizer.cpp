#include "Desktop/synthesizer.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include <unistd.h>

#include "Desktop/environment.h"
#include "Desktop/files.h"
#include "Desktop/memory_file.h"
#include "Desktop/program_start.h"
#include "Desktop/translation.h"
#include "Tonelake/foundation/text.h"

namespace desktop {
namespace {

constexpr const char* programName = "fluidsynth";
constexpr const char* advice = "apt-get install fluidsynth fluid-soundfont-gm";
constexpr const char* noMemory = tonelake::message("there is no memory left");

// Where Debian and others keep soundfonts with all instruments, in order of preference.
constexpr std::array soundfonts{
    "/usr/share/sounds/sf2/FluidR3_GM.sf2", "/usr/share/sounds/sf2/default-GM.sf2",
    "/usr/share/sounds/sf3/default-GM.sf3", "/usr/share/soundfonts/FluidR3_GM.sf2",
    "/usr/share/soundfonts/default.sf2",    "/usr/share/sounds/sf2/TimGM6mb.sf2",
};

// How loud, from 0 to 10. Loud strokes of all three players stay below the loudest a WAV file has.
constexpr const char* gain = "0.6";

// 16 bits, 44100 times a second, left and right.
constexpr std::size_t bytesPerSecond = 44100 * 2 * 2;
constexpr const char* nameOfWav = "zyndle.wav";
constexpr std::size_t largestWav = std::size_t{1} << 31U;  // 2 GiB: more than three hours

// Places in a WAV file.
constexpr std::size_t placeOfRiffLength = 4;
constexpr std::size_t placeOfDataLength = 40;
constexpr std::size_t placeOfSamples = 44;

bool isReadable(const std::string& path) {
  std::error_code error;  // of a folder that may not be read, for one
  return std::filesystem::is_regular_file(path, error) && ::access(path.c_str(), R_OK) == 0;
}

std::string findSoundfont() {
  for (const char* path : soundfonts) {
    if (isReadable(path)) return path;
  }
  return "";
}

// The last line that a program wrote, which tells best why it failed.
std::string lastLine(const std::string& text) {
  for (std::size_t end = text.size(); end > 0;) {
    const std::size_t begin = text.rfind('\n', end - 1) + 1;
    if (begin < end) return text.substr(begin, end - begin);
    end = begin - 1;
  }
  return "";
}

// Runs the synthesizer on a MIDI file; what went wrong, or "". It says much on standard output and
// takes commands from standard input, so it gets neither.
std::string run(const Synthesizer& synthesizer, std::vector<std::string> arguments,
                const std::string& midi) {
  const MemoryFile song("zyndle.mid");
  const MemoryFile log("zyndle.log");
  if (!song.isOpen() || !log.isOpen() || !song.write(midi)) return translated(noMemory);
  arguments.insert(arguments.begin(), synthesizer.program);
  arguments.push_back(synthesizer.soundfont);
  arguments.push_back(song.path());
  const auto program = startProgram(arguments, log.path());
  if (!program) {
    return translated("{0} cannot be started: {1}", synthesizer.program, std::strerror(errno));
  }
  const bool hasEndedWell = endsWell(*program);
  const std::string said = readFile(log.path(), SIZE_MAX).value_or("");
  // It may end well after it has failed to open the loudspeakers or the soundfont.
  const bool hasFailed = said.find("error:") != std::string::npos;
  if (hasEndedWell && !hasFailed) return "";
  return translated("{0} failed: {1}", synthesizer.program, lastLine(said));
}

// Four bytes at a place in a file, the lowest first.
std::size_t numberAt(const std::string& file, std::size_t place) {
  std::size_t number = 0;
  for (std::size_t i = 4; i-- > 0;) {
    number = number << 8U | static_cast<unsigned char>(file[place + i]);
  }
  return number;
}

void putNumberAt(std::string& file, std::size_t place, std::size_t number) {
  for (std::size_t i = 0; i < 4; ++i)
    file[place + i] = static_cast<char>(number >> (8 * i) & 0xFFU);
}

// The synthesizer waits for its last cymbal to fade long after nobody hears it: what comes after
// so many seconds is cut off. A WAV file begins with "RIFF", its length, "WAVE" and the format;
// then come "data", the length of the samples and these.
void cutWav(std::string& file, std::size_t seconds) {
  const std::size_t wanted = seconds * bytesPerSecond;
  if (numberAt(file, placeOfDataLength) <= wanted) return;
  putNumberAt(file, placeOfRiffLength, placeOfSamples + wanted - placeOfRiffLength - 4);
  putNumberAt(file, placeOfDataLength, wanted);
  file.resize(placeOfSamples + wanted);
}

}  // namespace

std::optional<Synthesizer> findSynthesizer(const std::optional<std::string>& soundfont,
                                           std::string& problem) {
  Synthesizer found{findProgram(programName).value_or(""), soundfont.value_or(findSoundfont())};
  if (found.program.empty() && found.soundfont.empty()) {
    problem =
        translated("sound needs the program fluidsynth and a soundfont; to install: {}", advice);
  } else if (found.program.empty()) {
    problem = translated("sound needs the program fluidsynth; to install: {}", advice);
  } else if (found.soundfont.empty()) {
    problem = translated("sound needs a soundfont; to install: {}", advice);
  } else if (!isReadable(found.soundfont)) {
    problem = translated("there is no soundfont {}", tonelake::quoted(found.soundfont));
  } else {
    return found;
  }
  return std::nullopt;
}

std::string playMidi(const Synthesizer& synthesizer, const std::string& midi) {
  return run(synthesizer, {"-n", "-i", "-q", "-g", gain}, midi);
}

std::string renderMidi(const Synthesizer& synthesizer, const std::string& midi, int seconds,
                       std::string& wav) {
  const MemoryFile sound(nameOfWav);
  if (!sound.isOpen()) return translated(noMemory);
  std::string problem = run(
      synthesizer,
      {"-n", "-i", "-q", "-g", gain, "-r", "44100", "-T", "wav", "-O", "s16", "-F", sound.path()},
      midi);
  if (!problem.empty()) return problem;
  auto file = readFile(sound.path(), largestWav);
  if (!file) return translated("cannot read {0}, or it is larger than {1}", nameOfWav, "2 GiB");
  wav = std::move(*file);
  if (wav.size() <= placeOfSamples) return translated("{} made no sound", synthesizer.program);
  cutWav(wav, static_cast<std::size_t>(seconds));
  return "";
}

}  // namespace desktop
