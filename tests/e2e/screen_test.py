"""Screens on which the window is made smaller, and one that shows everything twice as large."""
import pathlib
import shutil

from window_world import GO, WindowCase, wait_for

SKIN = pathlib.Path(__file__).parents[2] / "data/Skin"


class ScreenTest(WindowCase):
    def start_on(self, screen, **environment):
        """With the shipped pictures, for a button without one keeps its designed place."""
        shutil.copytree(SKIN, self.program_folder / "Skin")
        self.show_on(screen)
        self.start(self.files, **environment)

    def go_renames(self, place):
        self.click(place)
        self.names_become("new a.txt", "b.txt", "c.mp3")

    def size_is(self, width, height):
        wait_for(lambda: self.geometry()[2:] == (width, height), f"{width} by {height}")

    def test_on_800_by_600_the_window_is_compact(self):
        self.start_on("800x600")
        self.size_is(724, 492)
        self.go_renames((648, 407))
        self.close()

    def test_any_other_small_screen_gives_its_own_factors(self):
        self.start_on("1000x700")
        self.size_is(731, 348)
        self.go_renames((654, 288))
        self.close()

    def test_with_everything_twice_as_large_the_screen_counts_as_half(self):
        self.start_on("1400x1050", QT_SCALE_FACTOR="2")
        self.size_is(1024, 522)  # half of the design, doubled
        self.go_renames(GO)
        self.close()
        self.assertEqual(self.setting("Width"), str(512 * 15))
        self.assertEqual(self.setting("Height"), str(261 * 15))
