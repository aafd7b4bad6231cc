"""Who else is on the session bus: parts of a desktop, played by the test."""

from gi.repository import Gio, GLib

NOTIFICATIONS = "org.freedesktop.Notifications"
NOTIFICATIONS_PATH = "/org/freedesktop/Notifications"
NOTIFICATIONS_INTERFACE = Gio.DBusNodeInfo.new_for_xml("""
<node><interface name="org.freedesktop.Notifications">
<method name="GetCapabilities"><arg type="as" direction="out"/></method>
<method name="Notify">
<arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
<arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
<arg type="a{sv}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
</method>
<method name="CloseNotification"><arg type="u" direction="in"/></method>
<signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
<signal name="ActivationToken"><arg type="u"/><arg type="s"/></signal>
</interface></node>""").interfaces[0]
APPLICATION_INTERFACE = Gio.DBusNodeInfo.new_for_xml("""
<node><interface name="org.freedesktop.Application">
<method name="Activate"><arg type="a{sv}" direction="in"/></method>
</interface></node>""").interfaces[0]


def call_bus(bus, method, arguments):
    bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
                  arguments, None, 0, -1)


class Application:
    """A program of this name that runs already; served while the test waits for something.

    One that is ending gives its name back instead of an answer.
    """

    NAME = "org.kestrelraid.KestrelRaid"

    def __init__(self, ending=False):
        self.ending = ending
        self.activated = []  # what came with each call
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.object = self.bus.register_object(
            "/org/kestrelraid/KestrelRaid", APPLICATION_INTERFACE, self._serve)
        call_bus(self.bus, "RequestName", GLib.Variant("(su)", (self.NAME, 4)))

    def _serve(self, _bus, _sender, _path, _interface, _method, arguments, call):
        self.activated.append(arguments.unpack()[0])
        if self.ending:
            self.close()
            call.return_dbus_error("org.freedesktop.DBus.Error.NoReply", "it has ended")
        else:
            call.return_value(None)

    def close(self):
        call_bus(self.bus, "ReleaseName", GLib.Variant("(s)", (self.NAME,)))
        self.bus.unregister_object(self.object)


class Notifications:
    """A notification service. Notes what is shown and closed; served while the test waits for something."""

    def __init__(self):
        self.capabilities = ["actions", "body", "body-markup"]
        self.silent = False  # takes every call and answers none
        self.asked = []  # the names of all calls
        self.shown = []  # dictionaries, in their order; the first one has the id 1
        self.closed = []  # ids
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.bus.register_object(NOTIFICATIONS_PATH, NOTIFICATIONS_INTERFACE, self._serve)
        call_bus(self.bus, "RequestName", GLib.Variant("(su)", (NOTIFICATIONS, 4)))

    def _serve(self, _bus, _sender, _path, _interface, method, arguments, call):
        self.asked.append(method)
        if self.silent:
            return
        if method == "GetCapabilities":
            call.return_value(GLib.Variant("(as)", (self.capabilities,)))
        elif method == "Notify":
            names = ("program", "replaces", "icon", "title", "text", "actions", "hints", "time")
            self.shown.append(dict(zip(names, arguments.unpack())))
            call.return_value(GLib.Variant("(u)", (len(self.shown),)))
        else:
            self.closed.append(arguments.unpack()[0])
            call.return_value(None)

    def choose(self, notification):
        """The user clicks on it."""
        for signal, text in (("ActivationToken", "a token"), ("ActionInvoked", "default")):
            self.bus.emit_signal(None, NOTIFICATIONS_PATH, NOTIFICATIONS, signal,
                                 GLib.Variant("(us)", (notification, text)))
