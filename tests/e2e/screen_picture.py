"""What a virtual display shows: its pixels and the shape of the mouse pointer."""
import array
import ctypes
import struct


class ScreenPicture:
    """The pixels of one moment, from the file in which Xvfb keeps its screen (an X window dump)."""

    def __init__(self, path):
        with open(path, "rb") as file:
            dump = file.read()
        header = struct.unpack(">25I", dump[:100])
        self.lines = []
        place = header[0] + header[19] * 12
        for _ in range(header[5]):
            line = array.array("I", dump[place:place + 4 * header[4]])
            self.lines.append(line)
            place += header[12]

    def differences(self, other):
        """The places whose colour differs."""
        return {(x, y) for y, (mine, theirs) in enumerate(zip(self.lines, other.lines))
                if mine != theirs
                for x, (one, two) in enumerate(zip(mine, theirs)) if one != two}


class _CursorImage(ctypes.Structure):
    _fields_ = [("place", ctypes.c_short * 2), ("size", ctypes.c_ushort * 2),
                ("hot_spot", ctypes.c_ushort * 2), ("serial", ctypes.c_ulong),
                ("pixels", ctypes.POINTER(ctypes.c_ulong)), ("atom", ctypes.c_ulong),
                ("name", ctypes.c_char_p)]


def pointer_shape(display):
    """The pointer's picture: equal for equal shapes."""
    x11 = ctypes.CDLL("libX11.so.6")
    fixes = ctypes.CDLL("libXfixes.so.3")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    fixes.XFixesGetCursorImage.restype = ctypes.POINTER(_CursorImage)
    connection = ctypes.c_void_p(x11.XOpenDisplay(display.encode()))
    try:
        events, errors = ctypes.c_int(), ctypes.c_int()
        fixes.XFixesQueryExtension(connection, ctypes.byref(events), ctypes.byref(errors))
        image = fixes.XFixesGetCursorImage(connection).contents
        width, height = image.size
        shape = (width, height, tuple(image.hot_spot), tuple(image.pixels[:width * height]))
    finally:
        x11.XCloseDisplay(connection)
    return shape
