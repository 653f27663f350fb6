#!/usr/bin/python3
"""apart.py FOLDER [BRON.CFG] - can a player tell the weapons in FOLDER by their sounds alone?

A sound is heard as a picture of 24 bands of the mel scale (50 Hz to 16 kHz) and 60 steps of 10 ms,
from its onset (the first sample above -40 dBFS) on, both channels together, in dB below its loudest
spot, down to -60 dB. The distance of two sounds is the root mean square of the difference of their
pictures. Any two weapons, in all their variants, must lie APART or more; two variants of one weapon
must differ, but less than two weapons do in the middle. Exit status 1 if any do not, 2 if it cannot
run."""
import itertools
import pathlib
import sys
import wave

import numpy as np

APART = 15.0
DIFFER = 1.5
RATE, FRAME, STEP, STEPS, BANDS, FLOOR = 44100, 2048, 441, 60, 24, -60.0


def samples(path):
    with wave.open(str(path)) as file:
        sound = np.frombuffer(file.readframes(file.getnframes()), "<i2").reshape(-1, file.getnchannels())
    return sound.mean(axis=1) / 32768


def filters():
    """One row a band: a triangle on the mel scale over the lines of the spectrum."""
    mel = np.linspace(*(2595 * np.log10(1 + np.array([50, 16000]) / 700)), BANDS + 2)
    edges = 700 * (10 ** (mel / 2595) - 1)
    lines = np.fft.rfftfreq(FRAME, 1 / RATE)
    low, middle, high = edges[:-2, None], edges[1:-1, None], edges[2:, None]
    return np.clip(np.minimum((lines - low) / (middle - low), (high - lines) / (high - middle)), 0, None)


def picture(path, bands=filters(), window=np.hanning(FRAME)):
    sound = samples(path)
    sound = sound[np.argmax(np.abs(sound) > 0.01):]
    sound = np.concatenate([sound, np.zeros(STEP * STEPS + FRAME)])
    frames = np.array([sound[STEP * i:STEP * i + FRAME] for i in range(STEPS + 1)])
    power = np.abs(np.fft.rfft(frames * window)) ** 2 @ bands.T
    level = 10 * np.log10(power + 1e-12)
    return np.maximum(level - level.max(), FLOOR)


def distance(one, other):
    return float(np.sqrt(np.mean((one - other) ** 2)))


def weapons(bron):
    """The names of the sounds, without .wav, in the order of the weapons file."""
    lines = bron.read_bytes().decode("cp1250").split("\r\n")
    melee = int(lines[0])
    ranged_at = 1 + 9 * melee
    ranged = int(lines[ranged_at])
    first = [2 + 9 * i for i in range(melee)] + [ranged_at + 2 + 9 * i for i in range(ranged)]
    return [lines[i].removesuffix(".wav") for i in first]


def nearest(some, others):
    """The smallest distance between two sets of pictures, with the names of the two."""
    return min((distance(some[a], others[b]), a, b) for a in some for b in others)


def main(folder, bron):
    heard = {}
    for name in weapons(bron):
        paths = [folder / f"{name}.wav", *sorted(folder.glob(f"{name}-[0-9].wav"))]
        heard[name] = {path.stem: picture(path) for path in paths}
    pairs = sorted(nearest(heard[a], heard[b]) for a, b in itertools.combinations(heard, 2))
    middle = pairs[len(pairs) // 2][0]
    faults = [f"{a} and {b} sound alike: {d:.1f}" for d, a, b in pairs if d < APART]
    for variants in heard.values():
        for a, b in itertools.combinations(variants, 2):
            d = distance(variants[a], variants[b])
            if not DIFFER <= d < middle:
                faults.append(f"{a} and {b} should be variants of one sound: {d:.1f}")
    for d, a, b in pairs[:5]:
        print(f"{d:5.1f}  {a} {b}")
    print("\n".join(faults + [f"{len(pairs)} pairs of weapons: {pairs[0][0]:.1f} or more apart, {middle:.1f} in the middle"]))
    return 1 if faults else 0


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        print("usage: apart.py FOLDER [BRON.CFG]", file=sys.stderr)
        sys.exit(2)
    here = pathlib.Path(__file__).parent
    try:
        status = main(*map(pathlib.Path, (sys.argv[1:] + [here / "../../assets/bron.cfg"])[:2]))
    except (OSError, EOFError, ValueError, wave.Error) as fault:
        print(f"apart.py: {fault!r}", file=sys.stderr)
        status = 2
    sys.exit(status)
