"""The three icons of the favorites menu, and the sizes of the application icon."""
import math
import shutil
import subprocess

from PIL import Image

from skin.canvas import Shape
from skin.colours import contrast

MENU_ICON = 12
APPLICATION_SIZES = (16, 24, 32, 48, 64, 128, 256)

# Each can be told from a light ground as well as from a dark one.
STAR, CROSS, FOLDER = (176, 122, 12), (214, 72, 60), (46, 132, 198)
LIGHT_MENU, DARK_MENU = (240, 240, 240), (45, 45, 45)
LEAST_CONTRAST_OF_SIGNS = 3.0


def star(shape, scale):
    points = []
    for i in range(10):
        angle = math.radians(-90 + 36 * i)
        radius = 6.2 if i % 2 == 0 else 2.9
        points.append(((6 + radius * math.cos(angle)) * scale,
                       (6.5 + radius * math.sin(angle)) * scale))
    shape.polygon(points)


def cross(shape, scale):
    shape.line([(2.5 * scale, 2.5 * scale), (9.5 * scale, 9.5 * scale)], 2.9 * scale)
    shape.line([(9.5 * scale, 2.5 * scale), (2.5 * scale, 9.5 * scale)], 2.9 * scale)


def folder(shape, scale):
    shape.box(0, scale, 5 * scale, 5 * scale, scale)
    shape.box(0, 2 * scale, 12 * scale, 11 * scale, scale)
    shape.box(scale, 4 * scale, 11 * scale, 5 * scale, cut=True)


def save_menu_icons(folder_path):
    """One picture for each screen scale, 1 and 2."""
    for name, draw, colour in (("imgSave", star, STAR), ("imgDelete", cross, CROSS),
                               ("imgFolder", folder, FOLDER)):
        for ground in (LIGHT_MENU, DARK_MENU):
            assert contrast(colour, ground) >= LEAST_CONTRAST_OF_SIGNS, (name, ground)
        for scale, suffix in ((1, ""), (2, "@2x")):
            shape = Shape(MENU_ICON * scale, MENU_ICON * scale)
            draw(shape, scale)
            icon = Image.new("RGBA", shape.size, colour + (0,))
            icon.putalpha(shape.coverage())
            icon.save(folder_path / f"{name}{suffix}.png")


def save_application_icons(folder_path):
    """Draws the SVG in each size. False if the program for that is missing."""
    if shutil.which("rsvg-convert") is None:
        return False
    for size in APPLICATION_SIZES:
        subprocess.run(["rsvg-convert", "-w", str(size), "-h", str(size),
                        folder_path / "vorlane.svg", "-o", folder_path / f"vorlane-{size}.png"],
                       check=True)
    return True
