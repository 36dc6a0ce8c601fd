"""What AT-SPI has no way to do to a program's window: give it the keyboard, and ask it to close."""

import ctypes
import ctypes.util

_x11 = ctypes.CDLL(ctypes.util.find_library("X11") or "libX11.so.6")
_Id = ctypes.c_ulong
_x11.XOpenDisplay.restype = ctypes.c_void_p
_x11.XDefaultRootWindow.restype = _Id
_x11.XInternAtom.restype = _Id

# A window may not be there yet, or no longer; whoever waits tries again.
_ignore = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)
_x11.XSetErrorHandler(_ignore)

_CLIENT_MESSAGE = 33
_REVERT_TO_PARENT = 2


class _ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", _Id), ("message_type", _Id), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5), ("padding", ctypes.c_long * 12)]


def window_count():
    """How many windows the display shows to its user."""
    with Window() as window:
        return window.count


class Window:
    """The one window on the display; there is no window manager to do any of this."""

    def __init__(self):
        self._display = ctypes.c_void_p(_x11.XOpenDisplay(None))
        windows = [window for window in self._top_level() if self._protocols(window)]
        self.count = len(windows)
        self._id = next(iter(windows), 0)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        _x11.XCloseDisplay(self._display)

    def focus(self):
        _x11.XSetInputFocus(self._display, _Id(self._id), _REVERT_TO_PARENT, _Id(0))

    def close(self):
        message = _ClientMessage(type=_CLIENT_MESSAGE, window=self._id, message_type=self._atom("WM_PROTOCOLS"),
                                 format=32)
        message.data[0] = self._atom("WM_DELETE_WINDOW")
        _x11.XSendEvent(self._display, _Id(self._id), 0, ctypes.c_long(0), ctypes.byref(message))

    def _atom(self, name):
        return _x11.XInternAtom(self._display, name.encode(), 0)

    def _top_level(self):
        root, parent, count = _Id(), _Id(), ctypes.c_uint()
        windows = ctypes.POINTER(_Id)()
        _x11.XQueryTree(self._display, _Id(_x11.XDefaultRootWindow(self._display)), ctypes.byref(root),
                        ctypes.byref(parent), ctypes.byref(windows), ctypes.byref(count))
        return windows[:count.value]

    def _protocols(self, window):
        """How many window manager protocols a window speaks: those that Qt works with unseen speak none."""
        atoms, count = ctypes.POINTER(_Id)(), ctypes.c_int()
        _x11.XGetWMProtocols(self._display, _Id(window), ctypes.byref(atoms), ctypes.byref(count))
        return count.value
