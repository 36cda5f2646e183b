"""Chord names as the week texts write them, and the tones they stand for."""

import json
import re
from typing import NamedTuple

# The roots the library offers; the same letters with '#' and 'b' in the texts.
ROOTS = "C D E F G A B C♯ D♯ F♯ G♯ A♯ D♭ E♭ G♭ A♭ B♭".split()

LETTERS = "CDEFGAB"
PITCH_OF_LETTER = (0, 2, 4, 5, 7, 9, 11)
ACCIDENTALS = {"": 0, "♯": 1, "♭": -1, "♭♭": -2}

# Raised and lowered tones may need a double accidental under a good root:
# the sharp nine of E7♯9 is F𝄪, the flat nine of A♭7♭9 is B♭♭.
ALTERED_DEGREES = {"♭5", "♯5", "♭9", "♯9", "♭♭7"}


class ChordType(NamedTuple):
    """One row of the chord-type dictionary: its key, semitones and degrees."""

    key: str
    semitones: tuple
    degrees: tuple


class Chord(NamedTuple):
    root: str
    type: ChordType

    @property
    def record(self):
        return {"rootNote": self.root, "chordType": self.type.key, "variant": 0}

    @property
    def title(self):
        return f"{self.root} {self.type.key}"

    @property
    def tones(self):
        """Pitch classes: equal for D♯ minor and E♭ minor, and for the two
        types that name the same minor sixth."""
        return tuple(sorted({(pitch(self.root) + s) % 12 for s in self.type.semitones}))

    @property
    def sound(self):
        """What the ear takes for the same chord: equal bass and equal tones."""
        return pitch(self.root), self.tones

    @property
    def required_tones(self):
        """All tones, but for the perfect fifth of a chord of four or more."""
        fifth_may_go = len(self.type.semitones) >= 4 and 7 in self.type.semitones
        fifth = (pitch(self.root) + 7) % 12 if fifth_may_go else None
        return set(self.tones) - {fifth}

    def doubly_spelled_degrees(self):
        """The plain degrees that would need a double sharp or a double flat:
        the major third of A♯ is C𝄪, so B♭ is the better root."""
        first = LETTERS.index(self.root[0])
        awkward = []
        for degree, semitones in zip(self.type.degrees, self.type.semitones):
            number = int(degree.lstrip("♯♭"))
            natural = PITCH_OF_LETTER[(first + number - 1) % 7]
            needed = (pitch(self.root) + semitones - natural + 6) % 12 - 6
            if abs(needed) > 1 and degree not in ALTERED_DEGREES:
                awkward.append(degree)
        return awkward


def pitch(root):
    """Semitones of a root above C, 0 to 11."""
    return (PITCH_OF_LETTER[LETTERS.index(root[0])] + ACCIDENTALS[root[1:]]) % 12


class ChordNames:
    """Reads names such as "F#m7b5", with the suffixes of the dictionary file."""

    def __init__(self, dictionary_path):
        dictionary = json.loads(dictionary_path.read_text(encoding="utf-8"))
        self.types_by_suffix = {}
        for key, row in dictionary["chords"].items():
            degrees = tuple(row["formula"].split("-"))
            chord_type = ChordType(key, tuple(row["notes"]), degrees)
            # A type without further names has none, not an empty one: only the
            # major chord, whose text begins with a comma, is a bare root.
            others = row["other_names"].split(",") if row["other_names"] else []
            for suffix in {row["short"], *others}:
                self.types_by_suffix.setdefault(suffix, []).append(chord_type)

    def parse(self, name):
        """The chord of a name: "Ebmaj7" is E♭ major 7th. ValueError names what
        cannot be read; a suffix that two types claim, as "m6", is refused."""
        signs = name.replace("#", "♯").replace("b", "♭")
        match = re.fullmatch(r"([A-G][♯♭]?)(.*)", signs)
        if not match or match[1] not in ROOTS:
            raise ValueError(f"{name}: unknown root")
        types = self.types_by_suffix.get(match[2], [])
        if len(types) != 1:
            problem = "ambiguous" if types else "unknown"
            raise ValueError(f"{name}: {problem} chord type {match[2]!r}")
        return Chord(match[1], types[0])
