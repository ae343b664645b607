#!/usr/bin/env python3
"""Make the machine sounds in sound/: fast.wav, SLOW.wav and stop.wav.

Run:   python3 assets/make_sounds.py
Needs: Python 3 only.

The simulator plays each file in an endless loop. Every component is periodic
in the length of its file: tones, modulations and the lines of the noise all
run a whole number of cycles, so the end meets the beginning without a click.
The frequencies below are rounded to such whole numbers.
"""

import array
import cmath
import math
import random
import sys
import wave
from pathlib import Path

RATE = 22050  # samples per second
PEAK = 10 ** (-12 / 20)  # loudest sample as a fraction of full scale
FAST_LENGTH = 1 << 15  # samples, 1.5 s; powers of two for the transform
SLOW_LENGTH = 1 << 16  # 3 s
STOP_LENGTH = RATE // 2  # 0.5 s


def cycles(frequency, length):
    """The whole number of cycles in a file nearest to a frequency in Hz."""
    return round(frequency * length / RATE)


def tone(length, frequency, level, wobble=0.0, wobble_rate=1.0):
    """A sine whose phase swings by wobble radians, wobble_rate times a second."""
    n, m = cycles(frequency, length), cycles(wobble_rate, length)
    step = 2 * math.pi / length
    return [level * math.sin(n * step * i + wobble * math.sin(m * step * i))
            for i in range(length)]


def swell(samples, rate, depth):
    """The samples with their level swinging by depth, rate times a second."""
    length = len(samples)
    step = 2 * math.pi * cycles(rate, length) / length
    return [s * (1 + depth * math.sin(step * i)) for i, s in enumerate(samples)]


def transform(values):
    """Inverse Fourier transform without scaling; a power of two of values."""
    n = len(values)
    if n == 1:
        return values
    even, odd = transform(values[::2]), transform(values[1::2])
    turned = [cmath.rect(1, 2 * math.pi * k / n) * odd[k]
              for k in range(n // 2)]
    return [e + t for e, t in zip(even, turned)] + \
        [e - t for e, t in zip(even, turned)]


def noise(length, low, high, level, chance):
    """Circular noise of a mean level around the band from low to high, in Hz.

    All lines have a random phase; the band fades out over an octave on
    either side.
    """
    lines = [0j] * length
    for n in range(1, cycles(min(2 * high, RATE / 2 - 1), length)):
        frequency = n * RATE / length
        distance = max(math.log2(low / frequency),
                       math.log2(frequency / high), 0)
        if distance < 1:
            size = math.cos(distance * math.pi / 2) ** 2
            lines[n] = cmath.rect(size, chance.uniform(0, 2 * math.pi))
    samples = [value.real for value in transform(lines)]
    mean = math.sqrt(sum(s * s for s in samples) / length)
    return [level * s / mean for s in samples]


def chips(length, count, chance):
    """Level of breaking chips: bursts that die away, past the end as well."""
    level = [0.0] * length
    for _ in range(count):
        start, size = chance.randrange(length), chance.uniform(0.2, 1)
        for i in range(RATE // 25):
            level[(start + i) % length] += size * math.exp(-i * 200 / RATE)
    return level


def mix(*parts):
    return [sum(samples) for samples in zip(*parts)]


def fast():
    """Rapid traverse: the whine of the servo over the rumble of the ways."""
    chance = random.Random(1)
    length = FAST_LENGTH
    whine = mix(tone(length, 415, 0.30, 0.8, 5.4),
                tone(length, 830, 0.16, 1.6, 5.4),
                tone(length, 1245, 0.06, 2.4, 5.4),
                tone(length, 622, 0.10, 0.5, 3.4))
    rumble = swell(noise(length, 70, 220, 0.50, chance), 11, 0.35)
    rush = swell(noise(length, 500, 1600, 0.10, chance), 22, 0.25)
    return mix(swell(whine, 2.7, 0.12), rumble, rush)


def slow():
    """Cutting: the hum of the spindle and the hiss of the chips."""
    chance = random.Random(2)
    length = SLOW_LENGTH
    hum = mix(*(tone(length, 58 * n, level, 0.3, 1.0) for n, level in
                ((1, 0.30), (2, 0.42), (3, 0.22), (4, 0.16), (6, 0.08))))
    hiss = swell(noise(length, 2200, 5200, 0.11, chance), 1.35, 0.25)
    crackle = [a * b for a, b in zip(noise(length, 2800, 6500, 0.12, chance),
                                     chips(length, 90, chance))]
    bed = noise(length, 120, 400, 0.09, chance)
    return mix(swell(hum, 9.7, 0.08), hiss, crackle, bed)


def from_zero(samples):
    """The loop turned to begin at a zero crossing, so that it starts softly."""
    start = min(range(len(samples)),
                key=lambda i: abs(samples[i]) + abs(samples[i - 1]))
    return samples[start:] + samples[:start]


def check_loop(name, samples):
    """The step from the last to the first sample is no larger than most."""
    steps = sorted(abs(b - a) for a, b in zip(samples, samples[1:]))
    if abs(samples[0] - samples[-1]) > steps[len(steps) // 2]:
        sys.exit(f"{name}: the loop would click")


def write(name, samples):
    """A mono file of 16-bit samples, the loudest brought to PEAK."""
    top = max(map(abs, samples)) or 1
    data = array.array("h", (round(s / top * PEAK * 32767) for s in samples))
    check_loop(name, data)
    if sys.byteorder == "big":
        data.byteswap()
    with wave.open(str(name), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(data.tobytes())


def main():
    folder = Path(__file__).resolve().parent / "sound"
    folder.mkdir(exist_ok=True)
    write(folder / "fast.wav", from_zero(fast()))
    write(folder / "SLOW.wav", from_zero(slow()))
    write(folder / "stop.wav", [0] * STOP_LENGTH)


if __name__ == "__main__":
    main()
