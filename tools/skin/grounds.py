"""The pictures that everything else stands on: the background and the two bars.

The background is stretched with the window in both directions, so it has soft gradients only and no
line that would blur. The bars keep their size; around their shape they are see-through, and where a
program ignores that they have the colour of the background.
"""
from PIL import Image

from skin.colours import PLATE, SEE_THROUGH, ramp_colours

BACKGROUND_SIZE = (1024, 522)
TOP_BAR = (255, 13, 717, 49)  # left, top, width, height in the window
BOTTOM_BAR = (12, 363, 949, 130)

# The plate is a tab that hangs in the corner of the window: the title above it doesn't move when the
# window is stretched, but the plate does.
TAB = (-40, -40, 241, 42)


def smooth(start, end, value):
    """0 up to `start`, 1 from `end` on, and a soft rise between."""
    share = min(1.0, max(0.0, (value - start) / (end - start)))
    return share * share * (3 - 2 * share)


def background_level(x, y):
    """The background at a place, as a number on the ramp."""
    base = 84 - 40 * smooth(0, 522, y)
    base *= 1 - 0.4 * soft_box(x, y, TAB, 14, 5)
    return base + (PLATE - base) * rounded_box(x, y, TAB, 14)


def distance(x, y, box, radius):
    """How far the middle of the pixel at x, y lies outside a box with round corners."""
    left, top, right, bottom = box
    dx = abs(x + 0.5 - (left + right) / 2) - (right - left) / 2 + radius
    dy = abs(y + 0.5 - (top + bottom) / 2) - (bottom - top) / 2 + radius
    return (max(dx, 0.0) ** 2 + max(dy, 0.0) ** 2) ** 0.5 + min(max(dx, dy), 0.0) - radius


def rounded_box(x, y, box, radius):
    """How much of the pixel at x, y the box covers."""
    return min(1.0, max(0.0, 0.5 - distance(x, y, box, radius)))


def soft_box(x, y, box, radius, blur):
    """A shadow: the box, fading out over `blur` pixels on each side of its edge."""
    return 1 - smooth(-blur, blur, distance(x, y, box, radius))


def card(ground, x, y, box, radius, face):
    """A raised card over a ground: shadow, rim of light along its upper edge, face."""
    left, top, right, bottom = box
    shadow = soft_box(x, y, (left + 1, top + 2, right - 1, bottom + 1), radius, 3)
    level = ground * (1 - 0.52 * shadow)
    whole = rounded_box(x, y, box, radius)
    inner = rounded_box(x, y, (left + 1, top + 1, right - 1, bottom - 1), radius - 1)
    light = face + 34 * (1 - smooth(top, top + (bottom - top) * 0.7, y)) + 6
    level += (light - level) * whole
    return level + (face - level) * inner


def top_bar_level(x, y):
    """The top bar at a place of its picture: a card as wide as the list with a margin."""
    ground = background_level(TOP_BAR[0] + x, TOP_BAR[1] + y)
    return card(ground, x, y, (0, 0, 700, 33), 10, 128 - 10 * smooth(0, 33, y))


def bottom_bar_level(x, y):
    """The bottom bar at a place of its picture: the card under operations, boxes and Go."""
    ground = background_level(BOTTOM_BAR[0] + x, BOTTOM_BAR[1] + y)
    return card(ground, x, y, (2, 2, 943, 126), 12, 128 - 14 * smooth(0, 130, y))


def picture_of(width, height, level, ground=None):
    """A picture with the ramp as its palette. Where it shows only the ground it is see-through."""
    picture = Image.new("P", (width, height))
    colours = ramp_colours()
    colours.append(colours[74])  # of what is see-through: about the background's
    picture.putpalette([part for colour in colours for part in colour])
    pixels = bytearray()
    for y in range(height):
        for x in range(width):
            here = level(x, y)
            shows_ground = ground is not None and abs(here - ground(x, y)) < 0.01
            pixels.append(SEE_THROUGH if shows_ground else round(here))
    picture.putdata(pixels)
    return picture


def background():
    return picture_of(*BACKGROUND_SIZE, background_level)


def top_bar():
    left, top, width, height = TOP_BAR
    return picture_of(width, height, top_bar_level,
                      lambda x, y: background_level(left + x, top + y))


def bottom_bar():
    left, top, width, height = BOTTOM_BAR
    return picture_of(width, height, bottom_bar_level,
                      lambda x, y: background_level(left + x, top + y))


def seen_through(bar):
    """What of a bar hides the background, as a picture of black and white."""
    return bar.point([0 if level == SEE_THROUGH else 255 for level in range(256)], "L")


def save_gif(picture, path):
    with_holes = {"transparency": SEE_THROUGH} if SEE_THROUGH in picture.tobytes() else {}
    picture.save(path, interlace=0, optimize=False, **with_holes)


def window():
    """The empty window at its design size, on which the buttons are drawn."""
    whole = background().convert("RGB")
    for bar, place in ((top_bar(), TOP_BAR), (bottom_bar(), BOTTOM_BAR)):
        whole.paste(bar.convert("RGB"), place[:2], seen_through(bar))
    return whole
