#!/usr/bin/env python3
"""Writes the three chord-of-the-day lists from their week texts.

    tools/chord_lists/expand_chord_lists.py            check and write
    tools/chord_lists/expand_chord_lists.py --check    check, and fail when a
                                                       list differs from its text

Edit beginner.txt, advanced.txt or jazz.txt, run this, and commit both. A broken
rule is printed with its day; nothing is written then, and the exit status is 1.
"""

import json
import sys
from pathlib import Path

from chords import ChordNames, pitch

HERE = Path(__file__).resolve().parent
RESOURCES = HERE.parents[1] / "Tonelake" / "resources"

WEEKS = 52
DAYS = 366  # a leap year; the last entry is shown only then
LENGTHS_OF_YEAR = (365, 366)
DAYS_BETWEEN_REPEATS = 5

# Per list: least number of different chords, of chord types, of roots, and the
# largest share of entries that may need a barre (None: not judged).
RULES = {
    "beginner": (30, 5, 7, 0.5),
    "advanced": (150, 40, 17, None),
    "jazz": (150, 25, 12, None),
}

STANDARD_TUNING = tuple(pitch(name) for name in "EADGBE")
FINGERS = 4


def content_lines(path):
    """The lines of a text that are neither blank nor comments."""
    lines = (line.strip() for line in path.read_text(encoding="utf-8").splitlines())
    return [line for line in lines if line and not line.startswith("#")]


def read_weeks(path, names):
    """A list of (theme, chords), one a line of the text."""
    weeks = []
    for line in content_lines(path):
        theme, _, chords = line.rpartition(":")
        weeks.append((theme, [names.parse(name) for name in chords.split()]))
    return weeks


def read_shapes(names):
    """Frets by chord, lowest string first, None for a muted string."""
    shapes = {}
    for line in content_lines(HERE / "beginner_shapes.txt"):
        name, frets = line.split()
        shapes[names.parse(name)] = [None if f == "x" else int(f) for f in frets]
    return shapes


def needs_barre(frets):
    """More pressed strings than fingers: one finger has to lie across several."""
    return sum(fret not in (None, 0) for fret in frets) > FINGERS


def week_faults(weeks):
    """52 weeks of seven chords and a closing line of two, all with a theme."""
    if len(weeks) != WEEKS + 1:
        yield f"{len(weeks)} lines instead of {WEEKS} weeks and a closing line"
    for number, (theme, chords) in enumerate(weeks, start=1):
        due = 7 if number <= WEEKS else DAYS - 7 * WEEKS
        if not theme or len(chords) != due:
            yield f"week {number}: theme {theme!r}, {len(chords)} chords instead of {due}"
    themes = [theme for theme, _ in weeks]
    yield from (f"theme {t!r} is used twice" for t in set(themes) if themes.count(t) > 1)


def repeat_faults(chords):
    """Five days between repeats, also over New Year of a common and a leap year."""
    for length in LENGTHS_OF_YEAR:
        for day in range(length):
            for later in range(1, DAYS_BETWEEN_REPEATS + 1):
                other = chords[(day + later) % length]
                if chords[day].sound == other.sound:
                    yield f"day {day + 1}: {other.title} again {later} days later ({length} days)"


def spelling_faults(chords):
    for day, chord in enumerate(chords, start=1):
        if chord.doubly_spelled_degrees():
            yield f"day {day}: {chord.title} needs double accidentals"


def shape_faults(chords, shapes):
    """Every beginner chord has its shape, and the shape sounds the chord."""
    yield from (f"no shape for {c.title}" for c in set(chords) - set(shapes))
    yield from (f"shape of {c.title} is never used" for c in set(shapes) - set(chords))
    for chord, frets in shapes.items():
        sounding = [
            (string + fret) % 12
            for string, fret in zip(STANDARD_TUNING, frets, strict=True)
            if fret is not None
        ]
        root_in_bass = sounding[0] == pitch(chord.root)
        if not (chord.required_tones <= set(sounding) <= set(chord.tones) and root_in_bass):
            yield f"shape of {chord.title} does not sound the chord"


def count_faults(category, counts):
    """Different chords, types and roots, and the share of barres."""
    *least, most_barres = RULES[category]
    *different, barres = counts
    for what, count, minimum in zip(("chords", "types", "roots"), different, least):
        if count < minimum:
            yield f"{count} different {what}, fewer than {minimum}"
    if most_barres is not None and barres > most_barres * DAYS:
        yield f"{barres} of {DAYS} entries need a barre"


def build_list(category, names):
    """The chords of one list, its counts and every broken rule."""
    weeks = read_weeks(HERE / f"{category}.txt", names)
    chords = [chord for _, week in weeks for chord in week]
    faults = list(week_faults(weeks))
    if faults:
        return chords, (), faults
    faults += [*repeat_faults(chords), *spelling_faults(chords)]
    barres = None
    if category == "beginner":
        shapes = read_shapes(names)
        faults += shape_faults(chords, shapes)
        barres = sum(needs_barre(shapes[chord]) for chord in chords if chord in shapes)
    different = (set(chords), {c.type for c in chords}, {c.root for c in chords})
    counts = (*map(len, different), barres)
    return chords, counts, faults + list(count_faults(category, counts))


def to_json(chords):
    rows = (json.dumps(c.record, ensure_ascii=False, separators=(",", ":")) for c in chords)
    return "[\n" + ",\n".join(rows) + "\n]\n"


def main(arguments):
    if arguments not in ([], ["--check"]):
        sys.exit(f"unknown arguments: {' '.join(arguments)}\n\n{__doc__}")
    names = ChordNames(RESOURCES / "chord_types.json")
    texts, faulty = {}, False
    for category in RULES:
        chords, counts, faults = build_list(category, names)
        path = RESOURCES / f"{category}_chords.json"
        texts[path] = to_json(chords)
        if arguments and not faults and path.read_text(encoding="utf-8") != texts[path]:
            faults = [f"{path.name} differs from {category}.txt"]
        for fault in faults:
            print(f"{category}: {fault}", file=sys.stderr)
        faulty = faulty or bool(faults)
        if counts:
            chord_count, type_count, root_count, barres = counts
            barre_text = "" if barres is None else f", {barres} entries need a barre"
            print(f"{category}: {chord_count} different chords, {type_count} types, "
                  f"{root_count} roots{barre_text}")
    if faulty:
        return 1
    if not arguments:
        for path, text in texts.items():
            path.write_text(text, encoding="utf-8", newline="\n")
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main(sys.argv[1:]))
    except (OSError, ValueError) as error:
        sys.exit(str(error))
