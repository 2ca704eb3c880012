"""Runs systemd-logind in the mount namespace it is started in: `private_logind.py <folder>`, with the address of
its bus in the environment. Writes "<session> <path>" once there is a session, then carries out the words on its
standard input ("lock 1", "lock 0", "suspend", "stop", "start") and answers "done" to each, one after the other."""

import os
import subprocess
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

MANAGER = "org.freedesktop.systemd1.Manager"
JOB = "/org/freedesktop/systemd1/job/1"


class ServiceManager(dbus.service.Object):
    """As much of the machine's service manager as logind asks for."""

    def job(self, unit):
        GLib.timeout_add(1, lambda: self.JobRemoved(1, JOB, unit, "done"))
        return dbus.ObjectPath(JOB)

    @dbus.service.method(MANAGER, in_signature="ssa(sv)a(sa(sv))", out_signature="o")
    def StartTransientUnit(self, name, mode, properties, auxiliary):
        return self.job(name)

    @dbus.service.method(MANAGER, in_signature="ss", out_signature="o")
    def StartUnit(self, name, mode):
        if name.endswith(".target"):
            GLib.timeout_add(300, lambda: self.JobRemoved(1, JOB, name, "done"))
            return dbus.ObjectPath(JOB)
        return self.job(name)

    @dbus.service.method(MANAGER, in_signature="ss", out_signature="o")
    def StopUnit(self, name, mode):
        return self.job(name)

    @dbus.service.method(MANAGER)
    def Subscribe(self):
        pass

    @dbus.service.signal(MANAGER, signature="uoss")
    def JobRemoved(self, number, job, unit, result):
        pass


class Unit(dbus.service.FallbackObject):
    """Every unit is loaded and runs."""

    @dbus.service.method("org.freedesktop.systemd1.Scope")
    def Abandon(self):
        pass

    @dbus.service.method("org.freedesktop.DBus.Properties", in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return {"LoadState": "loaded", "ActiveState": "active"}.get(name, "")


def mount(source, target, text=None):
    subprocess.run(["mount", "-t", "tmpfs", source, target], check=True)
    for name, content in (text or {}).items():
        with open(os.path.join(target, name), "w") as file:
            file.write(content)


class Lab:
    def __init__(self, folder):
        self.folder = folder
        self.bus = dbus.SystemBus()
        self.daemon = None
        self.session = None

    def start(self):
        with open(os.path.join(self.folder, "logind.log"), "a") as log:
            self.daemon = subprocess.Popen(["/lib/systemd/systemd-logind"], stderr=log, stdin=subprocess.DEVNULL)
        self.wait_for_name(True)

    def wait_for_name(self, there):
        while self.bus.name_has_owner("org.freedesktop.login1") != there:
            GLib.MainContext.default().iteration(False)

    def stop(self):
        self.daemon.terminate()
        self.daemon.wait()
        self.wait_for_name(False)

    def manager(self):
        return dbus.Interface(self.bus.get_object("org.freedesktop.login1", "/org/freedesktop/login1"),
                              "org.freedesktop.login1.Manager")

    def ask(self, method, *arguments, **options):
        """Asks without standing still, since logind asks this process in turn."""
        answers = []
        loop = GLib.MainLoop()
        def end(*answer):
            answers.append(answer)
            loop.quit()
        method(*arguments, reply_handler=end, error_handler=end, **options)
        loop.run()
        if answers[0] and isinstance(answers[0][0], Exception):
            raise answers[0][0]
        return answers[0]

    def create_session(self):
        self.session = self.ask(self.manager().CreateSession, os.getuid(), os.getpid(), "lab", "x11", "user", "",
                                "", 0, "", "", False, "", "", [], signature="uusssssussbssa(sv)")
        print(self.session[0], self.session[1], flush=True)

    def carry_out(self, line):
        word, *rest = line.split()
        if word == "lock":
            session = dbus.Interface(self.bus.get_object("org.freedesktop.login1", self.session[1]),
                                     "org.freedesktop.login1.Session")
            self.ask(session.SetLockedHint, rest[0] == "1")
        elif word == "suspend":
            self.ask(self.manager().Suspend, False)
        else:
            {"stop": self.stop, "start": self.start}[word]()
        print("done", flush=True)


def main():
    mount("tmpfs", "/run")
    os.makedirs("/run/systemd/system")
    os.makedirs("/run/user")
    mount("tmpfs", "/sys/power", {"state": "freeze mem", "mem_sleep": "[s2idle]", "disk": "[disabled]"})
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    lab = Lab(sys.argv[1])
    name = dbus.service.BusName("org.freedesktop.systemd1", lab.bus)
    ServiceManager(lab.bus, "/org/freedesktop/systemd1")
    Unit(lab.bus, "/org/freedesktop/systemd1/unit")
    lab.start()
    lab.create_session()
    loop = GLib.MainLoop()

    def read_order(*_):
        line = sys.stdin.readline()
        lab.carry_out(line) if line else loop.quit()
        return bool(line)

    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, read_order)
    loop.run()
    lab.stop()


main()
