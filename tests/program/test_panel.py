"""The icon on a panel that asks for it over the bus, as most desktops' do: its picture, its hint and its menu."""

import threading

from gi.repository import Gio, GLib

from desktop import WINDOW, starting_alertor
from farmtest import check, farm, run, wait_for, windows, write_settings

WATCHER = """<node><interface name='org.kde.StatusNotifierWatcher'>
<method name='RegisterStatusNotifierItem'><arg type='s' direction='in'/></method>
<property name='IsStatusNotifierHostRegistered' type='b' access='read'/></interface></node>"""
ITEM, MENU = "org.kde.StatusNotifierItem", "com.canonical.dbusmenu"


class Panel:
    def __init__(self):
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.items = []
        interface = Gio.DBusNodeInfo.new_for_xml(WATCHER).interfaces[0]
        self._bus.register_object("/StatusNotifierWatcher", interface, self._register, lambda *_: GLib.Variant("b", True), None)
        Gio.bus_own_name_on_connection(self._bus, interface.name, Gio.BusNameOwnerFlags.NONE, None, None)
        threading.Thread(target=GLib.MainLoop().run, daemon=True).start()

    def _register(self, _bus, sender, _path, _interface, _method, _parameters, invocation):
        self.items.append(sender)
        invocation.return_value(None)

    def ask(self, path, interface, method, *arguments):
        return self._bus.call_sync(self.items[-1], path, interface, method, *arguments, None, 0, -1, None).unpack()

    def shown(self, name):
        question = GLib.Variant("(ss)", (ITEM, name))
        return self.ask("/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get", question)[0]


def test():
    write_settings({"behaviours": {"showBubble": "false"}})
    panel = Panel()
    gone = farm()
    gone.kill()
    program = starting_alertor("-server", "127.0.0.1", "-port", str(gone.port))
    wait_for(lambda: panel.items, "the icon on the panel")
    wait_for(lambda: panel.shown("ToolTip")[2].startswith("Tarrow Alertor (not connected)"), "the hint without a link")
    lonely = panel.shown("IconPixmap")
    check(lonely, "there is no picture")
    night = farm("--no-frames", port=gone.port)
    wait_for(lambda: panel.shown("ToolTip")[2].splitlines()[0] == "Tarrow Alertor", "the hint with a link")
    wait_for(lambda: panel.shown("IconPixmap") != lonely, "another picture")
    layout = panel.ask(panel.shown("Menu"), MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))[1]
    entries = {entry[1].get("label"): entry[0] for entry in layout[2]}
    click = GLib.Variant("(isvu)", (entries["_Restore"], "clicked", GLib.Variant("i", 0), 0))
    panel.ask(panel.shown("Menu"), MENU, "Event", click)
    wait_for(lambda: windows(WINDOW), "the window")
    program.quit()
    night.quit()


run(test)
