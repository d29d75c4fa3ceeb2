#!/usr/bin/env python3
"""Gives the lessons of the README in the real window, by the mouse and keys that are written there,
and looks whether the sketch shows what they promise. Argument: the program's path."""

import sys
from contextlib import ExitStack
from math import pi, sin

from accessibility_bus import click, deed, expect, find, point
from real_window import Photograph, ask, look, open_screen, ready_window, start, until_none

BLACK, RED, LIGHT_BLUE, MAGENTA = (0, 0, 0), (255, 0, 0), (5, 150, 255), (250, 0, 150)
BLUE, OLIVE, GREEN = (0, 0, 255), (155, 155, 0), (0, 250, 10)
CREST, FIRST_CIRCLE = (6, 2), [(13.3, -5.3), (0.84, -0.14)]


def turn(bar, clicks, pattern):
    """Clicks a scroll bar's last arrow, or for less its first, and waits for what it shows then."""
    value = find("scroll bar " + bar).queryValue()
    point("scroll bar " + bar, along=0.92 if clicks > 0 else 0.08)
    for _ in range(abs(clicks)):
        before = value.currentValue
        ask("xdotool", "mousedown", "1", "mouseup", "1")  # "click" dawdles
        until_none(lambda before=before: value.currentValue == before and f"{bar} is at {before}")
    expect(pattern)


def press(x, y, *patterns):
    deed("mousemove {} {} click 1".format(*Photograph().spot(x, y)), *patterns)


def pull(x, y, *patterns):
    """A force from the crest to there."""
    seen = Photograph()
    deed("mousemove {} {} keydown shift mousedown 1 mousemove {} {} mouseup 1 keyup shift"
         .format(*seen.spot(*CREST), *seen.spot(x, y)), *patterns)


def steady_speed():
    turn("Tangential acceleration", -20, "επιτάχυνση = 0.0")
    look(RED, (2.66, 1.39), (9.97, 1.53), (15.27, -1.69))  # tips, all 3 units from their stations
    look(BLACK, (5.63, 1.5), bare=[(5.65, 1.1)])
    turn("Initial speed", 3, "ταχύτητα= 6")
    look(BLACK, (5.73, -0.3), bare=[(5.75, -0.7)])
    turn("Tangential acceleration", 20, "επιτάχυνση = 2.0")
    look(LIGHT_BLUE, (18.01, 5), bare=[(5.9, -4.5)])  # a long one in the hollow
    turn("Tangential acceleration", -30, r"stops at x = 11\.0")
    turn("Initial speed", -3, r"stops at x = 2\.\d")


def sharp_bend():
    turn("Tangential acceleration", -20, "επιτάχυνση = 0.0")
    click("menu item CASES")
    click("menu item RADIUS OF CURVATURE", "the first crest and the first trough")
    press(*CREST, r"x = 6\.0, y = 2\.0: speed 3\.0, centripetal acceleration 1\.2 downward")
    look(MAGENTA, *FIRST_CIRCLE)
    press(12, 0, r"x = 12\.0, y = -?0\.0: speed 3\.0, centripetal acceleration 0\.0")
    look(MAGENTA, (4, 4.19), (18, -3.14))  # as good as a straight line
    turn("Frequency", 15, "Συχνότης=3.0")
    press(3, 2, r"x = 3\.0, y = 2\.0: speed 3\.0, centripetal acceleration 4\.9 downward")
    look(MAGENTA, (4.82, 0.18), (1.18, 0.18))  # a quarter of its radius
    look(LIGHT_BLUE, (3, -0.3), bare=[(3, -0.8)])


def which_force():
    click("menu item CASES")
    click("menu item GUESS A FORCE", "fifteen stations")
    press(*CREST)
    look(OLIVE, (2.7, 2))
    pull(6, 6, ":showing FORCE: INCORRECT FOR THE TANG.*FORCE: HAS WRONG DIRECTION FOR THE SHAPE")
    pull(1, 0, ":showing FORCE: INCORRECT FOR THE TANG.*FORCE: HAS THE CORRECT DIRECTION FOR")
    pull(9.8, -1.3, ":showing FORCE: HAS THE CORRECT DIRECTION FOR THE SHAPE")
    look(GREEN, (6, -0.9))
    pull(10.5, -4.75)
    look(BLUE, (9, -2.5))
    look(GREEN, bare=[(6, -0.9), (6, 1)])


def evolve(*marks, **others):
    """Enters the motion in time with 20 steps to the unit, and waits for marks over these x."""
    click("menu item TIME DEPENDENT")
    click("radio button Time evolution")
    click("scroll bar Time steps")
    deed("key Home key Next", "Δt = 0.050")
    click("push button Start")
    look(RED, *((x, 2 * sin(pi / 12 * x)) for x in marks), **others)


def odd_numbers():
    turn("Initial speed", -3, "ταχύτητα= 0")
    turn("Tangential acceleration", -18, "επιτάχυνση = 0.2")
    # 0.9, 3.6, 8.1 and 14.4 along the curve; nothing in between when the body has left.
    evolve(0, 0.8, 3.26, 7.69, 13.44, bare=[(2, 1), (5.5, 1.98), (10.5, 0.77), (18, -2)])


def there_and_back():
    turn("Initial speed", 3, "ταχύτητα= 6")
    turn("Tangential acceleration", -30, "επιτάχυνση = -1.0")
    evolve(0, 12.63, 16.83)  # 13.5 along the curve, and 18, where it turns
    for command in ("menu item STOP", "push button Step", "menu item CONTINUE"):
        click(command)
    look(BLACK, (1, -0.25), (3.8, -0.25))  # the label of t = 12, at the origin
    click("menu item STOP")


for lesson in (steady_speed, sharp_bend, which_force, odd_numbers, there_and_back):
    with ExitStack() as stack:
        open_screen(stack)
        start(stack, sys.argv[1])
        ready_window()
        lesson()
