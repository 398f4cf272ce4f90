#!/usr/bin/env python3
"""Makes the small image files of tests/data/exif, each named after what is special in it.

Usage: tools/make_exif_corpus.py [FOLDER]

The files are committed; run this again after a change here, and adapt the table in
tests/metadata/exif_corpus_test.cpp. None of them holds a picture: the reader looks at the EXIF block
alone.
"""

import struct
import sys
from pathlib import Path

HEAD = 4096  # as much as the reader reads

ASCII, SHORT, LONG, RATIONAL, UNDEFINED = 2, 3, 4, 5, 7
SIGNED_BYTE, SIGNED_SHORT, SIGNED_LONG, SIGNED_RATIONAL, FLOAT, DOUBLE = 6, 8, 9, 10, 11, 12

MAKE, MODEL, ORIENTATION, X_RESOLUTION, SOFTWARE, DATE_TIME = 271, 272, 274, 282, 305, 306
WHITE_POINT, EXIF_OFFSET, EXPOSURE_TIME, F_NUMBER = 0x13E, 0x8769, 0x829A, 0x829D
EXIF_VERSION, DATE_ORIGINAL, DATE_DIGITIZED, COMPONENTS = 0x9000, 0x9003, 0x9004, 0x9101
SHUTTER_SPEED, APERTURE, BRIGHTNESS, EXPOSURE_BIAS = 0x9201, 0x9202, 0x9203, 0x9204
MAKER_NOTE, USER_COMMENT, COLOR_SPACE = 0x927C, 0x9286, 0xA001
INTEROPERABILITY, FILE_SOURCE, SCENE_TYPE = 0xA005, 0xA300, 0xA301


class Order:
    """Numbers in one of the two byte orders."""

    def __init__(self, mark):
        self.mark = mark
        self.sign = "<" if mark == b"II" else ">"

    def short(self, number):
        return struct.pack(self.sign + "H", number)

    def long(self, number):
        return struct.pack(self.sign + "I", number & 0xFFFFFFFF)

    def rational(self, numerator, denominator):
        return self.long(numerator) + self.long(denominator)


II = Order(b"II")
MM = Order(b"MM")


def directory(order, entries, offset, count=None):
    """Entries are (tag, format, count, value); a value of more than four bytes goes behind."""
    fixed = order.short(len(entries) if count is None else count)
    behind = b""
    end = offset + 2 + 12 * len(entries) + 4
    for tag, form, elements, value in entries:
        fixed += order.short(tag) + order.short(form) + order.long(elements)
        if len(value) <= 4:
            fixed += value.ljust(4, b"\0")
        else:
            fixed += order.long(end + len(behind))
            behind += value
    return fixed + order.long(0) + behind


def tiff(order, first, exif=None, count=None):
    """A TIFF header, the first directory and, if told, the EXIF directory with a link to it."""
    entries = list(first)
    if exif is not None:
        place = 8 + len(directory(order, entries + [(EXIF_OFFSET, LONG, 1, b"")], 8))
        entries.append((EXIF_OFFSET, LONG, 1, order.long(place)))
    block = order.mark + order.short(42) + order.long(8) + directory(order, entries, 8, count)
    if exif is not None:
        block += directory(order, exif, len(block))
    return block


def marked(block):
    return b"Exif\0\0" + block


def jpeg(block):
    segment = marked(block)
    return b"\xFF\xD8\xFF\xE1" + struct.pack(">H", len(segment) + 2) + segment + b"\xFF\xD9"


def text(tag, value):
    return (tag, ASCII, len(value) + 1, value + b"\0")


