#!/usr/bin/env python3
"""The window on a real display with a window manager: what no screen in memory can show.

Usage: window_test.py FOLDER-OF-THE-PROGRAMS
Needs Xvfb, openbox and xdotool. Each test has a display, a home and files of its own.
"""
import os
import pathlib
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest

BIN = pathlib.Path(sys.argv.pop(1)).resolve() if len(sys.argv) > 1 else None
TITLE = "Vorlane 2006"
PATIENCE = 20  # seconds; only a failing test waits so long

CATALOGUE = (
    "Operation Name:\tPrefix\r\nStep: <BOX1><FILENAME>\r\nHelp Message: Puts a text in front\r\n"
    "Available Boxes: 1\r\nBox Name: Text\r\nBox Display: Registry(Prefix|new )\r\n"
    "Box ToolTip: \r\nBox Check: \r\n"
    "Operation Name:\tMusic\r\nStep: <UPPERCASE><FILENAME></UPPERCASE>\r\nHelp Message: Music\r\n"
    "Wildcard: *.mp3\r\nAvailable Boxes: 0\r\n"
)

# Places in the client area, in pixels.
GO = (915, 430)
UNDO = (985, 209)
EXIT = (982, 70)
HELP = (985, 137)
DO_ONE = (502, 30)
BOX_1 = (300, 410)
WILDCARD = (715, 28)
SECOND_OPERATION = (120, 396)
BARE = (985, 320)  # no control there


def wait_for(condition, what):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError(f"waited in vain for {what}")


