#!/usr/bin/python3
"""Makes the skin, the sounds and the icons of Vorlane. The same bytes at each run.

Needs Python 3 with Pillow (Debian: python3-pil), and rsvg-convert (Debian: librsvg2-bin) for the
sizes of the application icon alone. Results are committed; neither build nor tests run this.
"""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
sys.dont_write_bytecode = True

from skin import buttons, grounds, icons, legibility, sounds

ROOT = pathlib.Path(__file__).resolve().parent.parent


def make_skin(folder):
    folder.mkdir(parents=True, exist_ok=True)
    background, bottom_bar = grounds.background(), grounds.bottom_bar()
    worst = legibility.check(background, bottom_bar)
    print(f"Least contrast of a text: {worst:.2f}")
    grounds.save_gif(background, folder / "Background.gif")
    grounds.save_gif(grounds.top_bar(), folder / "TopBar.gif")
    grounds.save_gif(bottom_bar, folder / "BottomBar.gif")
    window = grounds.window()
    for name in buttons.PLACES:
        buttons.button(name, window).save(folder / f"{name}.bmp")


def make_sounds(folder):
    folder.mkdir(parents=True, exist_ok=True)
    sounds.save_wave(folder / "01.wav", sounds.two_tone())
    sounds.save_wave(folder / "02.wav", sounds.click())


def main():
    make_skin(ROOT / "data" / "Skin")
    make_sounds(ROOT / "data" / "Sounds")
    icons.save_menu_icons(ROOT / "src" / "ui" / "icons")
    if not icons.save_application_icons(ROOT / "packaging" / "icons"):
        print("rsvg-convert is missing: the application icon stays as it is", file=sys.stderr)


if __name__ == "__main__":
    main()
