#!/usr/bin/env python3
"""Writes the libraries of accompaniment patterns from their grids.

    tools/patterns/expand_patterns.py            check and write
    tools/patterns/expand_patterns.py --check    check, and fail when a library
                                                 differs from its grids

Edit arpeggios.txt, basses.txt or drums.txt, run this, and commit both. A block
is a name after "=", the metre with the unit of a column, the description, for
arpeggios what goes with them ("NAME COMPLEXITY, ..."), and a row for each voice.
In a row a dot is nothing and a digit a stroke, from 1, soft, to 9, loud.

A voice with a star is muted. For arpeggios D is a downstroke over all strings
and U an upstroke over the upper ones; the other voices are as in the records.

Time between strokes that no single duration fills is filled up: with rests, or
in arpeggios with strokes through the air, so that strings ring on.

Ids are made from the names, so that a pattern keeps its id until it is renamed.
"""

import json
import sys
import uuid
from pathlib import Path

HERE = Path(__file__).resolve().parent
RESOURCES = HERE.parents[1] / "Tonelake" / "resources" / "patterns"

# Never change it: every id comes from it.
NAMESPACE = uuid.UUID("6f1d6a52-6c5e-4a0a-9d5b-3f1b7f0c2e11")

UNITS = {"minims": 0.5, "crotchets": 0.25, "quavers": 0.125, "semiquavers": 0.0625}
BAR = {"3/4": 0.75, "4/4": 1.0}

# Velocities of the digits; the steps are as wide as an ear tells apart.
VELOCITIES = dict(zip("123456789", (22, 34, 46, 58, 70, 80, 90, 101, 112)))

DRUMS = {"kick": 48, "sidestick": 49, "snare": 50, "rim": 52, "closedHH": 54, "openHH": 58,
         "lowTom": 57, "midTom": 59, "hiTom": 61, "crash": 63, "ride": 65}
REST = 0


class Fault(Exception):
    pass


def new_id(*names):
    return str(uuid.uuid5(NAMESPACE, "/".join(names)))


def read_blocks(path):
    """(name, metre, unit, description, links, rows) of every block of a text."""
    blocks = []
    for block in path.read_text(encoding="utf-8").split("\n= ")[1:]:
        name, timing, description, *lines = block.strip().splitlines()
        metre, unit = timing.split(" in ")
        links = {"bass": [], "drums": []}
        rows = {}
        for line in lines:
            voice, contents = line.split(maxsplit=1)
            if voice in links:
                links[voice] = [link.rsplit(" ", 1) for link in contents.split(", ")]
            else:
                rows[voice] = contents
        if len({len(row) for row in rows.values()}) != 1:
            raise Fault(f"{name}: the rows differ in length")
        length = len(next(iter(rows.values()))) * UNITS[unit]
        if length % BAR[metre]:
            raise Fault(f"{name}: does not fill whole bars")
        blocks.append((name, metre, UNITS[unit], description, links, rows))
    return blocks


def durations(length):
    """The durations that together fill `length`, the longest first."""
    parts = []
    while length:
        parts.append(max(d for d in (1.0, 0.5, 0.25, 0.125, 0.0625, 0.03125) if d <= length))
        length -= parts[-1]
    return parts


def columns_with_strokes(rows, unit):
    """(strokes, duration) of every step: strokes are (voice, velocity), none to fill up."""
    width = len(next(iter(rows.values())))
    starts = [i for i in range(width) if any(row[i] != "." for row in rows.values())]
    if starts[:1] != [0]:
        starts.insert(0, 0)
    for start, end in zip(starts, starts[1:] + [width]):
        strokes = [(voice, VELOCITIES[row[start]])
                   for voice, row in rows.items() if row[start] != "."]
        for duration in durations((end - start) * unit):
            yield strokes, duration
            strokes = []


def articulation(voice):
    return {"mute": {}} if voice.endswith("*") else {"pick": {}}


def arpeggio_note(direction, voice, velocity, duration):
    return {"noteDuration": duration, "arpeggioDirection": {direction: {}},
            "noteArticulation": articulation(voice), "noteVelocity": velocity}


