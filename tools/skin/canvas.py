"""Drawing with smooth edges: each shape is drawn eight times as large and reduced."""
import math

from PIL import Image, ImageDraw

FINER = 8


class Shape:
    """A shape of one picture's size; its parts are put together by drawing and cutting."""

    def __init__(self, width, height):
        self.size = (width, height)
        self.fine = Image.new("L", (width * FINER, height * FINER), 0)
        self.pen = ImageDraw.Draw(self.fine)

    def box(self, left, top, right, bottom, radius=0.0, cut=False):
        """A box; `cut` takes it away from the shape."""
        place = [round(v * FINER) for v in (left, top)] + [round(v * FINER) - 1
                                                           for v in (right, bottom)]
        self.pen.rounded_rectangle(place, round(radius * FINER), fill=0 if cut else 255)
        return self

    def disc(self, x, y, radius, cut=False):
        return self.box(x - radius, y - radius, x + radius, y + radius, radius, cut)

    def polygon(self, points, cut=False):
        self.pen.polygon([(x * FINER - 0.5, y * FINER - 0.5) for x, y in points],
                         fill=0 if cut else 255)
        return self

    def line(self, points, width, cut=False):
        """A line with round ends and joints."""
        for (x0, y0), (x1, y1) in zip(points, points[1:]):
            length = math.hypot(x1 - x0, y1 - y0) or 1.0
            dx, dy = (x1 - x0) / length * width / 2, (y1 - y0) / length * width / 2
            self.polygon(((x0 - dy, y0 + dx), (x1 - dy, y1 + dx), (x1 + dy, y1 - dx),
                          (x0 + dy, y0 - dx)), cut)
        for x, y in points:
            self.disc(x, y, width / 2, cut)
        return self

    def rounded_polygon(self, points, radius):
        """A polygon whose corners are as round as a pen of that radius; it grows by the radius."""
        return self.polygon(points).line(list(points) + [points[0]], 2 * radius)

    def coverage(self):
        """How much of each pixel the shape covers, 0 to 255."""
        return self.fine.reduce(FINER)


def arc_points(x, y, radius, start, end):
    """Points along a circle, angles in degrees clockwise from three o'clock."""
    steps = max(8, int(abs(end - start) / 4))
    angles = [math.radians(start + (end - start) * i / steps) for i in range(steps + 1)]
    return [(x + radius * math.cos(a), y + radius * math.sin(a)) for a in angles]


def gradient(size, top, bottom, first=0, last=None):
    """A picture that goes from one colour at row `first` to another at row `last`."""
    width, height = size
    last = height - 1 if last is None else last
    column = Image.new("RGB", (1, height))
    for y in range(height):
        share = min(1.0, max(0.0, (y - first) / max(1, last - first)))
        column.putpixel((0, y), tuple(round(a + (b - a) * share) for a, b in zip(top, bottom)))
    return column.resize((width, height), Image.NEAREST)


def paint(picture, shape, paint_with, opacity=1.0):
    """Lays a shape over a picture, in one colour or with the pixels of another picture."""
    coverage = shape if isinstance(shape, Image.Image) else shape.coverage()
    if opacity < 1.0:
        coverage = coverage.point([round(v * opacity) for v in range(256)])
    if not isinstance(paint_with, Image.Image):
        paint_with = Image.new("RGB", picture.size, paint_with)
    picture.paste(paint_with, (0, 0), coverage)
