"""The eleven buttons: four equal strips of one bitmap, normal, hover, pressed and mask.

The mask cuts the button out hard. What the edge's pixels leave open is therefore filled with the
ground that lies under the button, so that the edge looks smooth.
"""
from PIL import Image

from skin import glyphs
from skin.canvas import Shape, gradient, paint
from skin.colours import (ACCENT, ALARM, BLACK, GLYPH_DARK, GLYPH_LIGHT, GLYPH_QUIET, WHITE, mix)
from skin.glyphs import Pen

NORMAL, HOVER, PRESSED = range(3)
OPEN_ROWS = 2  # see-through at the strip's top and bottom

# Name, left, top, width, height of a strip
PLACES = {
    "Go": (888, 392, 55, 79), "Stop": (888, 392, 55, 79),
    "Help": (960, 112, 50, 50), "Undo": (960, 184, 50, 50), "Exit": (960, 48, 44, 44),
    "ListFiles": (264, 16, 61, 28), "ListFolders": (264, 16, 61, 28),
    "ThisFolderOnly": (368, 16, 61, 28), "IncludeSubFolders": (368, 16, 61, 28),
    "DoOne": (472, 16, 61, 28), "DoAll": (472, 16, 61, 28),
}
PAIRS = (("Go", "Stop"), ("ListFiles", "ListFolders"), ("ThisFolderOnly", "IncludeSubFolders"),
         ("DoOne", "DoAll"))


class Face:
    """A raised face on a strip: rim, gradient, and what a state makes of them."""

    def __init__(self, strip, outline, state):
        """`outline(shape, inset)` draws the face's outline, smaller by `inset`."""
        self.strip, self.outline, self.state = strip, outline, state

    def shape(self, inset=0.0):
        shape = Shape(*self.strip.size)
        self.outline(shape, inset)
        return shape

    def paint(self, colour, light=0.16, glow=None, ring=1.0, depth=0.42):
        """`glow`: the ring of the hover state, `ring` its width; `depth`: how dark it is sunk."""
        high, low = mix(colour, WHITE, light), mix(colour, BLACK, 0.14)
        if self.state == HOVER:
            high, low = mix(high, WHITE, 0.2), mix(low, WHITE, 0.16)
        if self.state == PRESSED:
            high, low = mix(colour, BLACK, depth), mix(colour, BLACK, depth * 0.6)
        size, rows = self.strip.size, (OPEN_ROWS, self.strip.height - OPEN_ROWS)
        rim = gradient(size, mix(high, WHITE, 0.35), mix(low, BLACK, 0.25), *rows)
        if self.state == PRESSED:
            rim = gradient(size, mix(high, BLACK, 0.45), mix(low, WHITE, 0.18), *rows)
        if self.state == HOVER:
            rim = gradient(size, glow or mix(high, WHITE, 0.8), glow or mix(low, WHITE, 0.6), *rows)
        paint(self.strip, self.shape(), rim)
        paint(self.strip, self.shape(ring if self.state == HOVER else 1),
              gradient(size, high, low, *rows))


def put_glyph(strip, draw, x, y, scale, colour):
    shape = Shape(*strip.size)
    draw(Pen(shape, x, y, scale))
    paint(strip, shape, colour)


def round_outline(radius):
    def outline(shape, inset):
        width, height = shape.size
        shape.box(inset, OPEN_ROWS + inset, width - inset, height - OPEN_ROWS - inset,
                  radius - inset)
    return outline


def octagon_outline(corner):
    def outline(shape, inset):
        width, height = shape.size
        left, top, right, bottom = (inset, OPEN_ROWS + inset, width - inset,
                                    height - OPEN_ROWS - inset)
        cut = corner - inset * 0.6
        shape.polygon(((left + cut, top), (right - cut, top), (right, top + cut),
                       (right, bottom - cut), (right - cut, bottom), (left + cut, bottom),
                       (left, bottom - cut), (left, top + cut)))
        # The pen of polygons reaches a little over their edges.
        shape.box(0, 0, width, top, cut=True)
        shape.box(0, bottom, width, height, cut=True)
    return outline


def disc_outline(shape, inset):
    width, height = shape.size
    radius = height / 2 - OPEN_ROWS
    shape.disc(width / 2, height / 2, radius - inset)


