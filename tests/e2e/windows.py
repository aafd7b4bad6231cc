"""Windows as the X server and the window manager know them."""

from Xlib import X, Xatom, Xutil, display, error

SCREEN = display.Display()
ROOT = SCREEN.screen().root


def _atom(name):
    return SCREEN.intern_atom(name)


def _property(window, name, kind):
    try:
        found = window.get_full_property(_atom(name), kind)
    except error.BadWindow:  # it went away meanwhile
        found = None
    return list(found.value) if found else []


def window_of(process_id):
    """The window that a process has given to the window manager, or None."""
    for client in _property(ROOT, "_NET_CLIENT_LIST", Xatom.WINDOW):
        window = SCREEN.create_resource_object("window", client)
        if _property(window, "_NET_WM_PID", Xatom.CARDINAL) == [process_id]:
            return window
    return None


def active(window):
    """Whether it is the one that the user works with."""
    return _property(ROOT, "_NET_ACTIVE_WINDOW", Xatom.WINDOW) == [window.id]


def minimised(window):
    return _atom("_NET_WM_STATE_HIDDEN") in _property(window, "_NET_WM_STATE", Xatom.ATOM)


def in_front(window):
    """Whether no other window lies over it."""
    return _property(ROOT, "_NET_CLIENT_LIST_STACKING", Xatom.WINDOW)[-1:] == [window.id]


def place(window):
    """Its upper left corner on the screen."""
    corner = window.translate_coords(ROOT, 0, 0)
    return -corner.x, -corner.y


def icon_widths(window):
    """Of the pictures that a task list may choose from."""
    data, widths = _property(window, "_NET_WM_ICON", Xatom.CARDINAL), []
    while data:
        widths.append(data[0])
        data = data[2 + data[0] * data[1]:]
    return sorted(widths)


class OtherWindow:
    """Another program's window, over the middle of the screen."""

    def __init__(self):
        self.window = ROOT.create_window(0, 0, 1600, 1200, 0, X.CopyFromParent)
        self.window.set_wm_name("another program")
        self.window.set_wm_hints(flags=Xutil.InputHint, input=1)
        self.window.map()
        SCREEN.sync()

    def close(self):
        self.window.destroy()
        SCREEN.sync()
