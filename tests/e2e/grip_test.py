"""The strip along the edges by which the window is resized."""
import time

from screen_picture import pointer_shape
from window_world import WindowCase, wait_for


class GripTest(WindowCase):
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
        """The pointer's shape there, which isn't one of the others.

        A job that ends behind the move, as on a busy machine, gives the pointer its usual shape
        until the next move."""
        def has_shape():
            self.mouse((place[0] - 1, place[1]), place)
            return pointer_shape(self.display.name) not in unlike
        wait_for(has_shape, f"a shape at {place}")
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
        wait_for(lambda: pointer_shape(self.display.name) != grip, "another shape than the grip's")
        self.mouse("mousedown", (width - 200, height - 200), "mouseup")
        self.display.run(*toggle)
        wait_for(lambda: self.geometry()[2:] == (1024, 522), "the old size")
        self.close()