def camera(order):
    """What a camera writes, more or less."""
    first = [
        text(MAKE, b"Abc"),
        text(MODEL, b"Box camera 2"),
        (ORIENTATION, SHORT, 1, order.short(6)),
        (X_RESOLUTION, RATIONAL, 1, order.rational(72, 1)),
        text(DATE_TIME, b"2005:01:02 03:04:05"),
    ]
    exif = [
        (EXPOSURE_TIME, RATIONAL, 1, order.rational(10, 2500)),
        (F_NUMBER, RATIONAL, 1, order.rational(28, 10)),
        (EXIF_VERSION, UNDEFINED, 4, b"0220"),
        text(DATE_ORIGINAL, b"2004:05:06 12:34:56"),
        text(DATE_DIGITIZED, b"2004:05:06 12:34:57"),
        (COMPONENTS, UNDEFINED, 4, b"\1\2\3\0"),
        (SHUTTER_SPEED, SIGNED_RATIONAL, 1, order.rational(8, 1)),
        (APERTURE, RATIONAL, 1, order.rational(3, 1)),
        (EXPOSURE_BIAS, SIGNED_RATIONAL, 1, order.rational(-1, 3)),
        (MAKER_NOTE, UNDEFINED, 12, b"Note\0\1\2 7\xFF\r\n"),
        (USER_COMMENT, UNDEFINED, 19, b"ASCII\0\0\0From above\0"),
        (COLOR_SPACE, SHORT, 1, order.short(1)),
        (FILE_SOURCE, UNDEFINED, 1, b"\3"),
        (SCENE_TYPE, UNDEFINED, 1, b"\1"),
        (254, LONG, 1, order.long(70000)),
    ]
    return jpeg(tiff(order, first, exif))


def dates(original, digitized, changed):
    return jpeg(tiff(II, [text(DATE_TIME, changed)],
                     [text(DATE_ORIGINAL, original), text(DATE_DIGITIZED, digitized)]))


def shifted(block, in_head):
    """The block so late that that many of its bytes lie in the head."""
    return b" " * (HEAD - in_head) + block


def with_offset(tag, form, count, offset):
    """One entry whose value stands elsewhere, a link to an empty directory, and much behind."""
    entries = [(tag, form, count, II.long(offset)), text(MODEL, b"Yes")]
    return jpeg(tiff(II, entries, [])).ljust(HEAD + 400, b"x")


