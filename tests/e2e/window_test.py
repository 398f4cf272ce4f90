"""Whole visits: from the start over renaming to the end, and what is kept between them."""
import os
import pathlib
import signal
import subprocess
import time

from window_world import (BIN, BOX_1, DO_ONE, EXIT, FORM, GO, PATIENCE, SECOND_OPERATION,
                          TITLE_LABEL, UNDO, WILDCARD, WindowCase, wait_for)

VENDOR_ADDRESS = "https://www.vorlane.example/"


class WindowTest(WindowCase):
    def test_a_whole_visit(self):
        self.start(self.files)
        self.click(DO_ONE)
        self.click(GO)
        self.names_become("new a.txt", "new b.txt", "new c.mp3")
        wait_for((self.files / "UNDORENAME.TXT").exists, "the journal")
        self.click(UNDO)
        self.names_become("a.txt", "b.txt", "c.mp3")
        self.click(BOX_1)
        self.keys("ctrl+a")
        self.type("my ")
        self.keys("Return")
        self.names_become("my a.txt", "my b.txt", "my c.mp3")
        self.close()
        self.assertFalse((self.files / "UNDORENAME.TXT").exists())
        self.assertEqual(self.setting("Prefix"), "my ")
        self.assertEqual(self.setting("StartPath"), f"{self.files}/")

    def test_everything_is_found_as_it_was_left(self):
        self.start(self.files)
        self.click(SECOND_OPERATION)
        self.click(WILDCARD)
        self.keys("ctrl+a")
        self.type("*.ogg")
        self.display.run("xdotool", "windowsize", "--sync", self.window, "1100", "600")
        self.display.run("xdotool", "windowmove", "--sync", self.window, "150", "120")
        time.sleep(1.2)  # the pause behind the typing
        self.close()
        self.assertEqual(self.setting("LastOperation"), "2")
        self.assertEqual(self.setting("WildCards"), "*.*|*.mp3|*.ogg")
        self.assertEqual(self.setting("Width"), str(1100 * 15))
        self.assertEqual(self.setting("Height"), str(600 * 15))
        self.assertEqual(self.setting("Maximized"), "0")
        first_place = (self.setting("Left"), self.setting("Top"))
        self.start()
        self.assertEqual(self.geometry()[2:], (1100, 600))
        self.close()
        self.assertEqual((self.setting("Left"), self.setting("Top")), first_place)
        self.assertEqual(self.setting("StartPath"), f"{self.files}/")

    def place(self):
        return [self.setting(key) for key in ("Left", "Top", "Width", "Height")]

    def test_a_maximized_window_comes_back_maximized_and_gets_its_old_place_again(self):
        self.start(self.files)
        self.display.run("xdotool", "windowsize", "--sync", self.window, "1100", "600")
        self.display.run("xdotool", "windowmove", "--sync", self.window, "150", "120")
        self.close()
        place = self.place()
        self.assertEqual(place[2:], [str(1100 * 15), str(600 * 15)])
        self.start()
        self.maximize("add")
        wait_for(lambda: self.geometry()[2] > 1300, "the maximized window")
        self.close()
        self.assertEqual(self.setting("Maximized"), "1")
        self.assertEqual(self.place(), place)
        self.start()
        wait_for(lambda: self.geometry()[2] > 1300, "the maximized window")
        self.maximize("remove")
        wait_for(lambda: self.geometry()[2:] == (1100, 600), "the old size")
        self.wait_for_rest()
        self.close()
        self.assertEqual(self.setting("Maximized"), "0")
        self.assertEqual(self.place(), place)

    def maximize(self, action):
        self.display.run("wmctrl", "-i", "-r", self.window, "-b",
                         action + ",maximized_vert,maximized_horz")

    def wakings(self):
        """How often the program wakes up in a second; a button that is hot watches the pointer."""
        def count():
            status = pathlib.Path(f"/proc/{self.process.pid}/status").read_text()
            return int(status.split("\nvoluntary_ctxt_switches:")[1].split()[0])
        before = count()
        time.sleep(1)
        return count() - before

    def test_nothing_watches_the_pointer_while_it_is_elsewhere(self):
        self.start(self.files)
        self.pointer(GO)
        wait_for(lambda: self.wakings() > 50, "a hot button")
        self.pointer(FORM)
        wait_for(lambda: self.wakings() < 20, "a program that sleeps")
        self.close()

    def test_widths_that_nobody_changed_stay_as_they_were(self):
        self.start(self.files)
        self.close()
        self.assertEqual(self.setting("FileNameWidth"), "4000")
        self.assertEqual(self.setting("PathWidth"), "6000")

    def test_the_window_managers_close_is_an_exit(self):
        self.start(self.files)
        self.display.run("wmctrl", "-i", "-c", self.window)
        self.assertEqual(self.ended(), 0)
        self.assertEqual(self.setting("StartPath"), f"{self.files}/")

    def test_the_exit_button_ends_the_program(self):
        self.start(self.files)
        self.click(EXIT)
        self.assertEqual(self.ended(), 0)

    def test_sigterm_ends_in_good_order(self):
        self.start(self.files)
        self.process.send_signal(signal.SIGTERM)
        self.assertEqual(self.ended(), 0)
        self.assertEqual(self.setting("StartPath"), f"{self.files}/")

    def test_what_is_typed_is_kept_at_once_and_outlives_a_crash(self):
        self.start(self.files)
        self.click(BOX_1)
        self.keys("ctrl+a")
        self.type("shared ")
        wait_for(lambda: self.setting("Prefix") == "shared ", "the kept text")
        first = self.process
        first.kill()
        first.wait()
        self.start(self.files)
        self.click(GO)
        self.names_become("shared a.txt", "b.txt", "c.mp3")
        self.close()

    def test_an_exit_writes_the_verb_and_context_0_takes_it_away(self):
        entry = self.home / ".local/share/applications/vorlane-folder.desktop"
        self.start(self.files)
        self.assertFalse(entry.exists())
        self.close()
        self.assertIn(str(BIN / "vorlane"), entry.read_text())
        path = self.home / ".config/vorlane/registry.conf"
        text = path.read_text()
        path.write_text(text.replace("\nMaximized=", "\nContext=sz:0\nMaximized="))
        self.start()
        self.close()
        self.assertFalse(entry.exists())

    def test_uninstall_without_a_display_asks_at_the_terminal(self):
        self.start(self.files)
        self.close()
        environment = {key: value for key, value in self.environment().items()
                       if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
        for answer, kept in (("n\n", True), ("y\n", False)):
            done = subprocess.run([BIN / "vorlane", "/Uninstall"], input=answer, text=True,
                                  env=environment, capture_output=True, timeout=PATIENCE)
            self.assertEqual(done.returncode, 0)
            self.assertIn("Delete all saved settings?", done.stdout)
            self.assertEqual(self.setting("StartPath") is not None, kept)
        entry = self.home / ".local/share/applications/vorlane-folder.desktop"
        self.assertFalse(entry.exists())

    def test_a_missing_catalogue_is_told_and_bars_go(self):
        (self.program_folder / "Operations.ini").unlink()
        self.start_behind_a_message(self.files)
        self.click(GO)
        self.close()
        self.assertEqual(self.names(), ["a.txt", "b.txt", "c.mp3"])

    def test_sigterm_closes_an_open_box_and_wipes_nothing(self):
        self.start(self.files)
        self.close()
        (self.program_folder / "Operations.ini").unlink()
        self.start_process()
        wait_for(lambda: self.find_window(is_main=False), "the message box")
        self.process.send_signal(signal.SIGTERM)
        self.assertEqual(self.ended(), 0)
        self.assertEqual(self.setting("StartPath"), f"{self.files}/")

    def test_sigterm_in_the_middle_of_a_run_ends_it_behind_the_row_in_hand(self):
        for number in range(4000):
            (self.files / f"more {number}").write_text(str(number))
        count = len(self.names())
        self.start(self.files)
        self.click(DO_ONE)
        self.click(GO)
        wait_for(lambda: any(name.startswith("new ") for name in self.names()), "the first rename")
        self.process.send_signal(signal.SIGTERM)
        self.assertEqual(self.ended(), 0)
        renamed = [name for name in self.names() if name.startswith("new ")]
        self.assertLess(len(renamed), count)
        self.assertEqual(len(self.names()), count)
        for name in renamed:
            if name.startswith("new more "):
                self.assertEqual((self.files / name).read_text(), name[len("new more "):])

    def test_the_window_fades_away_behind_the_saving(self):
        self.start(self.files, VORLANE_NO_FADE="0")
        self.keys("ctrl+q")
        begin = time.monotonic()
        wait_for(lambda: self.setting("StartPath"), "the saved settings")
        self.assertIsNone(self.process.poll())
        self.assertEqual(self.ended(), 0)
        self.assertGreater(time.monotonic() - begin, 0.7)

    def test_a_click_on_the_title_opens_the_vendors_page(self):
        browser = self.work / "bin/xdg-open"
        browser.parent.mkdir()
        opened = self.work / "opened"
        browser.write_text(f'#!/bin/sh\nprintf "%s|" "$@" >>"{opened}"\n')
        browser.chmod(0o755)
        self.start(self.files, PATH=f"{browser.parent}:{os.environ['PATH']}")
        self.click(TITLE_LABEL)
        wait_for(opened.exists, "the browser")
        self.close()
        self.assertEqual(opened.read_text(), VENDOR_ADDRESS + "|")

    def test_what_is_no_folder_is_no_start_folder(self):
        self.start(self.files)
        self.close()
        for argument in (self.files / "a.txt", "/uninstall", "nowhere"):
            self.start(argument)
            self.close()
            self.assertEqual(self.setting("StartPath"), f"{self.files}/")
        self.start("files")
        self.close()
        self.assertEqual(self.setting("StartPath"), f"{self.files}/")

    def test_a_home_that_takes_no_files_keeps_nobody_from_working(self):
        blocked = self.work / "blocked"
        blocked.write_text("a file, not a folder")
        self.start(self.files, XDG_CONFIG_HOME=str(blocked), XDG_DATA_HOME=str(blocked),
                   XDG_STATE_HOME=str(blocked))
        self.click(GO)
        self.names_become("new a.txt", "b.txt", "c.mp3")
        self.close()