def arpeggio_notes(voice, velocity, duration):
    """A stroke is two notes: the bass strings lead it down, the treble strings up."""
    plain = voice.rstrip("*")
    if plain == "D":
        return [arpeggio_note("d", voice, velocity, duration),
                arpeggio_note("iii", voice, velocity - 5, duration)]
    if plain == "U":
        return [arpeggio_note("iii", voice, velocity, duration),
                arpeggio_note("u", voice, velocity - 12, duration)]
    return [arpeggio_note(plain, voice, velocity, duration)]


def arpeggio_step(strokes, duration, is_resting):
    if not strokes:
        return [arpeggio_note("r" if is_resting else "iii", "", 0, duration)]
    return [note for voice, velocity in strokes
            for note in arpeggio_notes(voice, velocity if voice != "r" else 0, duration)]


def arpeggio_steps(rows, unit):
    is_resting = False
    for strokes, duration in columns_with_strokes(rows, unit):
        if strokes:
            is_resting = strokes[0][0] == "r"
        yield arpeggio_step(strokes, duration, is_resting)


def bass_steps(rows, unit):
    for strokes, duration in columns_with_strokes(rows, unit):
        voice, velocity = strokes[0] if strokes else ("rest", 0)
        yield {"noteDuration": duration, "pitch": {voice.rstrip("*"): {}},
               "noteArticulation": articulation(voice), "noteVelocity": velocity}


def drum_steps(rows, unit):
    for strokes, duration in columns_with_strokes(rows, unit):
        notes = [{"noteType": DRUMS[voice], "noteVelocity": velocity}
                 for voice, velocity in strokes]
        yield {"drumMIDINote": notes or [{"noteType": REST, "noteVelocity": 0}],
               "noteDuration": duration}


def links_of(kind, key, name, links):
    return [{"id": new_id("link", kind, name, linked), key: linked, "complexity": int(complexity)}
            for linked, complexity in links]


def expand(blocks, kind, steps_key, steps):
    records = []
    for name, metre, unit, description, links, rows in blocks:
        record = {"id": new_id(kind, name), "name": name, "description": description,
                  steps_key: list(steps(rows, unit)), "timeSignature": metre}
        if kind == "arpeggio":
            record["associatedBassPatterns"] = links_of("bass", "bassPattern", name,
                                                        links["bass"])
            record["associatedDrumPatterns"] = links_of("drums", "drumPattern", name,
                                                        links["drums"])
        records.append(record)
    return records


def compact(value):
    return json.dumps(value, ensure_ascii=False, separators=(",", ":"))


def written(value):
    """A list of objects or lists with one element a line, anything else in one line."""
    if isinstance(value, list) and value and not isinstance(value[0], (str, int, float)):
        return "[\n" + ",\n".join(compact(element) for element in value) + "]"
    return compact(value)


def library_text(key, records):
    texts = ["{" + ",\n".join(f"{compact(name)}:{written(value)}"
                              for name, value in record.items()) + "}" for record in records]
    return "{" + compact(key) + ":[\n" + ",\n\n".join(texts) + "\n]}\n"


def libraries():
    arpeggios, basses, drums = (read_blocks(HERE / f"{name}.txt")
                                for name in ("arpeggios", "basses", "drums"))
    return {
        "arpeggio_sequences.json": library_text(
            "sequences", expand(arpeggios, "arpeggio", "sequence", arpeggio_steps)),
        "bass_patterns.json": library_text(
            "bassPatterns", expand(basses, "bass", "bassNotes", bass_steps)),
        "drum_patterns.json": library_text(
            "drumPatterns", expand(drums, "drums", "drumNotes", drum_steps)),
    }


def main():
    texts = libraries()
    if sys.argv[1:] == ["--check"]:
        stale = [name for name, text in texts.items()
                 if (RESOURCES / name).read_text(encoding="utf-8") != text]
        for name in stale:
            print(f"{name} differs from its grids")
        return 1 if stale else 0
    for name, text in texts.items():
        (RESOURCES / name).write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except Fault as fault:
        sys.exit(str(fault))
