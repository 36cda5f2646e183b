#include "Desktop/midi_file.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <smf.h>

#include "Desktop/c_pointer.h"
#include "Desktop/files.h"
#include "Desktop/general_midi.h"
#include "Desktop/memory_file.h"
#include "Desktop/translation.h"

namespace desktop {
namespace {

using tonelake::DrumEvent;
using tonelake::NoteEvent;
using tonelake::Performance;
using tonelake::WholeNumber;

using SmfPointer = CPointer<smf_t, smf_delete>;

constexpr int bassChannel = 6;
// A demisemiquaver: drums die away by themselves, however short their key is held.
constexpr WholeNumber drumLength = tonelake::ticksPerCrotchet / 8;
constexpr std::size_t largestFile = std::size_t{1} << 30U;

// First bytes of MIDI messages; the low half of the first three is the channel.
constexpr int noteOn = 0x90;
constexpr int controlChange = 0xB0;
constexpr int programChange = 0xC0;
constexpr int metaEvent = 0xFF;
constexpr int trackName = 0x03;
constexpr int tempoChange = 0x51;
constexpr int timeSignature = 0x58;

constexpr int volumeControl = 7;
constexpr int panControl = 10;

// A part's place in the mix: volume and, from 0, left, to 127, the place between the speakers.
struct Sound {
  int program;
  int volume;
  int pan;
};
constexpr Sound guitarSound{general_midi::steelGuitar, 96, 54};
constexpr Sound bassSound{general_midi::fingeredBass, 90, 66};
constexpr Sound drumSound{general_midi::standardDrumKit, 115, 64};

// A key that goes down or, with velocity 0, up.
struct Key {
  WholeNumber tick;
  int velocity;
  int channel;
  int number;

  // Keys go up before others go down, so that a note struck again is not cut off.
  auto rank() const { return std::tuple(tick, velocity > 0); }
};

[[noreturn]] void failToWrite() {
  throw std::runtime_error(translated("there is no room for a MIDI file"));
}

void add(smf_track_t* track, WholeNumber tick, std::initializer_list<int> bytes) {
  std::array<unsigned char, 8> message{};
  std::transform(bytes.begin(), bytes.end(), message.begin(),
                 [](int byte) { return static_cast<unsigned char>(byte); });
  smf_event_t* event = smf_event_new_from_pointer(message.data(), static_cast<int>(bytes.size()));
  if (event == nullptr) failToWrite();
  smf_track_add_event_pulses(track, event, static_cast<int>(tick));
}

smf_track_t* addTrack(smf_t* file, const std::string& name) {
  smf_track_t* track = smf_track_new();
  if (track == nullptr) failToWrite();
  smf_add_track(file, track);
  smf_event_t* event = smf_event_new_textual(trackName, name.c_str());
  if (event == nullptr) failToWrite();
  smf_track_add_event_pulses(track, event, 0);
  return track;
}

void endTrack(smf_track_t* track, WholeNumber tick) {
  if (smf_track_add_eot_pulses(track, static_cast<int>(tick)) != 0) failToWrite();
}

void addConductor(smf_t* file, const Performance& performance, const std::string& title,
                  WholeNumber end) {
  constexpr WholeNumber microsecondsPerMinute = 60'000'000;
  constexpr int lowByte = 0xFF;
  smf_track_t* track = addTrack(file, title);
  const auto crotchet = static_cast<int>(microsecondsPerMinute / performance.tempo);
  add(track, 0,
      {metaEvent, tempoChange, 3, crotchet >> 16, (crotchet >> 8) & lowByte, crotchet & lowByte});
  const int beats = performance.timeSignature == tonelake::TimeSignature::ts_34 ? 3 : 4;
  // Crotchet beats (2 to the power of 2), a click each (24 MIDI clocks), 8 demisemiquavers long.
  add(track, 0, {metaEvent, timeSignature, 4, beats, 2, 24, 8});
  endTrack(track, end);
}

void addKeys(std::vector<Key>& keys, const NoteEvent& event, int channel) {
  keys.push_back({event.sounds(), event.velocity, channel, event.noteNumber});
  keys.push_back({event.end(), 0, channel, event.noteNumber});
}

void addPart(smf_t* file, const std::string& name, const Sound& sound, std::vector<Key> keys,
             std::initializer_list<int> channels, WholeNumber end) {
  if (keys.empty()) return;
  smf_track_t* track = addTrack(file, name);
  for (const int channel : channels) {
    add(track, 0, {programChange | channel, sound.program});
    add(track, 0, {controlChange | channel, volumeControl, sound.volume});
    add(track, 0, {controlChange | channel, panControl, sound.pan});
  }
  std::stable_sort(keys.begin(), keys.end(),
                   [](const Key& a, const Key& b) { return a.rank() < b.rank(); });
  for (const Key& key : keys) {
    add(track, key.tick, {noteOn | key.channel, key.number, key.velocity});
  }
  endTrack(track, end);
}

// The library writes to a path only.
std::string contentsOf(smf_t* file) {
  const MemoryFile memory("zyndle.mid");
  if (!memory.isOpen() || smf_save(file, memory.path().c_str()) != 0) failToWrite();
  auto contents = readFile(memory.path(), largestFile);
  if (!contents) failToWrite();
  return std::move(*contents);
}

}  // namespace

std::string midiFile(const Performance& performance, const std::string& title) {
  const SmfPointer file(smf_new());
  if (file == nullptr || smf_set_format(file.get(), 1) != 0 ||
      smf_set_ppqn(file.get(), static_cast<int>(tonelake::ticksPerCrotchet)) != 0) {
    failToWrite();
  }
  const WholeNumber end = performance.length;
  addConductor(file.get(), performance, title, end);
  std::vector<Key> guitar;
  for (const NoteEvent& event : performance.guitar) addKeys(guitar, event, event.string);
  addPart(file.get(), "Guitar", guitarSound, guitar, {0, 1, 2, 3, 4, 5}, end);
  std::vector<Key> bass;
  for (const NoteEvent& event : performance.bass) addKeys(bass, event, bassChannel);
  addPart(file.get(), "Bass", bassSound, bass, {bassChannel}, end);
  std::vector<Key> drums;
  for (const DrumEvent& event : performance.drums) {
    const int number = general_midi::drumNote(event.type);
    drums.push_back({event.start, event.velocity, general_midi::drumChannel, number});
    drums.push_back({event.start + drumLength, 0, general_midi::drumChannel, number});
  }
  addPart(file.get(), "Drums", drumSound, drums, {general_midi::drumChannel}, end);
  return contentsOf(file.get());
}

}  // namespace desktop
