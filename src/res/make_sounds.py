#!/usr/bin/env python3
"""Makes the library's sounds and writes them beside this file: 16-bit mono, 22050 samples a second."""
import math
import pathlib
import random
import struct

RATE = 22050


def bell(t):
    """A small bell: partials that fade the sooner the higher they are."""
    partials = ((1.0, 880.0, 5.0), (0.6, 1760.0, 7.0), (0.35, 2647.0, 10.0), (0.2, 4752.0, 16.0))
    return sum(level * math.sin(2 * math.pi * pitch * t) * math.exp(-fade * t) for level, pitch, fade in partials) / 2.2


def clap(t, noise=random.Random(59)):
    """Two hands: a few bursts close together, then the room."""
    starts = (0.0, 0.011, 0.021)
    burst = sum(math.exp(-320 * (t - start)) for start in starts if t >= start)
    return noise.uniform(-1, 1) * min(0.5 * burst + 0.3 * math.exp(-38 * t), 1) * 0.8


def key(t, noise=random.Random(5)):
    """A key that goes down: a click over a short low knock."""
    return 0.5 * noise.uniform(-1, 1) * math.exp(-420 * t) + 0.6 * math.sin(2 * math.pi * 210 * t) * math.exp(-90 * t)


def samples(wave, seconds, fade=0.01):
    count = round(RATE * seconds)
    for i in range(count):
        ending = min((count - i) / (RATE * fade), 1)
        yield round(26000 * max(-1, min(1, wave(i / RATE))) * ending)


def wave_bytes(wave, seconds):
    data = b''.join(struct.pack('<h', sample) for sample in samples(wave, seconds))
    form = struct.pack('<HHIIHH', 1, 1, RATE, 2 * RATE, 2, 16)
    body = b'WAVE' + b'fmt ' + struct.pack('<I', len(form)) + form + b'data' + struct.pack('<I', len(data)) + data
    return b'RIFF' + struct.pack('<I', len(body)) + body


def main():
    folder = pathlib.Path(__file__).resolve().parent
    for name, wave, seconds in (('bell', bell, 0.7), ('clap', clap, 0.18), ('key', key, 0.06)):
        (folder / f'{name}.wav').write_bytes(wave_bytes(wave, seconds))


if __name__ == '__main__':
    main()
