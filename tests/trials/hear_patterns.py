#!/usr/bin/env python3
"""Renders every built-in pattern to sound and listens to it.

    tests/trials/hear_patterns.py build/release/zyndle/zyndle

Not one of the tests: it takes minutes, and the soundfont (fluid-soundfont-gm) is
140 MB. Each arpeggio is heard with its bass and drums, each bass line and each
groove alone, over four chords. Wrong is a file that is silent, one that
is clipped (two samples in a row at the edge), and one whose end has not died
away. Prints a line for each and fails when one is wrong.
"""

import array
import itertools
import math
import subprocess
import sys
import tempfile
import wave
from pathlib import Path

CHORDS = "C G/B Am7 Fmaj7"
EDGE = 32767
SILENCE = 1e-9


def decibels(samples):
    power = sum(sample * sample for sample in samples) / max(1, len(samples))
    return 10 * math.log10(max(power / EDGE ** 2, SILENCE))


def listen(path):
    """(loudest sample, level, level of the last half second, why it is wrong or "")."""
    with wave.open(str(path)) as sound:
        samples = array.array("h", sound.readframes(sound.getnframes()))
        second = sound.getframerate() * sound.getnchannels()
    peak = max(map(abs, samples), default=0)
    level = decibels(samples)
    tail = decibels(samples[-second // 2:])
    left = samples[::2]
    is_clipped = any(abs(a) >= EDGE and abs(b) >= EDGE for a, b in itertools.pairwise(left))
    faults = [name for name, is_wrong in (("silent", level < -60), ("clipped", is_clipped),
                                          ("does not die away", tail > -60)) if is_wrong]
    return peak / EDGE, level, tail, ", ".join(faults)


def read_patterns(zyndle):
    """(kind, name, metre) of every pattern."""
    text = subprocess.run([zyndle, "patterns"], check=True, capture_output=True, text=True).stdout
    for kind, block in zip(("style", "bass", "drums"), text.split("\n\n")):
        for line in block.splitlines()[1:]:
            name, timing = line.strip().rsplit("  ", 1)
            yield kind, name.strip(), timing[:3]


def arguments_for(kind, name, metre):
    if kind == "style":
        return ["--style", name, "--complexity", "3"]
    base = ["--no-guitar", "--style", "Rolling Six" if metre == "3/4" else "Campfire Strum"]
    other = "drums" if kind == "bass" else "bass"
    return base + [f"--{kind}", name, f"--{other}", "none"]


def main(zyndle):
    failures = 0
    with tempfile.TemporaryDirectory() as folder:
        path = Path(folder) / "song.wav"
        for kind, name, metre in read_patterns(zyndle):
            subprocess.run([zyndle, "jam", CHORDS, "--bars", "4", "-o", path,
                            *arguments_for(kind, name, metre)],
                           check=True, stdout=subprocess.DEVNULL)
            peak, level, tail, fault = listen(path)
            failures += bool(fault)
            print(f"{kind:6} {name:26} peak {peak:.2f}  level {level:5.1f} dB  "
                  f"tail {tail:5.1f} dB  {fault}", flush=True)
    return failures


if __name__ == "__main__":
    sys.exit(1 if main(sys.argv[1]) else 0)
