"""Listens for announcements as a screen reader does. Writes "ready", then each sentence on a line of its own."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi


def heard(event):
    print(event.any_data, flush=True)


Atspi.init()
listener = Atspi.EventListener.new(heard)
listener.register("object:announcement")
print("ready", flush=True)
Atspi.event_main()
