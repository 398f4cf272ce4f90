"""The two sounds of the buttons: 16 bit, one channel, 22050 samples a second."""
import math
import struct
import wave

RATE = 22050


def save_wave(path, samples):
    with wave.open(str(path), "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(2)
        sound.setframerate(RATE)
        sound.writeframes(b"".join(struct.pack("<h", round(s * 32767)) for s in samples))


def two_tone():
    """Two soft tones, a fourth apart, that flow into each other: 120 ms."""
    samples = []
    count = RATE * 120 // 1000
    for i in range(count):
        at = i / RATE
        value = 0.0
        for pitch, begin, length in ((659.26, 0.0, 0.075), (880.0, 0.045, 0.075)):
            share = (at - begin) / length
            if 0 <= share <= 1:
                swell = math.sin(math.pi * share ** 0.6) ** 2
                phase = 2 * math.pi * pitch * (at - begin)
                value += swell * (math.sin(phase) + 0.18 * math.sin(2 * phase))
        samples.append(0.2 * value)
    return samples


def click():
    """A short knock that dies away: 30 ms."""
    count = RATE * 30 // 1000
    samples = []
    for i in range(count):
        at = i / RATE
        attack = min(1.0, i / 12)
        end = min(1.0, (count - 1 - i) / 60)
        knock = (math.sin(2 * math.pi * 1450 * at) * math.exp(-at * 260)
                 + 0.7 * math.sin(2 * math.pi * 430 * at) * math.exp(-at * 150))
        samples.append(0.24 * attack * end * knock)
    return samples
