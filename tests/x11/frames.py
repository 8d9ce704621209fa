"""Frames and stacking, which each window manager has its own ideas of: real drags of the frame, and two windows."""

import re

import desk
from desk import TITLE, run


def session(d, share):
    d.start(share / "NorvoEditDat.dat", share / "timezones.dat")
    window = d.focus(TITLE)

    def place():
        """Left, top, width and height of the window without its frame, as the window system has them."""
        told = run("xwininfo", "-id", window)
        return [int(number) for number in re.findall(r"(?:Absolute upper-left [XY]|Width|Height): +(\d+)", told)]

    def size():
        return place()[2:]

    def drag(right, down):
        """Takes the frame by its lower right corner."""
        x, y, width, height = place()
        run("xdotool", "mousemove", str(x + width - 2), str(y + height + 3), "mousedown", "1")
        for part in range(1, 6):
            run("xdotool", "mousemove_relative", "--sync", "--", str(right // 5), str(down // 5), "sleep", "0.05")
        run("xdotool", "mouseup", "1")

    least = size()
    for right, down in ((-200, -100), (150, 100), (-350, -200)):
        drag(right, down)
        grown = [least[0] + max(right, 0), least[1] + max(down, 0)]
        d.expect(lambda: [abs(one - other) < 20 for one, other in zip(size(), grown)], [True, True],
                 "the size after a drag by %d, %d" % (right, down))
    d.expect(size, least, "the least size")
    button = d.find("push button", "Cancel").get_component_iface().get_extents(desk.Atspi.CoordType.SCREEN)
    x, y, width, height = place()
    assert button.x + button.width < x + width and button.y + button.height < y + height, "the button is out of sight"

    # The About box belongs to no window: it stays on the screen when the main window is minimised, and lets it come
    # in front.
    d.key("alt+h", "a")
    about = d.focus("About " + TITLE)
    run("xdotool", "windowactivate", window, "windowraise", window)
    d.focus(TITLE)
    d.expect(lambda: int(run("xprop", "-root", "_NET_CLIENT_LIST_STACKING").split()[-1], 16), int(window),
             "the window in front")
    run("xdotool", "windowminimize", window)
    d.expect(lambda: "Iconic" in run("xprop", "-id", window, "WM_STATE"), True, "the minimised window")
    assert "Normal" in run("xprop", "-id", about, "WM_STATE"), "the About box was minimised too"
    run("xdotool", "windowclose", about, "windowclose", window)


desk.main(session)