def files():
    make = [text(MAKE, b"Abc")]
    yield "camera-little-endian.jpg", camera(II)
    yield "camera-big-endian.jpg", camera(MM)
    yield "no-bytes.jpg", b""
    yield "one-byte.jpg", b"\xFF"
    yield "no-exif.jpg", b"\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0\xFF\xD9"
    yield "marker-in-lower-case.jpg", jpeg(tiff(II, make, [])).replace(b"Exif", b"exif")
    yield "marker-without-nul.jpg", jpeg(tiff(II, make, [])).replace(b"Exif\0", b"Exif ")
    yield "marker-as-last-bytes.jpg", b"\xFF\xD8Exif"
    yield "marker-behind-the-head.jpg", shifted(marked(tiff(II, make, [])), 4)
    yield "marker-so-late-that-the-offset-is-cut.jpg", shifted(marked(tiff(II, make, [])), 13)
    yield "first-directory-behind-the-head.jpg", shifted(marked(tiff(II, make, [])), 15)
    yield "entry-cut-by-the-head.jpg", shifted(marked(tiff(II, make, [])), 6 + 8 + 2 + 6)
    yield "not-a-jpeg.txt", b"Some text.\r\n" + marked(tiff(II, make, []))
    yield "order-unknown.jpg", jpeg(tiff(MM, make, []).replace(b"MM", b"??", 1))
    yield "number-42-missing.jpg", jpeg(tiff(II, make, []).replace(b"II*\0", b"II\0\0", 1))
    yield "no-exif-offset.jpg", jpeg(tiff(II, make))
    yield "exif-offset-zero.jpg", jpeg(tiff(MM, make + [(EXIF_OFFSET, LONG, 1, MM.long(0))]))
    yield "exif-offset-to-itself.jpg", jpeg(tiff(II, make + [(EXIF_OFFSET, LONG, 1, II.long(8))]))
    yield "exif-offset-far-away.jpg", jpeg(tiff(II, make + [(EXIF_OFFSET, LONG, 1, II.long(-1))]))
    yield "exif-offset-of-an-unknown-format.jpg", jpeg(
        tiff(II, make + [(EXIF_OFFSET, 77, 1, II.long(38))]))
    yield "first-offset-far-away.jpg", jpeg(
        tiff(II, make, []).replace(II.long(8), II.long(-1), 1))
    yield "more-entries-claimed-than-there-are.jpg", jpeg(tiff(II, make, [], count=65535))
    yield "cut-in-the-exif-directory.jpg", camera(II)[:230]
    yield "interoperability-directory-isnt-read.jpg", jpeg(
        tiff(II, make, [(INTEROPERABILITY, LONG, 1, II.long(8))]))
    yield "value-behind-the-head.jpg", with_offset(MAKE, ASCII, 10, HEAD)
    yield "value-far-away.jpg", with_offset(MAKE, ASCII, 10, 0xFFFFFFFF)
    yield "value-cut-by-the-head.jpg", with_offset(MAKE, ASCII, 100, HEAD - 12 - 3)
    yield "value-behind-a-short-file.jpg", jpeg(
        tiff(II, [(MAKE, ASCII, 10, II.long(2000)), (F_NUMBER, RATIONAL, 1, II.long(2000))], []))
    yield "count-over-31-bits.jpg", jpeg(tiff(II, [(MAKE, ASCII, 0xFFFFFFFF, b"Abcd")], []))
    yield "length-over-31-bits.jpg", jpeg(
        tiff(II, [(F_NUMBER, RATIONAL, 0x10000000, II.long(0)), text(MODEL, b"Yes")], []))
    yield "formats-13-and-65535.jpg", jpeg(
        tiff(II, [(MAKE, 13, 1, b"Abc"), (MODEL, 65535, 1, b"Abc"), text(SOFTWARE, b"Yes")], []))
    yield "exposure-time-zero.jpg", jpeg(
        tiff(II, [], [(EXPOSURE_TIME, RATIONAL, 1, II.rational(0, 250)), text(MODEL, b"Yes")]))
    yield "denominators-zero.jpg", jpeg(
        tiff(II, [(X_RESOLUTION, RATIONAL, 1, II.rational(72, 0))],
             [(EXPOSURE_TIME, RATIONAL, 1, II.rational(1, 0)),
              (F_NUMBER, RATIONAL, 1, II.rational(0, 0)),
              (BRIGHTNESS, SIGNED_RATIONAL, 1, II.rational(-1, 0))]))
    yield "powers-past-any-number.jpg", jpeg(
        tiff(II, [], [(APERTURE, RATIONAL, 1, II.rational(2000, 1)),
                      (SHUTTER_SPEED, SIGNED_RATIONAL, 1, II.rational(2000, 1))]))
    yield "rationals-in-an-array.jpg", jpeg(
        tiff(II, [(WHITE_POINT, RATIONAL, 2, II.rational(313, 1000) + II.rational(329, 1000)),
                  text(MODEL, b"Yes")], []))
    yield "signed-numbers.jpg", jpeg(
        tiff(MM, [(301, SIGNED_BYTE, 1, b"\xFF"), (302, SIGNED_SHORT, 1, b"\xFF\xFE"),
                  (303, SIGNED_LONG, 1, b"\xFF\xFF\xFF\xFF"),
                  (304, SIGNED_LONG, 1, b"\x80\0\0\0")], []))
    yield "float-and-double.jpg", jpeg(
        tiff(II, [(301, FLOAT, 1, struct.pack("<f", 1)), (302, DOUBLE, 1, struct.pack("<d", 1))],
             []))
    yield "components-out-of-range.jpg", jpeg(
        tiff(II, [], [(COMPONENTS, UNDEFINED, 4, b"\1\2\3\7")]))
    yield "text-with-nuls-inside.jpg", jpeg(tiff(II, [(MAKE, ASCII, 8, b"A\0b\0\0c\0\0")], []))
    yield "text-of-the-code-page.jpg", jpeg(tiff(II, [text(MAKE, b"Caf\xE9 \x80 \x81")], []))
    yield "original-date-zero.jpg", dates(
        b"0000:00:00 00:00:00", b"2004:05:06 12:34:57", b"2005:01:02 03:04:05")
    yield "original-and-digitized-date-unusable.jpg", dates(
        b"    :  :     :  :  ", b"soon", b"2005:01:02 03:04:05")
    yield "no-usable-date.jpg", dates(b"", b"0000:00:00 00:00:00", b"unknown")
    yield "marker-twice.jpg", marked(tiff(MM, [text(MAKE, b"One")], [])) + marked(
        tiff(II, [text(MAKE, b"Two")], []))
    yield "empty-first-directory.jpg", jpeg(tiff(II, []))


def main():
    home = Path(__file__).resolve().parent.parent
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else home / "tests" / "data" / "exif"
    folder.mkdir(parents=True, exist_ok=True)
    for name, content in files():
        (folder / name).write_bytes(content)


main()
