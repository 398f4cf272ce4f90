"""The About box and its check for a newer version."""
import signal
import socket
import threading
import time

from window_world import HELP, TITLE, WindowCase, wait_for


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


class AboutTest(WindowCase):
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
