#include "Desktop/synthesizer.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Desktop/files.h"
#include "Desktop/memory_file.h"
#include "Tonelake/foundation/text.h"

namespace desktop {
namespace {

constexpr const char* programName = "fluidsynth";
constexpr const char* advice = "; install them with: apt-get install fluidsynth fluid-soundfont-gm";

// Where Debian and others keep soundfonts with all instruments, in order of preference.
constexpr std::array soundfonts{
    "/usr/share/sounds/sf2/FluidR3_GM.sf2", "/usr/share/sounds/sf2/default-GM.sf2",
    "/usr/share/sounds/sf3/default-GM.sf3", "/usr/share/soundfonts/FluidR3_GM.sf2",
    "/usr/share/soundfonts/default.sf2",    "/usr/share/sounds/sf2/TimGM6mb.sf2",
};

// How loud, from 0 to 10. Loud strokes of all three players stay below the loudest a WAV file has.
constexpr const char* gain = "0.6";

std::string findProgram() {
  const char* path = std::getenv("PATH");
  for (const std::string_view folder : tonelake::split(path == nullptr ? "" : path, ':')) {
    std::string candidate = std::string(folder) + "/" + programName;
    if (!folder.empty() && ::access(candidate.c_str(), X_OK) == 0) return candidate;
  }
  return "";
}

bool isReadable(const std::string& path) {
  return std::filesystem::is_regular_file(path) && ::access(path.c_str(), R_OK) == 0;
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
  constexpr std::size_t longestLog = 1U << 20U;
  const MemoryFile song("zyndle.mid");
  const MemoryFile log("zyndle.log");
  if (!song.isOpen() || !log.isOpen() || !song.write(midi)) return "there is no memory left";
  arguments.insert(arguments.begin(), synthesizer.program);
  arguments.push_back(synthesizer.soundfont);
  arguments.push_back(song.path());
  std::vector<char*> list;
  for (std::string& argument : arguments) list.push_back(argument.data());
  list.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, log.path().c_str(), O_WRONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
  pid_t child = 0;
  const int error = ::posix_spawn(&child, list.front(), &actions, nullptr, list.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) return synthesizer.program + " cannot be started: " + std::strerror(error);
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
  const std::string said = readFile(log.path(), longestLog).value_or("");
  // It may end well after it has failed to open the loudspeakers or the soundfont.
  const bool hasFailed = said.find("error:") != std::string::npos;
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0 && !hasFailed) return "";
  return synthesizer.program + " failed: " + lastLine(said);
}

// Reads a number of four bytes, the lowest first, at a place in a file.
std::uint32_t numberAt(std::fstream& file, std::streamoff place) {
  std::array<unsigned char, 4> bytes{};
  file.seekg(place);
  file.read(reinterpret_cast<char*>(bytes.data()), bytes.size());
  return bytes[0] | bytes[1] << 8U | bytes[2] << 16U | static_cast<std::uint32_t>(bytes[3]) << 24U;
}

void putNumberAt(std::fstream& file, std::streamoff place, std::uint32_t number) {
  std::array<char, 4> bytes{};
  for (char& byte : bytes) {
    byte = static_cast<char>(number & 0xFFU);
    number >>= 8U;
  }
  file.seekp(place);
  file.write(bytes.data(), bytes.size());
}

// The synthesizer waits for its last cymbal to fade long after nobody hears it: what comes after
// so many seconds is cut off. Whether the file holds sound at all. It begins with "RIFF", its
// length, "WAVE" and the format; then come "data", the length of the samples and these.
bool cutWav(const std::string& path, int seconds) {
  constexpr std::uint32_t bytesPerSecond = 44100 * 2 * 2;
  constexpr std::streamoff riffLength = 4;
  constexpr std::streamoff dataLength = 40;
  constexpr std::streamoff samples = 44;
  std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
  const std::uint32_t length = numberAt(file, dataLength);
  const std::uint32_t wanted = static_cast<std::uint32_t>(seconds) * bytesPerSecond;
  if (!file || length == 0) return false;
  if (length <= wanted) return true;
  putNumberAt(file, dataLength, wanted);
  putNumberAt(file, riffLength, wanted + static_cast<std::uint32_t>(samples - riffLength - 4));
  file.close();
  std::error_code error;
  std::filesystem::resize_file(path, static_cast<std::uintmax_t>(samples) + wanted, error);
  return !error;
}

}  // namespace

std::optional<Synthesizer> findSynthesizer(const std::optional<std::string>& soundfont,
                                           std::string& problem) {
  Synthesizer found{findProgram(), soundfont.value_or(findSoundfont())};
  if (found.program.empty() && found.soundfont.empty()) {
    problem = std::string("sound needs the program fluidsynth and a soundfont") + advice;
  } else if (found.program.empty()) {
    problem = std::string("sound needs the program fluidsynth") + advice;
  } else if (found.soundfont.empty()) {
    problem = std::string("sound needs a soundfont") + advice;
  } else if (!isReadable(found.soundfont)) {
    problem = "there is no soundfont " + tonelake::quoted(found.soundfont);
  } else {
    return found;
  }
  return std::nullopt;
}

std::string playMidi(const Synthesizer& synthesizer, const std::string& midi) {
  return run(synthesizer, {"-n", "-i", "-q", "-g", gain}, midi);
}

std::string renderMidi(const Synthesizer& synthesizer, const std::string& midi,
                       const std::string& path, int seconds) {
  // Absolute, so that no name is taken for an option.
  const std::string problem = run(synthesizer,
                                  {"-n", "-i", "-q", "-g", gain, "-r", "44100", "-T", "wav", "-O",
                                   "s16", "-F", std::filesystem::absolute(path).string()},
                                  midi);
  return problem.empty() && !cutWav(path, seconds) ? "no sound was written to " + path : problem;
}

}  // namespace desktop
