"""Prints what a MIDI file holds, as another library reads it: read_midi.py FILE"""

import sys

import mido

song = mido.MidiFile(sys.argv[1], charset="utf8")
print(f"format {song.type}, {song.ticks_per_beat} ticks, {song.length:.3f} seconds")
for track in song.tracks:
    tick = 0
    held = set()
    notes = []
    settings = set()
    channels = set()
    for message in track:
        tick += message.time
        if message.type == "set_tempo":
            settings.add(f"tempo {message.tempo}")
        elif message.type == "time_signature":
            settings.add(f"metre {message.numerator}/{message.denominator}")
        elif message.type == "program_change":
            settings.add(f"program {message.program}")
        elif message.type in ("note_on", "note_off"):
            key = (message.channel, message.note)
            channels.add(message.channel + 1)
            if message.type == "note_on" and message.velocity > 0:
                assert key not in held, f"struck while it sounds: {key} at {tick}"
                held.add(key)
                notes.append(message.note)
            else:
                held.remove(key)
    assert not held, f"never released: {held}"
    print(f"{track.name}: {', '.join(sorted(settings))}; {len(notes)} notes {sorted(set(notes))}"
          f" on {sorted(channels)}; ends at {tick}")
