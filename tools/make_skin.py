#!/usr/bin/python3
"""Makes the skin, the sounds and the icons of Vorlane. The same bytes at each run.

Needs Python 3 with Pillow (Debian: python3-pil), and rsvg-convert (Debian: librsvg2-bin) for the
sizes of the application icon alone. Results are committed; neither build nor tests run this.
"""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
sys.dont_write_bytecode = True

from skin import buttons, grounds, sounds

ROOT = pathlib.Path(__file__).resolve().parent.parent


def main():
    skin = ROOT / "data" / "Skin"
    skin.mkdir(parents=True, exist_ok=True)
    grounds.save_gif(grounds.background(), skin / "Background.gif")
    grounds.save_gif(grounds.top_bar(), skin / "TopBar.gif")
    grounds.save_gif(grounds.bottom_bar(), skin / "BottomBar.gif")
    window = grounds.window()
    for name in buttons.PLACES:
        buttons.button(name, window).save(skin / f"{name}.bmp")
    folder = ROOT / "data" / "Sounds"
    folder.mkdir(parents=True, exist_ok=True)
    sounds.save_wave(folder / "01.wav", sounds.two_tone())
    sounds.save_wave(folder / "02.wav", sounds.click())


if __name__ == "__main__":
    main()
