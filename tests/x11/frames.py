"""Frames and stacking, which each window manager has its own ideas of: real drags of the frame, and two windows."""

import desk
from desk import TITLE, hands, run


def session(d, share):
    d.start(share / "NorvoEditDat.dat", share / "timezones.dat")
    window = d.focus(TITLE)

    least = hands.expect_drags(window, ((-200, -100), (150, 100), (-350, -200)))
    d.expect(lambda: hands.place(window)[2:], least, "the least size")

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
