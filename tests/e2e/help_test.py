"""Balloons, labels and the keyword list."""
import time

from window_world import BOX_1, EXIT, FORM, GO, HELP, KEYWORD_LIST, WindowCase, wait_for

# The balloons of the whole help; the buttons that share a place have one each.
ALL_TIPS = {"Go/Stop": 2, "List Files/Folders": 2, "Include/Exclude Sub-folders": 2,
            "Process One File/All Files": 2, "Wildcard": 1, "Exit": 1, "Undo": 1}
TIP_TITLES = [*ALL_TIPS, "Keyword List"]


class HelpTest(WindowCase):
    def tips(self):
        """The titles of the tips that can be seen, each with the number of its windows."""
        titles = {}
        for title in TIP_TITLES:
            count = len(self.display.run("xdotool", "search", "--onlyvisible", "--name",
                                         f"^{title}$").stdout.split())
            if count:
                titles[title] = count
        return titles

    def tips_become(self, tips):
        wait_for(lambda: self.tips() == tips, f"{tips}, there are {self.tips()}")

    def start_again(self):
        """A later start, which shows no balloons by itself."""
        self.start(self.files)
        self.pointer(FORM)
        self.close()
        self.start(self.files)
        self.pointer(FORM)
        time.sleep(3.5)  # the tips are made anew after three seconds

    def test_a_first_start_shows_the_balloons_for_ten_seconds(self):
        self.start(self.files)
        begin = time.monotonic()
        self.tips_become(ALL_TIPS)
        self.tips_become({})
        self.assertGreater(time.monotonic() - begin, 8)
        self.close()
        self.start(self.files)
        time.sleep(1)
        self.assertEqual(self.tips(), {})
        self.close()

    def test_a_balloon_comes_to_a_resting_pointer_and_goes_after_six_seconds(self):
        self.start_again()
        self.pointer(GO)
        self.tips_become({"Go/Stop": 1})
        begin = time.monotonic()
        self.tips_become({})
        self.assertGreater(time.monotonic() - begin, 4)
        self.pointer(EXIT)
        self.tips_become({"Exit": 1})
        self.pointer(FORM)
        self.tips_become({})
        self.close()

    def test_a_move_over_help_shows_all_and_a_move_over_the_form_ends_it(self):
        self.start_again()
        self.pointer(HELP)
        self.tips_become(ALL_TIPS)
        time.sleep(7)  # longer than a balloon under the pointer stays
        self.tips_become(ALL_TIPS)
        self.pointer(GO)
        time.sleep(0.3)
        self.tips_become(ALL_TIPS)
        self.pointer(FORM)
        self.tips_become({})
        self.close()

    def test_balloons_go_with_their_window(self):
        self.start_again()
        self.pointer(HELP)
        self.tips_become(ALL_TIPS)
        title = "^Go/Stop$"
        tip = self.display.run("xdotool", "search", "--onlyvisible", "--name", title).stdout.split()[0]
        before = self.geometry(tip)
        left, top = self.geometry()[:2]
        self.display.run("xdotool", "windowmove", self.window, str(left + 40), str(top + 30))
        wait_for(lambda: self.geometry(tip)[0] != before[0], "the balloon beside its button")
        moved, window = self.geometry(tip), self.geometry()
        self.assertEqual((moved[0] - before[0], moved[1] - before[1]),
                         (window[0] - left, window[1] - top))
        self.display.run("xdotool", "windowminimize", self.window)
        self.tips_become({})
        self.display.run("xdotool", "windowmap", self.window)
        self.display.run("xdotool", "windowactivate", "--sync", self.window)
        self.tips_become(ALL_TIPS)
        self.display.run("wmctrl", "-i", "-c", self.window)
        self.assertEqual(self.ended(), 0)
        self.assertEqual(self.tips(), {})

    def test_tips_leave_the_focus_in_a_box_that_is_typed_in(self):
        self.start_again()
        self.click(BOX_1)
        self.keys("ctrl+a")
        self.type("one ")
        self.keys("F1")
        self.tips_become(ALL_TIPS)
        self.type("two ")
        self.keys("Escape")
        self.tips_become({})
        self.type("three ")
        wait_for(lambda: self.setting("Prefix") == "one two three ", "the whole text")
        self.close()

    def test_a_keyword_is_picked_and_pasted_into_a_box(self):
        self.start_again()
        self.click(KEYWORD_LIST)
        self.keys("Down", "Return")
        self.pointer(FORM)
        self.pointer(KEYWORD_LIST)
        self.tips_become({"Keyword List": 1})
        self.click(BOX_1)
        self.keys("ctrl+a", "ctrl+v")
        wait_for(lambda: self.setting("Prefix") in ("<NAMEONLY>", "<EXTONLY>"), "the keyword")
        self.tips_become({})
        self.close()

    def test_a_keyword_picked_by_the_mouse_is_explained_at_once(self):
        self.start_again()
        left, top = KEYWORD_LIST
        self.click(KEYWORD_LIST)
        time.sleep(0.7)  # a release that follows sooner is still the end of the first press
        self.pointer((left, top + 2))
        self.click((left + 2, top + 2))
        self.pointer((left + 8, top))  # never off the list
        self.tips_become({"Keyword List": 1})
        self.click(BOX_1)
        self.keys("ctrl+a", "ctrl+v")
        wait_for(lambda: self.setting("Prefix") == "<NAMEONLY>", "the keyword")
        self.close()

    def test_a_missing_keyword_list_is_told(self):
        (self.program_folder / "KeywordList.ini").unlink()
        self.start_behind_a_message(self.files)
        self.click(GO)
        self.names_become("new a.txt", "b.txt", "c.mp3")
        self.close()
