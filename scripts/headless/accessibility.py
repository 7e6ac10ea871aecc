"""What an assistive technology sees of the programs on a desktop. Runs as a program of its own inside that desktop,
with the system's Python, whose GObject bindings it needs:

    accessibility.py tree APPLICATION                     the windows as JSON: role, name, text, states, children
    accessibility.py act APPLICATION ROLE NAME            performs the first action of a control ("Press", "Toggle")
    accessibility.py write APPLICATION ROLE NAME TEXT     replaces the text of a field
    accessibility.py follow-focus APPLICATION             "listening", then the name of each control that gets the keyboard
"""

import json
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

STATES = {"checked": Atspi.StateType.CHECKED, "enabled": Atspi.StateType.ENABLED,
          "focusable": Atspi.StateType.FOCUSABLE, "focused": Atspi.StateType.FOCUSED,
          "showing": Atspi.StateType.SHOWING, "active": Atspi.StateType.ACTIVE}


def applications(name, seconds=10.0):
    """Several processes may have one name."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        found = [child for child in children(Atspi.get_desktop(0)) if child.get_name() == name]
        if found:
            return found
        time.sleep(0.1)
    raise SystemExit(f"no application {name!r} on the accessibility bus")


def text_of(node):
    try:
        return Atspi.Text.get_text(node, 0, -1)
    except GLib.Error:
        return None


def actions_of(node):
    try:
        return [Atspi.Action.get_action_name(node, index) for index in range(Atspi.Action.get_n_actions(node))]
    except GLib.Error:
        return []


def described(node):
    states = node.get_state_set()
    box = node.get_extents(Atspi.CoordType.SCREEN)
    return {"role": node.get_role_name(), "name": node.get_name(), "description": node.get_description(),
            "text": text_of(node), "actions": actions_of(node),
            "states": sorted(name for name, state in STATES.items() if states.contains(state)),
            "box": [box.x, box.y, box.width, box.height],
            "children": [described(child) for child in children(node)]}


def children(node):
    return [child for child in (node.get_child_at_index(index) for index in range(node.get_child_count())) if child]


def found(node, role, name):
    """Depth first, showing controls only: a window that was closed keeps its place in the tree."""
    for child in children(node):
        if child.get_role_name() == role and child.get_name() == name and \
                child.get_state_set().contains(Atspi.StateType.SHOWING):
            return child
        below = found(child, role, name)
        if below:
            return below
    return None


def control(app, role, name):
    for one in applications(app):
        node = found(one, role, name)
        if node:
            return node
    raise SystemExit(f"{app} shows no {role} {name!r}")


def follow_focus(app):
    def print_name(event):
        if event.detail1 and event.source.get_application().get_name() == app:
            print(event.source.get_name(), flush=True)

    listener = Atspi.EventListener.new(print_name)
    listener.register("object:state-changed:focused")
    print("listening", flush=True)
    Atspi.event_main()


def main(verb, app, *arguments):
    Atspi.init()
    if verb == "tree":
        print(json.dumps([described(window) for one in applications(app) for window in children(one)]))
    elif verb == "act":
        Atspi.Action.do_action(control(app, *arguments), 0)
    elif verb == "write":
        role, name, text = arguments
        Atspi.EditableText.set_text_contents(control(app, role, name), text)
    elif verb == "follow-focus":
        follow_focus(app)
    else:
        raise SystemExit(f"unknown verb {verb!r}")


main(*sys.argv[1:])
