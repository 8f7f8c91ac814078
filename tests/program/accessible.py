"""A window as somebody meets it who does not see it or has no mouse: through the accessibility bus."""

import pyatspi

from desktop import xdotool
from farmtest import Failure, check, equal, wait_for, windows

ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
# What only holds others needs no name, nor does a dialog inside another's frame, a label that is empty now, or what
# repeats a position that the keys change. A label with a picture has another role.
NAMELESS = {
    pyatspi.ROLE_FILLER,
    pyatspi.ROLE_PANEL,
    pyatspi.ROLE_LAYERED_PANE,
    pyatspi.ROLE_SCROLL_BAR,
    pyatspi.ROLE_DIALOG,
    pyatspi.ROLE_LABEL,
}
# What stands in a control of its own and is reached with the arrows there.
PARTS = {pyatspi.ROLE_LIST_ITEM, pyatspi.ROLE_TABLE_CELL, pyatspi.ROLE_MENU, pyatspi.ROLE_MENU_ITEM}


def window(title):
    """The client's window of that title; it has to be there."""
    def found():
        for application in filter(None, pyatspi.Registry.getDesktop(0)):
            # What is asked here is to be the answer of this moment.
            application.set_cache_mask(pyatspi.Atspi.Cache.NONE)
            for top in application:
                if top and top.name == title and showing(top):
                    return top
        return None

    return wait_for(found, f"the window {title!r} on the accessibility bus")


def has(control, *states):
    known = control.getState()
    return all(known.contains(state) for state in states)


def showing(control):
    return has(control, pyatspi.STATE_SHOWING, pyatspi.STATE_VISIBLE)


def shown_controls(top):
    """Everything in the window that shows; not the rows of lists, of which there may be many."""
    for child in top:
        if child and showing(child):
            yield child
            if child.getRole() not in PARTS | {pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_LIST, pyatspi.ROLE_TREE}:
                yield from shown_controls(child)


def every_control_is_named(top):
    for control in shown_controls(top):
        role = control.getRole()
        where = f"{control.getRoleName()!r} in {top.name!r}, described as {control.description!r}"
        check(role not in (pyatspi.ROLE_INVALID, pyatspi.ROLE_UNKNOWN), f"no role: {where}")
        check(control.name or role in NAMELESS, f"no name: {where}")
        if role == pyatspi.ROLE_COMBO_BOX:
            # Its name is its value: what it is for stands in the label before it.
            relations = {relation.getRelationType() for relation in control.getRelationSet()}
            check(pyatspi.RELATION_LABELLED_BY in relations, f"no label: {where}")


def focusable_controls(top):
    enabled = (pyatspi.STATE_FOCUSABLE, pyatspi.STATE_ENABLED)
    return [control for control in shown_controls(top) if has(control, *enabled) and control.getRole() not in PARTS]


def key_of(control):
    return control.getRoleName(), control.name, control.description


def every_control_is_reached_by_tab(top):
    """Tab goes round all controls, and back to where it began."""
    xdotool("windowactivate", "--sync", *windows(top.name)[-1:])
    # Asked for once: walking the window takes longer than the focus takes to move.
    controls = {key_of(control): control for control in focusable_controls(top)}
    wanted = set(controls)

    def focused():
        return next((key for key, control in controls.items() if has(control, pyatspi.STATE_FOCUSED)), None)

    seen = [wait_for(focused, f"a control with the focus in {top.name!r}")]
    while len(seen) <= len(wanted):
        xdotool("key", "Tab")
        try:
            seen.append(wait_for(lambda: focused() not in (None, seen[-1]) and focused(), "the focus to move", 5))
        except Failure:
            raise Failure(f"Tab does not leave {seen[-1]} in {top.name!r}") from None
        if seen[-1] == seen[0]:
            break
    equal(wanted - set(seen), set(), f"controls in {top.name!r} that Tab does not reach")
