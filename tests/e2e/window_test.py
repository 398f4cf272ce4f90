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

from screen_picture import ScreenPicture, pointer_shape

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

KEYWORDS = "<NAMEONLY>\r\n'The name. Without extension.\r\n\r\n<EXTONLY>\r\n'The extension."

# Places in the client area, in pixels.
GO = (915, 430)
UNDO = (985, 209)
EXIT = (982, 70)
HELP = (985, 137)
DO_ONE = (502, 30)
BOX_1 = (300, 410)
WILDCARD = (715, 28)
SECOND_OPERATION = (120, 396)
KEYWORD_LIST = (400, 342)
FORM = (600, 508)

# The balloons of the whole help; the buttons that share a place have one each.
ALL_TIPS = {"Go/Stop": 2, "List Files/Folders": 2, "Include/Exclude Sub-folders": 2,
            "Process One File/All Files": 2, "Wildcard": 1, "Exit": 1, "Undo": 1}
TIP_TITLES = [*ALL_TIPS, "Keyword List"]
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
        self.pixels = pathlib.Path(tempfile.mkdtemp(prefix="vorlane-screen-"))
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size + "x24", "-nolisten", "tcp",
             "-fbdir", str(self.pixels)],
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

    def picture(self):
        return ScreenPicture(self.pixels / "Xvfb_screen0")

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()
        shutil.rmtree(self.pixels)


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
        (self.program_folder / "KeywordList.ini").write_bytes(KEYWORDS.encode())
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

    def start_at_a_known_place(self):
        """The corner of the window's inside, which xdotool doesn't tell, is at (100, 80) then."""
        self.start(self.files)
        self.display.run("xdotool", "windowmove", "--sync", self.window, "100", "80")

    def mouse(self, *actions):
        """Places in the window to move to, or words for the mouse's button."""
        for action in actions:
            if isinstance(action, str):
                self.display.run("xdotool", action, "1")
            else:
                self.display.run("xdotool", "mousemove", "--window", self.window,
                                 *map(str, action))

    def shape_at(self, place, unlike):
        """The pointer's shape there, which isn't one of the others."""
        self.mouse(place)
        wait_for(lambda: pointer_shape(self.display.name) not in unlike, f"a shape at {place}")
        return pointer_shape(self.display.name)

    def test_the_pointer_tells_where_the_window_can_be_resized(self):
        self.start_at_a_known_place()
        shapes = []
        for place in ((600, 503), (1016, 300), (600, 517), (1019, 518)):
            shapes.append(self.shape_at(place, unlike=shapes))
        self.mouse((600, 503))
        wait_for(lambda: pointer_shape(self.display.name) == shapes[0], "the arrow")
        self.close()

    def test_a_drag_shows_a_frame_of_one_pixel_and_moves_nothing(self):
        self.start_at_a_known_place()
        width, height = 1100, 600
        frame = ({(x, y) for x in range(100, 100 + width) for y in (80, 80 + height - 1)} |
                 {(x, y) for y in range(80, 80 + height) for x in (100, 100 + width - 1)})

        def far_from_the_pointer(places):
            """The pointer itself is drawn where it is, and isn't any more where it was."""
            return {(x, y) for x, y in places
                    if not any(abs(x - 100 - pointer[0]) < 40 and abs(y - 80 - pointer[1]) < 40
                               for pointer in ((1019, 518), (width, height)))}

        self.mouse((1019, 518))
        time.sleep(0.5)  # what the pointer was over has time to look as ever
        before = self.display.picture()
        self.mouse("mousedown", (1060, 560), (width, height))
        wait_for(lambda: far_from_the_pointer(self.display.picture().differences(before)) ==
                 far_from_the_pointer(frame), "a frame and nothing else")
        self.assertEqual(self.geometry()[2:], (1024, 522))
        self.mouse("mouseup")
        wait_for(lambda: self.geometry()[2:] == (width, height), "the new size")
        self.close()
        self.assertEqual(self.setting("Width"), str(width * 15))
        self.assertEqual(self.setting("Height"), str(height * 15))

    def test_a_drag_of_one_edge_keeps_the_other_and_stops_at_the_least_size(self):
        self.start_at_a_known_place()
        self.mouse((1016, 300), "mousedown", (1050, 400), (1111, 500), "mouseup")
        wait_for(lambda: self.geometry()[2:] == (1111, 522), "the new width")
        self.mouse((600, 517), "mousedown", (600, 550), (700, 577), "mouseup")
        wait_for(lambda: self.geometry()[2:] == (1111, 577), "the new height")
        self.mouse((1107, 573), "mousedown", (500, 300), (-90, -70), "mouseup")
        wait_for(lambda: self.geometry()[2:] == (996, 453), "the least size")
        self.close()

    def test_a_maximized_window_is_not_dragged_and_comes_back_as_it_was(self):
        self.start_at_a_known_place()
        toggle = ("wmctrl", "-i", "-r", self.window, "-b", "toggle,maximized_vert,maximized_horz")
        arrow = self.shape_at((600, 503), unlike=[])
        grip = self.shape_at((1019, 518), unlike=[arrow])
        self.display.run(*toggle)
        wait_for(lambda: self.geometry()[2] > 1300, "the maximized window")
        width, height = self.geometry()[2:]
        self.mouse((width - 4, height - 4))
        self.assertNotEqual(pointer_shape(self.display.name), grip)
        self.mouse("mousedown", (width - 200, height - 200), "mouseup")
        self.display.run(*toggle)
        wait_for(lambda: self.geometry()[2:] == (1024, 522), "the old size")
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

    def pointer(self, place):
        self.display.run("xdotool", "mousemove", "--window", self.window, *map(str, place))

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
        self.assertEqual(self.tips(), ALL_TIPS)
        self.pointer(GO)
        time.sleep(0.3)
        self.assertEqual(self.tips(), ALL_TIPS)
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

    def test_a_missing_keyword_list_is_told(self):
        (self.program_folder / "KeywordList.ini").unlink()
        self.start_process(self.files)
        box = wait_for(lambda: self.find_window(is_main=False), "the message box")
        self.display.run("xdotool", "windowactivate", "--sync", box)
        self.keys("Return")
        self.window = wait_for(self.find_window, "the window")
        self.display.run("xdotool", "windowactivate", "--sync", self.window)
        self.click(GO)
        self.names_become("new a.txt", "b.txt", "c.mp3")
        self.close()

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
