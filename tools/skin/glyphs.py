"""The pictograms: each a shape, drawn in a square of 14 or 20 pixels and put to a place."""
from skin.canvas import arc_points


class Pen:
    """Draws a shape's parts moved by a place and enlarged."""

    def __init__(self, shape, x, y, scale=1.0):
        self.shape, self.x, self.y, self.scale = shape, x, y, scale

    def points(self, points):
        return [(self.x + x * self.scale, self.y + y * self.scale) for x, y in points]

    def box(self, left, top, right, bottom, radius=0.0, cut=False):
        (left, top), (right, bottom) = self.points(((left, top), (right, bottom)))
        self.shape.box(left, top, right, bottom, radius * self.scale, cut)

    def polygon(self, points, cut=False):
        self.shape.polygon(self.points(points), cut)

    def line(self, points, width, cut=False):
        self.shape.line(self.points(points), width * self.scale, cut)

    def rounded_polygon(self, points, radius):
        self.shape.rounded_polygon(self.points(points), radius * self.scale)


def document(pen):
    """A sheet with a folded corner and lines of writing."""
    pen.polygon(((2, 0), (8, 0), (12, 4), (12, 14), (2, 14)))
    pen.polygon(((8, 0), (8, 4), (12, 4)), cut=True)
    pen.polygon(((9, 0.4), (9, 3), (11.6, 3)))
    for y in (6, 8, 10):
        pen.box(4, y, 10 if y < 10 else 8, y + 1, cut=True)


def folder(pen):
    pen.box(0, 1, 6, 6, 1)
    pen.box(0, 3, 14, 13, 1.2)
    pen.box(1, 5, 13, 6, cut=True)


def folder_tree(pen):
    """A folder with two folders below it."""
    for x, y in ((0, 0), (6, 4), (6, 10)):
        wide = 7 if x == 0 else 8
        pen.box(x, y, x + 4, y + 2, 0.5)
        pen.box(x, y + 1, x + wide, y + 4, 0.5)
    pen.box(2, 4, 3, 13)
    pen.box(2, 6, 6, 7)
    pen.box(2, 12, 6, 13)


def one_row(pen):
    """Three rows of a list, the middle one marked."""
    for y in (0, 10):
        pen.box(0, y, 14, y + 3)
        pen.box(1, y + 1, 13, y + 2, cut=True)
    pen.box(0, 4.5, 14, 8.5, 0.5)


def all_rows(pen):
    for y in (0, 5, 10):
        pen.box(0, y, 14, y + 3.5, 0.5)


def play(pen):
    """A triangle with round corners, its weight in the middle of 20 by 20."""
    pen.rounded_polygon(((5.5, 3), (16.5, 10), (5.5, 17)), 1.6)


def stop(pen):
    pen.box(3, 3, 17, 17, 2)


def leave(pen):
    """A door frame and an arrow out of it."""
    pen.line(((11, 2.5), (3.5, 2.5), (3.5, 17.5), (11, 17.5)), 2)
    pen.line(((8, 10), (17, 10)), 2)
    pen.line(((13.5, 6.2), (17.3, 10), (13.5, 13.8)), 2)


def question(pen):
    bow = arc_points(10, 6.6, 4.2, 190, 395)
    pen.line(bow + [(10.6, 10.6), (10, 12.2), (10, 13)], 2.4)
    pen.line(((10, 17.2), (10, 17.3)), 3)


def back(pen):
    """An arrow that turns back to the left."""
    pen.line([(5, 6.5), (11.5, 6.5)] + arc_points(11.5, 11.5, 5, -90, 90) + [(7, 16.5)], 2.3)
    pen.line(((8, 2.3), (3.7, 6.5), (8, 10.7)), 2.3)
