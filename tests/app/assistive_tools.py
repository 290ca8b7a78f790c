"""The window as a screen reader meets it, through AT-SPI. The argument is the sample it has open."""
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

SECONDS = 20
# Less than one of them would be enough but for a busy machine.
Atspi.set_timeout(SECONDS * 1000, SECONDS * 1000)
faults = []


def wait_for(find):
    until = time.monotonic() + SECONDS
    while time.monotonic() < until:
        try:
            found = find()
        except (GLib.Error, AttributeError):  # what was asked is gone, or not there yet
            found = None
        if found:
            return found
        time.sleep(0.05)
    return None


def children(node):
    found = (node.get_child_at_index(i) for i in range(node.get_child_count()))
    return [child for child in found if child]


def all_below(node):
    for child in children(node):
        yield child
        yield from all_below(child)


def window():
    for program in children(Atspi.get_desktop(0)):
        if (program.get_name() or "").lower() == "orbelle":
            for frame in children(program):
                if frame.get_role_name() == "frame" and sys.argv[1] in frame.get_name():
                    return frame
    return None


def has(node, state):
    return node.get_state_set().contains(state)


def expect(holds, fault):
    if not holds:
        faults.append(fault)


def one(frame, role, name):
    found = [n for n in all_below(frame) if n.get_role_name() == role and n.get_name() == name]
    expect(len(found) == 1, f"{len(found)} of {role} {name!r}")
    return found[0] if found else None


Atspi.init()
frame = wait_for(window)
if not frame:
    sys.exit("no window")

def look_around():
    """True: all is as it should be; lists are filled a little later than the window comes."""
    faults.clear()
    for node in all_below(frame):
        # What the keys reach has a name, and a role that says what to do with it.
        if has(node, Atspi.StateType.FOCUSABLE) and has(node, Atspi.StateType.SHOWING):
            role, name = node.get_role_name(), node.get_name()
            expect(name, f"a nameless {role} in {node.get_parent().get_name()!r}")
            expect(role not in ("filler", "panel", "unknown") or name == "Scene", f"{name!r} is a {role}")
    layers = one(frame, "list", "Layers")
    expect(layers and len(children(layers)) == 5, "five layers")
    return not faults


wait_for(look_around)
pencil = one(frame, "push button", "Pencil tool")
pencil.do_action(0)
expect(wait_for(lambda: has(pencil, Atspi.StateType.CHECKED)), "the pencil is not chosen")

undo = one(frame, "menu item", "Undo")
expect(not has(undo, Atspi.StateType.ENABLED), "there is something to undo")
hue = one(frame, "slider", "Hue")
expect((hue.get_minimum_value(), hue.get_maximum_value()) == (0, 100), "the range of Hue")
hue.set_current_value(30)
expect(wait_for(lambda: hue.get_current_value() == 30), "Hue does not follow")
expect(wait_for(lambda: has(undo, Atspi.StateType.ENABLED)), "the change of Hue is no step")

sys.exit("\n".join(faults) or 0)
