"""The window on a display of its own with a window manager, and what the tests do with it."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import time
import unittest

from screen_picture import ScreenPicture

BIN = pathlib.Path(os.environ["VORLANE_BIN"]).resolve()
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
TITLE_LABEL = (80, 22)
BOX_1 = (300, 410)
WILDCARD = (715, 28)
SECOND_OPERATION = (120, 396)
KEYWORD_LIST = (400, 342)
FORM = (600, 508)

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

    def __init__(self, size):
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


class WindowCase(unittest.TestCase):
    """A test with a display, a home and files of its own."""

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
        self.show_on("1400x1050")
        self.process = None

    def show_on(self, screen):
        self.display = Display(screen)
        self.addCleanup(self.display.close)

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
        self.wait_for_rest()
        self.display.run("xdotool", "windowactivate", "--sync", self.window)

    def start_behind_a_message(self, *arguments):
        """The start has something to tell first."""
        self.start_process(*arguments)
        box = wait_for(lambda: self.find_window(is_main=False), "the message box")
        self.display.run("xdotool", "windowactivate", "--sync", box)
        self.keys("Return")
        self.window = wait_for(self.find_window, "the window")
        self.display.run("xdotool", "windowactivate", "--sync", self.window)

    def wait_for_rest(self):
        """The listing that a start begins with has ended: what is clicked in it does nothing."""
        def computed():
            fields = pathlib.Path(f"/proc/{self.process.pid}/stat").read_text().rsplit(")")[1]
            return sum(int(ticks) for ticks in fields.split()[11:13])

        def rests():
            before = computed()
            time.sleep(0.5)
            return computed() - before <= 2
        wait_for(rests, "a program at rest")

    def find_window(self, is_main=True):
        """The main window, or a message box, which has the same title."""
        found = self.display.run("xdotool", "search", "--onlyvisible", "--name", TITLE).stdout.split()
        return next((window for window in found
                     if (self.geometry(window)[2] > 700) == is_main), None)

    @staticmethod
    def kill(process):
        if process.poll() is None:
            process.kill()
        process.wait()

    def pointer(self, place):
        self.display.run("xdotool", "mousemove", "--window", self.window, *map(str, place))

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
