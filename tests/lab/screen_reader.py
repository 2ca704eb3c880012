"""Reads a program's windows as a screen reader does. For each line with the name of a control it writes where the
control is, "x y width height" in pixels, or an empty line while nothing of that name is to be seen."""

import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PRESSED = ("push button", "check box", "radio button", "slider")


def children(node):
    return filter(None, (node.get_child_at_index(place) for place in range(node.get_child_count())))


def is_wanted(node, name):
    return node.get_name() == name and node.get_role_name() in PRESSED


def find(node, name):
    for child in children(node):
        if child.get_state_set().contains(Atspi.StateType.SHOWING):
            found = child if is_wanted(child, name) else find(child, name)
            if found:
                return found
    return None


def place_of(name):
    try:
        programs = children(Atspi.get_desktop(0))
        found = next(filter(None, (find(program, name) for program in programs)), None)
        if found:
            place = found.get_extents(Atspi.CoordType.SCREEN)
            return f"{place.x} {place.y} {place.width} {place.height}"
    except GLib.Error:
        pass  # what was there has gone meanwhile
    return ""


Atspi.init()
for line in sys.stdin:
    Atspi.get_desktop(0).clear_cache()
    print(place_of(line.rstrip("\n")), flush=True)