def large_button(colour, outline, draw, scale, glyph_colour, **face):
    """A button with one face and one pictogram in its middle."""
    def strip(picture, state):
        Face(picture, outline, state).paint(colour, ring=1.6, **face)
        width, height = picture.size
        sunk = 1 if state == PRESSED else 0
        shown = mix(glyph_colour, WHITE, 0.3) if state == HOVER and sum(glyph_colour) > 380 \
            else glyph_colour
        put_glyph(picture, draw, width / 2 - 10 * scale + sunk, height / 2 - 10 * scale + sunk,
                  scale, shown)
        return Face(picture, outline, state).shape()
    return strip


TRACK = (20, 30, 42)
KNOB_WIDTH = 29


def switch(left_glyph, right_glyph, right):
    """A switch of two halves; a raised knob lies on the half that holds."""
    def strip(picture, state):
        width, height = picture.size
        outline = round_outline((height - 2 * OPEN_ROWS) / 2 - 3)
        whole = Shape(width, height)
        outline(whole, 0)
        inner = Shape(width, height)
        outline(inner, 1)
        rim = {NORMAL: mix(TRACK, WHITE, 0.28), HOVER: ACCENT, PRESSED: mix(TRACK, ACCENT, 0.5)}
        ground = {NORMAL: TRACK, HOVER: mix(TRACK, WHITE, 0.09), PRESSED: mix(TRACK, BLACK, 0.3)}
        paint(picture, whole, rim[state])
        paint(picture, inner, gradient(picture.size, mix(ground[state], BLACK, 0.25),
                                       ground[state], OPEN_ROWS, 10))

        def knob(shape, inset):
            left = width - KNOB_WIDTH - 3 if right else 3
            shape.box(left + inset, 5 + inset, left + KNOB_WIDTH - inset, height - 5 - inset,
                      6.5 - inset)
        Face(picture, knob, state).paint(ACCENT)
        sunk = 1 if state == PRESSED else 0
        quiet = GLYPH_LIGHT if state == HOVER else GLYPH_QUIET
        for draw, x, on in ((left_glyph, 10, not right), (right_glyph, width - 24, right)):
            put_glyph(picture, draw, x + (sunk if on else 0), 7 + (sunk if on else 0), 1.0,
                      GLYPH_DARK if on else quiet)
        return whole
    return strip


SLATE = (68, 87, 108)
QUIET = {"light": 0.08, "glow": ACCENT, "depth": 0.62}
DRAWINGS = {
    "Go": large_button(ACCENT, round_outline(13), glyphs.play, 1.8, GLYPH_DARK),
    "Stop": large_button(ALARM, octagon_outline(15), glyphs.stop, 1.5, GLYPH_DARK),
    "Help": large_button(SLATE, disc_outline, glyphs.question, 1.15, GLYPH_LIGHT, **QUIET),
    "Undo": large_button(SLATE, disc_outline, glyphs.back, 1.1, GLYPH_LIGHT, **QUIET),
    "Exit": large_button(SLATE, disc_outline, glyphs.leave, 0.95, GLYPH_LIGHT, **QUIET),
    "ListFiles": switch(glyphs.document, glyphs.folder, False),
    "ListFolders": switch(glyphs.document, glyphs.folder, True),
    "ThisFolderOnly": switch(glyphs.folder, glyphs.folder_tree, False),
    "IncludeSubFolders": switch(glyphs.folder, glyphs.folder_tree, True),
    "DoOne": switch(glyphs.one_row, glyphs.all_rows, False),
    "DoAll": switch(glyphs.one_row, glyphs.all_rows, True),
}


def button(name, window):
    """The bitmap of a button that stands on `window`."""
    left, top, width, height = PLACES[name]
    bitmap = Image.new("RGB", (width, 4 * height), WHITE)
    ground = window.crop((left, top, left + width, top + height))
    for state in (NORMAL, HOVER, PRESSED):
        strip = ground.copy()
        whole = DRAWINGS[name](strip, state)
        bitmap.paste(strip, (0, state * height))
    solid = whole.coverage().point([255 if covered > 24 else 0 for covered in range(256)])
    bitmap.paste(BLACK, (0, 3 * height), solid)
    # The mask of a picture that is scaled down may begin in the rows in front of it: nobody sees
    # them, and in a mask they are see-through.
    bitmap.paste(WHITE, (0, 3 * height - OPEN_ROWS, width, 3 * height))
    return bitmap
