#!/usr/bin/env python3
"""Reads the program's window on the accessibility bus, as a screen reader does, and works it from
there and by the keyboard alone. Argument: the program's path."""

import re
import sys
from contextlib import ExitStack

from accessibility_bus import deed, expect, find, heard, nodes
from real_window import ask, open_screen, ready_window, start, until_ended, until_none

OPENING = """
    application firststep
    frame first explanation
    menu bar
    menu item back
    menu item CASES
    menu item STOP
    menu item TIME DEPENDENT
    menu item CONTINUE
    menu item end
    canvas Sketch FOCUSED
    text Explanation
    scroll bar Amplitude 0.1 2 3.5
    label Amplitude value: Πλάτος =2.0
    scroll bar Frequency 0.1 1.5 6
    label Frequency value: Συχνότης=1.5
    scroll bar Tangential acceleration -3.5 2 3.5
    label Tangential acceleration value: Επιτρόχιος επιτάχυνση= 2.00
    scroll bar Initial speed 0 3 15
    label Initial speed value: Αρχική ταχύτητα = 3"""
TAB_ORDER = ("Explanation", "Time evolution", "Factors that influence acceleration", "Start",
             "Step", "Time steps per unit of time 10 50 300", "Sketch")


def unlike_opening():
    expected = {line.strip() + " SHOWING" for line in OPENING.strip().splitlines()}
    seen = {line for line in nodes()
            if line.endswith(" SHOWING") and not re.match("filler|notification", line)}
    return seen != expected and f"lacks {expected - seen}, has {seen - expected}"


def press(node, *patterns):
    button = find(node).queryAction()
    heard.clear()
    button.doAction(0)
    expect(*patterns)


with ExitStack() as stack:
    open_screen(stack)
    program = start(stack, sys.argv[1])
    until_none(unlike_opening)
    ready_window()
    find("scroll bar Amplitude").queryValue().currentValue = 3.3
    expect("Amplitude 0.1 3.3 3.5", "Πλάτος =3.3", "description .*fifteen stations")
    press("menu item TIME DEPENDENT", "Time evolution SHOWING")
    press("radio button Time evolution",
          "Start SHOWING", "Δt = 0.02 SHOWING", "Time evolution (.*)CHECKED")
    press("push button Step", "description .*The motion in time")
    press("menu item GUESS A FORCE", "GUESS A FORCE CHECKED", "Sketch FOCUSED")
    deed("key Return", "description .*circle of curvature at x = 6.0, y = 3.3",
         "text-changed:insert .*Click on the diagram", ":showing .*Click on the diagram")
    deed("keydown shift key Up Up keyup shift", ":showing .*FORCE: HAS WRONG DIRECTION FOR")
    for name in TAB_ORDER:
        deed("key Tab", name + " FOCUSED")
    # Not Alt and the letter: Qt takes that letter at once, but shows the bus all other keys before
    # they go on. The letter may overtake its Alt, which then closes the menu.
    deed("key F10", "menu item back FOCUSED")
    deed("key c", "popup menu CASES SHOWING")
    deed("key r", "description .*circles of curvature at the first crest")
    deed("key F10", "menu item back FOCUSED")
    deed("key e", "menu item end FOCUSED")
    ask("xdotool", "keydown", "Return")
    until_ended(program, "the menu bar")
