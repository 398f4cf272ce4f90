"""The pop-up menu and the favorite folders in it."""
import signal
import time

from window_world import BARE, BOX_1, GO, HELP, TITLE, WindowCase, wait_for


class MenuTest(WindowCase):
    def menu(self):
        """The program's pop-up menu, once it has its rows; it has no title of its own."""
        found = self.display.run("xdotool", "search", "--onlyvisible", "--class",
                                 "vorlane").stdout.split()
        return next((window for window in found if self.geometry(window)[3] > 1 and
                     self.display.run("xdotool", "getwindowname",
                                      window).stdout.strip() == "vorlane"), None)

    def right_click(self, place=BARE):
        self.click_button("3", place)
        menu = wait_for(self.menu, "the menu")
        time.sleep(0.2)  # the release has come
        self.assertEqual(self.menu(), menu)
        return menu

    def click_button(self, button, place):
        self.display.run("xdotool", "mousemove", "--window", self.window, *map(str, place),
                         "click", button)

    def choose(self, menu, row):
        left, top, width, _ = self.geometry(menu)
        self.display.run("xdotool", "mousemove", str(left + width // 2),
                         str(top + 4 + (row - 1) * 13 + 6))
        self.display.run("xdotool", "click", "1")

    def menu_goes(self):
        wait_for(lambda: self.menu() is None, "the end of the menu")

    def test_favorites_by_the_mouse(self):
        other = self.work / "other"
        other.mkdir()
        self.start(self.files)
        menu = self.right_click()
        self.assertEqual(self.geometry(menu)[3], 5 * 13 + 8)
        self.choose(menu, 3)
        wait_for(lambda: self.setting("Favorite_00") == f"{self.files}/", "the favorite")
        self.close()
        self.start(other)
        menu = self.right_click()
        self.assertEqual(self.geometry(menu)[3], 6 * 13 + 8)
        self.choose(menu, 6)
        self.menu_goes()
        self.click(GO)
        self.names_become("new a.txt", "b.txt", "c.mp3")
        self.choose(self.right_click(), 4)
        menu = wait_for(lambda: self.menu() and self.geometry(self.menu())[3] == 3 * 13 + 8 and
                        self.menu(), "the menu of favorites to delete")
        self.choose(menu, 3)
        wait_for(lambda: self.setting("Favorite_00") is None, "the end of the favorite")
        self.close()

    def test_the_menu_goes_by_escape_and_by_a_click_anywhere(self):
        self.start(self.files)
        self.right_click()
        self.keys("Escape")
        self.menu_goes()
        self.right_click()
        self.click(GO)  # which the menu takes
        self.menu_goes()
        self.right_click()
        self.display.run("xdotool", "mousemove", "1390", "1040", "click", "1")
        self.menu_goes()
        self.assertEqual(self.names(), ["a.txt", "b.txt", "c.mp3"])
        self.assertIsNone(self.setting("Favorite_00"))
        self.close()

    def test_the_menu_stays_on_the_screen(self):
        self.start(self.files)
        self.display.run("xdotool", "windowmove", "--sync", self.window, "380", "535")
        left, top, width, height = self.geometry(self.right_click((1010, 508)))
        self.assertEqual((left + width, top + height), (1400, 1050))
        self.keys("Escape")
        self.menu_goes()
        self.close()

    def test_the_menu_opens_beside_the_about_box(self):
        self.start(self.files)
        self.click(HELP)
        box = wait_for(lambda: self.display.run("xdotool", "search", "--onlyvisible", "--name",
                                                TITLE + " - About").stdout.split(),
                       "the About box")[0]
        self.display.run("xdotool", "windowmove", "--sync", box, "20", "600")
        self.display.run("xdotool", "windowactivate", "--sync", box)
        self.add_a_favorite()
        self.close()

    def test_the_menu_opens_in_a_window_behind_another(self):
        self.start(self.files)
        self.display.run("xdotool", "windowmove", "--sync", self.window, "370", "100")
        behind, process = self.window, self.process
        self.start_process(self.files)  # another program
        front = wait_for(lambda: next((window for window in self.display.run(
            "xdotool", "search", "--onlyvisible", "--name", f"^{TITLE}$").stdout.split()
            if window != behind and self.geometry(window)[2] > 900), None), "the other window")
        self.wait_for_rest()
        self.display.run("xdotool", "windowmove", "--sync", front, "5", "400")
        self.display.run("xdotool", "windowactivate", "--sync", front)
        self.process = process
        self.add_a_favorite()
        self.close()

    def add_a_favorite(self):
        self.choose(self.right_click(), 3)
        wait_for(lambda: self.setting("Favorite_00") == f"{self.files}/", "the favorite")
        self.menu_goes()

    def test_favorites_by_the_keyboard(self):
        self.start(self.files)
        self.click(BOX_1)
        self.keys("Menu")
        wait_for(self.menu, "the menu")
        self.keys("Down", "Return")
        wait_for(lambda: self.setting("Favorite_00") == f"{self.files}/", "the favorite")
        self.menu_goes()
        self.keys("shift+F10")
        wait_for(self.menu, "the menu")
        self.keys("Up", "Up", "Return")
        wait_for(lambda: self.menu() and self.geometry(self.menu())[3] == 3 * 13 + 8,
                 "the menu of favorites to delete")
        self.keys("End", "Return")
        wait_for(lambda: self.setting("Favorite_00") is None, "the end of the favorite")
        self.menu_goes()
        self.keys("ctrl+a")
        self.type("kept ")  # the box has the keys again
        wait_for(lambda: self.setting("Prefix") == "kept ", "the kept text")
        self.close()

    def test_the_window_closes_over_an_open_menu(self):
        for close in (lambda: self.display.run("wmctrl", "-i", "-c", self.window),
                      lambda: self.process.send_signal(signal.SIGTERM)):
            self.start(self.files)
            self.right_click()
            close()
            self.assertEqual(self.ended(), 0)
            self.assertEqual(self.setting("StartPath"), f"{self.files}/")
