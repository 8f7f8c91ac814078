#!/usr/bin/env python3
"""Checks that the style sheets can be read: check_contrast.py SHEET...

The sheets are taken as one, in the given order. Every rule that colours text, or what lies behind it, must leave a
contrast of 4.5:1 (WCAG 2.1, 1.4.3) and every edge that shows the focus one of 3:1 (1.4.11) against the surface inside
it and the window around it. What is disabled is exempt. A colour that a rule leaves open is the one it takes over: from
the same thing in a plainer state, then from the widget that the thing is a part of, then from the rule for QWidget.

    >>> check("QWidget { color: #dddddd; background-color: #2b2b2b }")
    []
    >>> check("QWidget { color: #dddddd; background-color: #2b2b2b } QMenu::item:selected { background-color: #888 }")
    ['QMenu::item:selected: text #dddddd on #888888 has 2.6:1, needs 4.5:1']
    >>> check("QWidget { color: #ddd; background-color: #2b2b2b } #a { background-color: #999 } #a:disabled { color: #888 }")
    ['#a: text #dddddd on #999999 has 2.1:1, needs 4.5:1']
    >>> check("QWidget { color: #ddd; background-color: #2b2b2b } QLineEdit:focus { border: 1px solid #444 }")
    ['QLineEdit:focus: focus #444444 on #2b2b2b has 1.5:1, needs 3.0:1']
    >>> check("QMenu { color: white }")
    Traceback (most recent call last):
    ValueError: no rule for QWidget gives a colour and a background
"""
import re
import sys

TEXT, EDGE = 4.5, 3.0
COLOUR = re.compile(r"#(?:[0-9a-fA-F]{6}|[0-9a-fA-F]{3})\b|\bwhite\b|\bblack\b|\btransparent\b")
NAMED = {"white": "#ffffff", "black": "#000000", "transparent": None}
# Parts that carry no text: their surfaces are judged by the eye, not by this.
TEXTLESS = re.compile(r"QScrollBar|QSlider|QSplitter|corner|groove|indicator|arrow|-button|separator|Border$")
INHERITED = ("color", "background-color")


def parse(sheet):
    """The rules in order: (selector, {property: value})."""
    sheet = re.sub(r"/\*.*?\*/", "", sheet, flags=re.S)
    rest = re.sub(r"[^{}]+\{[^{}]*\}", "", sheet).strip()
    if rest:
        raise ValueError(f"cannot read: {rest[:60]}")
    for selectors, body in re.findall(r"([^{}]+)\{([^{}]*)\}", sheet):
        properties = dict(part.split(":", 1) for part in body.split(";") if part.strip())
        properties = {name.strip(): value.strip() for name, value in properties.items()}
        for selector in selectors.split(","):
            yield " ".join(selector.split()), properties


def colour(value):
    """The colour named in a value as #rrggbb; None for a value that names none, or a transparent one."""
    found = COLOUR.search(value)
    if not found:
        return None
    text = found.group().lower()
    text = NAMED.get(text, text)
    return "#" + "".join(c * 2 for c in text[1:]) if text and len(text) == 4 else text


def contrast(first, second):
    def luminance(text):
        channels = (int(text[i:i + 2], 16) / 255 for i in (1, 3, 5))
        linear = [c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4 for c in channels]
        return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]
    dark, light = sorted((luminance(first), luminance(second)))
    return (light + 0.05) / (dark + 0.05)


def split(selector):
    """A selector as the thing it names (the last of a descendant chain) and its states."""
    thing = selector.split(" ")[-1]
    part = "::" + thing.split("::")[1].split(":")[0] if "::" in thing else ""
    widget = thing.split(":")[0]
    states = re.sub(r"::[\w-]+|\[[^\]]*\]", "", thing).split(":")[1:]
    return widget, part, frozenset(states)


def table(sheet):
    """{(widget, part, states): {property: value}}, later rules over earlier ones."""
    rules = {}
    for selector, properties in parse(sheet):
        rules.setdefault(split(selector), {}).update(properties)
    return rules


def effective(rules, widget, part, states, name):
    """The colour that a thing shows: its plainer states in order of likeness, then what it is a part of."""
    places = [(w, p) for w, p in ((widget, part), (widget, ""), ("QWidget", "")) if p == part or p == ""]
    for place in dict.fromkeys(places):
        plainer = [key for key in rules if key[:2] == place and key[2] <= states]
        for key in sorted(plainer, key=lambda key: len(key[2]), reverse=True):
            found = colour(rules[key].get(name, ""))
            if found:
                return found
    raise ValueError("no rule for QWidget gives a colour and a background")


def focus_colours(states, properties):
    """The edges that a rule shows with the focus; an outline appears with the focus only."""
    names = ("outline", "border", "border-color") if "focus" in states else ("outline",)
    return filter(None, (colour(properties[name]) for name in names if name in properties))


def check(sheet):
    """What is too faint, one line each."""
    rules = table(sheet)
    faults = []

    def judge(thing, what, front, back, needed):
        ratio = contrast(front, back)
        if ratio < needed:
            faults.append(f"{thing}: {what} {front} on {back} has {ratio:.1f}:1, needs {needed}:1")

    window = effective(rules, "QWidget", "", frozenset(), "background-color")
    for (widget, part, states), properties in rules.items():
        if "disabled" in states or "off" in states:
            continue
        thing = "".join((widget, part, *(":" + state for state in sorted(states))))
        front, back = (effective(rules, widget, part, states, name) for name in INHERITED)
        if any(name in properties for name in INHERITED) and not TEXTLESS.search(widget + part):
            judge(thing, "text", front, back, TEXT)
        if "selection-background-color" in properties:
            judge(thing, "selected text", colour(properties["selection-color"]),
                  colour(properties["selection-background-color"]), TEXT)
        if "alternate-background-color" in properties:
            judge(thing, "text", front, colour(properties["alternate-background-color"]), TEXT)
        for edge in focus_colours(states, properties):
            for surface in dict.fromkeys((window, back)):
                if surface != edge:
                    judge(thing, "focus", edge, surface, EDGE)
    return faults


def main(paths):
    if not paths:
        sys.exit("usage: check_contrast.py SHEET...")
    faults = check("\n".join(open(path, encoding="utf-8").read() for path in paths))
    print("\n".join(faults) or "every text and focus edge stands out")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
