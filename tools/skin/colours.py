"""The colours of the skin, and how well a text can be read on one of them."""

WHITE = (255, 255, 255)
BLACK = (0, 0, 0)

GLYPH_DARK = (14, 28, 41)
GLYPH_LIGHT = (232, 239, 246)
GLYPH_QUIET = (142, 160, 178)
ACCENT = (76, 180, 240)
ALARM = (240, 112, 98)

LEAST_CONTRAST = 4.5

# Everything that the window itself shows lies on one ramp of colours, from the dark of the lower
# edge to the plate under the title. A drawing on it is a field of numbers, and since the ramp is
# finer than the steps of a colour, a palette of 256 shows every gradient without bands.
RAMP_STOPS = ((0, (21, 30, 41)), (64, (30, 42, 56)), (128, (43, 58, 75)), (170, (58, 75, 94)),
              (210, (52, 98, 132)), (254, (47, 123, 176)))
PLATE = 254  # its colour carries black and white texts alike
SEE_THROUGH = 255


def mix(one, other, share):
    """`one` with `share` (0 to 1) of `other`."""
    return tuple(round(a + (b - a) * share) for a, b in zip(one, other))


def ramp_colours():
    """The colours of the numbers 0 to 254 on the ramp."""
    colours = []
    for (start, dark), (end, light) in zip(RAMP_STOPS, RAMP_STOPS[1:]):
        colours += [mix(dark, light, (i - start) / (end - start)) for i in range(start, end)]
    return colours + [RAMP_STOPS[-1][1]]


def luminance(colour):
    """Relative luminance, 0 for black to 1 for white."""
    def linear(part):
        part /= 255
        return part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4
    red, green, blue = (linear(part) for part in colour[:3])
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    """Contrast of two colours, 1 for none to 21 for black on white."""
    low, high = sorted((luminance(one), luminance(other)))
    return (high + 0.05) / (low + 0.05)