class Display:
    """A virtual display with a window manager."""

    def __init__(self, size="1400x1050"):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size + "x24", "-nolisten", "tcp"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.name = ":" + number.readline().strip()
        self.manager = subprocess.Popen(["openbox"], env=self.environment(),
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(lambda: self.run("xdotool", "get_desktop").returncode == 0, "the window manager")

    def environment(self):
        return dict(os.environ, DISPLAY=self.name)

    def run(self, *command):
        try:
            return subprocess.run(command, env=self.environment(), capture_output=True, text=True,
                                  timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"{command} didn't end") from None

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


class Proxy:
    """Takes one request on 127.0.0.1 and answers it, or keeps silent."""

    def __init__(self, answer):
        self.answer = answer
        self.asked = b""
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.port = self.listener.getsockname()[1]
        self.connection = None
        self.thread = threading.Thread(target=self.serve, daemon=True)

    def serve(self):
        self.connection, _ = self.listener.accept()
        asked = b""
        while not asked.endswith(b"\r\n\r\n"):
            asked += self.connection.recv(4096)
        self.asked = asked
        if self.answer is not None:
            self.connection.sendall(self.answer)
            self.connection.close()

    def __enter__(self):
        self.thread.start()
        return self

    def __exit__(self, *_):
        self.listener.close()
        if self.connection:
            self.connection.close()


class WindowTest(unittest.TestCase):
    def setUp(self):
        self.work = pathlib.Path(tempfile.mkdtemp(prefix="vorlane-e2e-"))
        self.addCleanup(shutil.rmtree, self.work)
        self.files = self.work / "files"
        self.files.mkdir()
        for name in ("a.txt", "b.txt", "c.mp3"):
            (self.files / name).write_text(name)
        self.program_folder = self.work / "program"
        self.program_folder.mkdir()
        (self.program_folder / "Operations.ini").write_bytes(CATALOGUE.encode())
        self.home = self.work / "home"
        self.home.mkdir()
        self.display = Display()
        self.addCleanup(self.display.close)
        self.process = None

    def environment(self, **more):
        environment = {key: value for key, value in self.display.environment().items()
                       if not key.startswith("XDG_")}
        runtime = self.work / "runtime"
        runtime.mkdir(mode=0o700, exist_ok=True)
        return dict(environment, HOME=str(self.home), XDG_RUNTIME_DIR=str(runtime),
                    VORLANE_HOME=str(self.program_folder), **{"VORLANE_NO_FADE": "1", **more})

    def start_process(self, *arguments, **environment):
        self.process = subprocess.Popen([BIN / "vorlane", *map(str, arguments)],
                                        env=self.environment(**environment), cwd=self.work)
        self.addCleanup(self.kill, self.process)

    def start(self, *arguments, **environment):
        self.start_process(*arguments, **environment)
        self.window = wait_for(self.find_window, "the window")
        self.display.run("xdotool", "windowactivate", "--sync", self.window)

    def find_window(self, is_main=True):
        """The main window, or a message box, which has the same title."""
        found = self.display.run("xdotool", "search", "--onlyvisible", "--name", TITLE).stdout.split()
        return next((window for window in found
                     if (self.geometry(window)[2] > 900) == is_main), None)

    @staticmethod
    def kill(process):
        if process.poll() is None:
            process.kill()
        process.wait()

    def click(self, place, *more):
        self.display.run("xdotool", "mousemove", "--window", self.window, *map(str, place),
                         "click", *more, "1")

    def keys(self, *keys):
        self.display.run("xdotool", "key", *keys)

    def type(self, text):
        self.display.run("xdotool", "type", text)

    def close(self):
        self.keys("ctrl+q")
        self.assertEqual(self.ended(), 0)

    def ended(self):
        return wait_for(lambda: self.process.poll() is not None, "the end") and self.process.poll()

    def names(self):
        return sorted(entry.name for entry in self.files.iterdir() if entry.name != "UNDORENAME.TXT")

    def names_become(self, *names):
        wait_for(lambda: self.names() == sorted(names), f"{names}, there is {self.names()}")

    def registry(self):
        path = self.home / ".config/vorlane/registry.conf"
        return path.read_text() if path.exists() else ""

    def setting(self, key):
        for line in self.registry().splitlines():
            if line.startswith(key + "="):
                return line.split(":", 1)[1]
        return None

    def geometry(self, window=None):
        lines = self.display.run("xdotool", "getwindowgeometry", "--shell",
                                 window or self.window).stdout
        values = dict(line.split("=") for line in lines.split())
        return tuple(int(values.get(key, 0)) for key in ("X", "Y", "WIDTH", "HEIGHT"))

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

    def test_a_maximized_window_comes_back_maximized_and_gets_its_old_size_again(self):
        self.start(self.files)
        self.display.run("xdotool", "windowsize", "--sync", self.window, "1100", "600")
        self.close()
        self.start()
        self.keys("super+Up")
        self.display.run("wmctrl", "-i", "-r", self.window, "-b", "add,maximized_vert,maximized_horz")
        wait_for(lambda: self.geometry()[2] > 1300, "the maximized window")
        self.close()
        self.assertEqual(self.setting("Maximized"), "1")
        self.assertEqual(self.setting("Width"), str(1100 * 15))
        self.start()
        wait_for(lambda: self.geometry()[2] > 1300, "the maximized window")
        self.display.run("wmctrl", "-i", "-r", self.window, "-b",
                         "remove,maximized_vert,maximized_horz")
        wait_for(lambda: self.geometry()[2:] == (1100, 600), "the old size")
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

    def test_help_opens_the_about_box(self):
        self.start(self.files)
        self.click(HELP)
        box = wait_for(lambda: self.display.run("xdotool", "search", "--onlyvisible", "--name",
                                                TITLE + " - About").stdout.split(), "the About box")[0]
        self.display.run("xdotool", "windowactivate", "--sync", box)
        self.keys("Escape")
        wait_for(lambda: not self.display.run("xdotool", "search", "--onlyvisible", "--name",
                                              TITLE + " - About").stdout, "the end of the box")
        self.display.run("xdotool", "windowactivate", "--sync", self.window)
        self.close()

    def about_box(self):
        return self.display.run("xdotool", "search", "--onlyvisible", "--name",
                                TITLE + " - About").stdout.split()

    def start_check(self, proxy):
        """Asks for a newer version by the keyboard; without a network that has to be confirmed."""
        self.start(self.files, http_proxy=f"http://127.0.0.1:{proxy.port}")
        self.click(HELP)
        box = wait_for(self.about_box, "the About box")[0]
        self.display.run("xdotool", "windowactivate", "--sync", box)
        self.keys("shift+Tab", "Return")
        wait_for(lambda: proxy.asked or self.message_box(), "the request or the question")
        if not proxy.asked:
            self.display.run("xdotool", "windowactivate", "--sync", self.message_box())
            self.keys("alt+y")
        wait_for(lambda: proxy.asked, "the request")

    def message_box(self):
        found = self.display.run("xdotool", "search", "--onlyvisible", "--name",
                                 f"^{TITLE}( Version .*)?$").stdout.split()
        return next((window for window in found if self.geometry(window)[2] < 900), None)

    def test_the_check_shows_what_the_vendors_server_says(self):
        with Proxy(b"HTTP/1.0 200 OK\r\n\r\nNothing new") as proxy:
            self.start_check(proxy)
            self.assertTrue(proxy.asked.startswith(
                b"GET http://www.vorlane.example/vorl.txt HTTP/1.0\r\n"), proxy.asked)
            answer = wait_for(lambda: self.display.run(
                "xdotool", "search", "--onlyvisible", "--name", TITLE + " Version ").stdout.split(),
                "the answer")[0]
            self.display.run("xdotool", "windowactivate", "--sync", answer)
            self.keys("Return")
            box = wait_for(self.about_box, "the About box")[0]
            self.display.run("xdotool", "windowactivate", "--sync", box)
            self.keys("Tab", "Tab", "space")  # from the link to Exit
            self.assertEqual(self.ended(), 0)

    def test_an_end_in_the_middle_of_a_check_waits_for_nobody(self):
        for end in (lambda: self.process.send_signal(signal.SIGTERM),
                    lambda: self.display.run("wmctrl", "-i", "-c", self.window)):
            with Proxy(None) as proxy:
                self.start_check(proxy)
                begin = time.monotonic()
                end()
                self.assertEqual(self.ended(), 0)
                self.assertLess(time.monotonic() - begin, 8)

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
        self.start_process(self.files)
        box = wait_for(lambda: self.find_window(is_main=False), "the message box")
        self.display.run("xdotool", "windowactivate", "--sync", box)
        self.keys("Return")
        self.window = wait_for(self.find_window, "the window")
        self.display.run("xdotool", "windowactivate", "--sync", self.window)
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


if __name__ == "__main__":
    unittest.main(verbosity=1)
