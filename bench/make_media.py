"""Makes the files of the media benchmark: MP3s with both tags, JPEGs with an EXIF date.

They are small but whole, so that every tool takes them for what they are: an MP3 has some frames of
audio, a JPEG a picture of eight by eight grey points.
"""

import struct
from datetime import datetime, timedelta


def song_names(number):
    """Artist and title of a song."""
    return f"Artist {number % 100:02}", f"Song {number:05}"


def song(number):
    artist, title = song_names(number)
    texts = {"TPE1": artist, "TIT2": title, "TALB": "Album", "TRCK": str(number % 20 + 1),
             "TYER": "2004", "TCON": "(17)"}
    frames = b"".join(frame(name, b"\0" + text.encode("latin-1")) for name, text in texts.items())
    frames += frame("COMM", b"\0eng\0Made for a benchmark")
    length = 1014
    size = b"".join(bytes([length >> shift & 0x7F]) for shift in (21, 14, 7, 0))
    tag = b"ID3\3\0\0" + size + frames.ljust(length, b"\0")
    audio = (b"\xFF\xFB\x90\0" + bytes(413)) * 16  # 128 kbit/s, silence
    old = b"TAG" + field(title, 30) + field(artist, 30) + field("Album", 30) + field("2004", 4)
    return tag + audio + old + field("", 28) + bytes([0, number % 20 + 1, 17])


def frame(name, content):
    return name.encode() + struct.pack(">IH", len(content), 0) + content


def field(text, length):
    return text.encode("latin-1").ljust(length, b"\0")


def photo_date(number):
    """No two photos are of the same second."""
    return datetime(2001, 1, 1) + timedelta(seconds=number * 7919)


def photo(number):
    date = photo_date(number).strftime("%Y:%m:%d %H:%M:%S").encode() + b"\0"
    make = b"Maker of cameras\0"
    first = 8 + directory_length(2)
    own = first + len(make)
    exif = (b"II*\0" + struct.pack("<I", 8)
            + directory([(0x010F, 2, len(make), first), (0x8769, 4, 1, own)])
            + make
            + directory([(0x9003, 2, len(date), own + directory_length(1))])
            + date)
    return (b"\xFF\xD8" + segment(0xE1, b"Exif\0\0" + exif) + segment(0xFE, b" " * 6000)
            + segment(0xDB, b"\0" + b"\1" * 64)
            + segment(0xC0, struct.pack(">BHHB", 8, 8, 8, 1) + b"\1\x11\0")
            + segment(0xC4, b"\0" + b"\1" + bytes(15) + b"\0")
            + segment(0xC4, b"\x10" + b"\1" + bytes(15) + b"\0")
            + segment(0xDA, b"\1\1\0\0\x3F\0") + b"\x3F" + b"\xFF\xD9")


def segment(marker, content):
    return struct.pack(">BBH", 0xFF, marker, len(content) + 2) + content


def directory(entries):
    return (struct.pack("<H", len(entries))
            + b"".join(struct.pack("<HHII", *entry) for entry in entries) + bytes(4))


def directory_length(entries):
    return 2 + 12 * entries + 4


def make_files(folder, count, name, content):
    folder.mkdir()
    for number in range(count):
        (folder / name.format(number)).write_bytes(content(number))
