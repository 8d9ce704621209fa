"""Hands on the windows of a screen, from outside the programs: real keys, clicks and drags, by xdotool."""

import re
import subprocess

from tools.screen import TIMEOUT, until


def run(*words):
    return subprocess.run(words, check=True, capture_output=True, text=True, timeout=TIMEOUT).stdout.strip()


def focus(title):
    """Waits until the window of that title has the keyboard, and returns its X id."""
    def number():
        found = subprocess.run(["xdotool", "getactivewindow", "getwindowname", "getactivewindow"],
                               capture_output=True, text=True).stdout.splitlines()
        return found[1] if found[:1] == [title] else None
    return until(number, "the window %r in front" % title)


def key(*keys):
    """Presses keys and lets them go: +a only goes down, -a only comes up."""
    for one in keys:
        run("xdotool", {"+": "keydown", "-": "keyup"}.get(one[0], "key"), one.lstrip("+-"))


def type_text(text):
    run("xdotool", "type", "--delay", "20", "--", text)


def click(x, y, times=1):
    # The server handles these in order. Waiting for the motion (--sync) takes long if the pointer is there already.
    run("xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(times), "--delay", "40", "1")


def place(window):
    """Left, top, width and height of a window without its frame, as the window system has them."""
    told = run("xwininfo", "-id", window)
    return [int(number) for number in re.findall(r"(?:Absolute upper-left [XY]|Width|Height): +(\d+)", told)]


def drag_corner(window, right, down):
    """Takes the frame of a window by its lower right corner."""
    x, y, width, height = place(window)
    run("xdotool", "mousemove", str(x + width - 2), str(y + height + 3), "mousedown", "1")
    for _ in range(5):
        run("xdotool", "mousemove_relative", "--sync", "--", str(right // 5), str(down // 5), "sleep", "0.05")
    run("xdotool", "mouseup", "1")


def expect(actual, wanted, what):
    """Waits until actual() gives wanted."""
    seen = []

    def equal():
        seen[:] = [actual()]
        return seen[0] == wanted
    try:
        until(equal, what)
    except AssertionError:
        raise AssertionError("%s: %r, wanted %r" % (what, seen[0], wanted)) from None


def expect_drags(window, drags):
    """Drags a window's corner. It grows as it is dragged, and gets no smaller than it is at first."""
    least = place(window)[2:]
    for right, down in drags:
        size = place(window)[2:]
        drag_corner(window, right, down)
        grown = [max(least[0], size[0] + right), max(least[1], size[1] + down)]
        expect(lambda: [abs(one - other) < 20 for one, other in zip(place(window)[2:], grown)], [True, True],
               "the size after a drag by %d, %d" % (right, down))
    return least
