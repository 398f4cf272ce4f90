"""Looks whether every text of the window can be read on the ground that the skin puts under it.

The background is stretched with the window while the texts keep their distance from an edge, so the
places are looked at for many sizes of the window.
"""
from skin.colours import BLACK, LEAST_CONTRAST, WHITE, contrast
from skin.grounds import BACKGROUND_SIZE, BOTTOM_BAR

# The least window, the design, common screens and a very large one
SIZES = ((996, 453), BACKGROUND_SIZE, (1400, 700), (1900, 1000), (2560, 1400), (3840, 2100))
TITLE = (53, 14, 217, 34)
CAPTIONS = tuple((left, top, left + 187, top + 16)
                 for left in (248, 458, 669) for top in (384, 432))


def texts_on_background(width, height):
    """Boxes of the texts in a window of that size, and the colours that each may have."""
    down = height - BACKGROUND_SIZE[1]
    tree = round(217 * width / BACKGROUND_SIZE[0])
    keywords_end = 24 + tree + 23 + 513
    yield TITLE, (BLACK, WHITE)
    yield (16, 504 + down, width, height), (WHITE,)
    yield (keywords_end, 330 + down, width - 79, 354 + down), (WHITE,)
    for left, top, right, bottom in CAPTIONS:
        yield (left, top + down, right, bottom + down), (WHITE,)


def worst_contrast(picture, box, colours, stretch=(1.0, 1.0)):
    """The least contrast of the colours with any pixel of the picture that a box touches."""
    left, right = (int(x / stretch[0]) for x in (box[0], box[2] - 1))
    top, bottom = (int(y / stretch[1]) for y in (box[1], box[3] - 1))
    part = picture.crop((left, top, right + 1, bottom + 1)).convert("RGB")
    grounds = {ground for _, ground in part.getcolors(1 << 20)}
    return min(contrast(colour, ground) for colour in colours for ground in grounds)


def check(background, bottom_bar):
    """The least contrast of all texts. Ends the program if one can't be read."""
    found = []
    for width, height in SIZES:
        stretch = (width / BACKGROUND_SIZE[0], height / BACKGROUND_SIZE[1])
        for box, colours in texts_on_background(width, height):
            found.append((worst_contrast(background, box, colours, stretch), (width, height), box))
    for left, top, right, bottom in CAPTIONS:
        box = (left - BOTTOM_BAR[0], top - BOTTOM_BAR[1],
               right - BOTTOM_BAR[0], bottom - BOTTOM_BAR[1])
        found.append((worst_contrast(bottom_bar, box, (WHITE,)), "bottom bar", box))
    worst = min(found, key=lambda entry: entry[0])
    if worst[0] < LEAST_CONTRAST:
        raise SystemExit(f"A text can't be read: contrast {worst[0]:.2f} at {worst[1:]}")
    return worst[0]
