"""A service of the session bus that a desktop may have: `desktop_services.py <kind> [<name>]`. Writes "ready", then
carries out the words on its standard input and answers "done" to each."""

import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib


def screen_saver(bus, name):
    class Saver(dbus.service.Object):
        active = False

        @dbus.service.method(name, out_signature="b")
        def GetActive(self):
            return self.active

        @dbus.service.method(name)
        def Lock(self):
            self.order("1")

        @dbus.service.signal(name, signature="b")
        def ActiveChanged(self, active):
            pass

        def order(self, word):
            self.active = word == "1"
            self.ActiveChanged(self.active)

    return name, Saver(bus, "/" + name.replace(".", "/"))


def idle_monitor(bus, name):
    class Monitor(dbus.service.Object):
        idle = 0
        watches = 0

        @dbus.service.method(name, out_signature="t")
        def GetIdletime(self):
            return self.idle

        @dbus.service.method(name, in_signature="t", out_signature="u")
        def AddIdleWatch(self, interval):
            self.watches += 1
            return self.watches

        @dbus.service.method(name, out_signature="u")
        def AddUserActiveWatch(self):
            self.watches += 1
            return self.watches

        @dbus.service.signal(name, signature="u")
        def WatchFired(self, watch):
            pass

        def order(self, word):
            self.WatchFired(dbus.UInt32(int(word)))

    return name, Monitor(bus, "/org/gnome/Mutter/IdleMonitor/Core")


def policy_agent(bus, name):
    class Agent(dbus.service.Object):
        inhibitions = dbus.Array([], signature="(ss)")

        @dbus.service.method(name, out_signature="a(ss)")
        def ListInhibitions(self):
            return self.inhibitions

        @dbus.service.signal(name, signature="a(ss)as")
        def InhibitionsChanged(self, added, removed):
            pass

        def order(self, *words):
            pairs = [(word.split("=")[0], word.split("=")[1]) for word in words]
            self.inhibitions = dbus.Array(pairs, signature="(ss)")
            self.InhibitionsChanged(self.inhibitions, dbus.Array([], signature="s"))

    return name, Agent(bus, "/org/kde/Solid/PowerManagement/PolicyAgent")


def power_management(bus, name):
    class Manager(dbus.service.Object):
        names = dbus.Array([], signature="s")

        @dbus.service.method(name, out_signature="as")
        def GetInhibitors(self):
            return self.names

        @dbus.service.signal(name, signature="b")
        def HasInhibitChanged(self, has):
            pass

        def order(self, *words):
            had = len(self.names) > 0
            self.names = dbus.Array(words, signature="s")
            if had != (len(words) > 0):
                self.HasInhibitChanged(not had)

    return name, Manager(bus, "/org/freedesktop/PowerManagement/Inhibit")


def displays(bus, name):
    class Displays(dbus.service.Object):
        mode = 0

        @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
        def Get(self, interface, property):
            return dbus.Int32(self.mode)

        @dbus.service.signal(dbus.PROPERTIES_IFACE, signature="sa{sv}as")
        def PropertiesChanged(self, interface, changed, invalidated):
            pass

        def order(self, word):
            self.mode = int(word)
            self.PropertiesChanged(name, {"PowerSaveMode": dbus.Int32(self.mode)}, dbus.Array([], signature="s"))

    return name, Displays(bus, "/org/gnome/Mutter/DisplayConfig")


def settings_portal(bus, name):
    interface = "org.freedesktop.portal.Settings"

    class Portal(dbus.service.Object):
        values = {}

        @dbus.service.method(interface, in_signature="as", out_signature="a{sa{sv}}")
        def ReadAll(self, namespaces):
            return {key: value for key, value in self.values.items() if key in namespaces}

        @dbus.service.signal(interface, signature="ssv")
        def SettingChanged(self, namespace, key, value):
            pass

        def order(self, namespace, key, kind, word):
            value = {"u": dbus.UInt32, "s": dbus.String, "b": lambda w: dbus.Boolean(w == "true"),
                     "d": lambda w: dbus.Double(float(w))}[kind](word)
            self.values.setdefault(dbus.String(namespace), {})[dbus.String(key)] = value
            self.SettingChanged(namespace, key, value)

    return name, Portal(bus, "/org/freedesktop/portal/desktop")


def tray_watcher(bus, name):
    class Watcher(dbus.service.Object):
        has_panel = True
        items = []

        @dbus.service.method(name, in_signature="s", sender_keyword="sender")
        def RegisterStatusNotifierItem(self, service, sender=None):
            self.items.append(service)

        @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
        def Get(self, interface, property):
            return self.has_panel if property.startswith("Is") else dbus.Array(self.items, signature="s")

        @dbus.service.signal(name)
        def StatusNotifierHostRegistered(self):
            pass

        @dbus.service.signal(name)
        def StatusNotifierHostUnregistered(self):
            pass

        def order(self, word):
            self.has_panel = word == "panel"
            (self.StatusNotifierHostRegistered if self.has_panel else self.StatusNotifierHostUnregistered)()

    return name, Watcher(bus, "/StatusNotifierWatcher")


KINDS = {
    "screen-saver": screen_saver,
    "idle-monitor": idle_monitor,
    "policy-agent": policy_agent,
    "power-management": power_management,
    "displays": displays,
    "settings-portal": settings_portal,
    "tray-watcher": tray_watcher,
}


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    name, service = KINDS[sys.argv[1]](bus, sys.argv[2])
    owned = dbus.service.BusName(name, bus)
    loop = GLib.MainLoop()

    def read_order(*_):
        line = sys.stdin.readline()
        if not line:
            loop.quit()
            return False
        service.order(*line.split())
        print("done", flush=True)
        return True

    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, read_order)
    print("ready", flush=True)
    loop.run()


main()
