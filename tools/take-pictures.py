"""Takes pictures of the running program for a person to look at: light, dark and high contrast, at scale 1, 1.5
and 2, with a system font of one and a half times the size, small and large, and its boxes. Not a test.

    /usr/bin/python3 tools/take-pictures.py PROGRAM SHARE_FOLDER FOLDER_FOR_THE_PICTURES"""

import os
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "tests", "x11"))

import desk
from desk import TITLE

COLOURS = {  # window, its text, fields, their text, buttons, selection, its text
    "dark": ("42,46,50", "252,252,252", "27,30,32", "252,252,252", "49,54,59", "61,174,233", "252,252,252"),
    "contrast": ("0,0,0", "255,255,255", "0,0,0", "255,255,0", "0,0,0", "0,255,255", "0,0,0"),
}


def settings(d, theme, points):
    """Writes colours and font into the settings of a desktop that the toolkit knows."""
    lines = ["[General]", "font=Liberation Sans,%d,-1,5,50,0,0,0,0,0" % points,
             "menuFont=Liberation Sans,%d,-1,5,50,0,0,0,0,0" % points, "[KDE]", "widgetStyle=Fusion"]
    if theme in COLOURS:
        window, text, field, field_text, button, mark, mark_text = COLOURS[theme]
        for group, ground, ink in (("Window", window, text), ("View", field, field_text), ("Button", button, text),
                                   ("Selection", mark, mark_text), ("Tooltip", window, text)):
            lines += ["[Colors:%s]" % group, "BackgroundNormal=" + ground, "BackgroundAlternate=" + ground,
                      "ForegroundNormal=" + ink, "ForegroundInactive=" + ink]
    os.makedirs(os.path.join(d.folder, "config"), exist_ok=True)
    with open(os.path.join(d.folder, "config", "kdeglobals"), "w", encoding="utf-8") as file:
        file.write("\n".join(lines) + "\n")


def take(d, name):
    time.sleep(0.5)  # Nothing tells when painting is done, and no test depends on this.
    desk.run("xsetroot", "-solid", "#5b6e7d")
    desk.run("import", "-window", "root", "-trim", "+repage", os.path.join(sys.argv[3], name + ".png"))


def session(d, share):
    os.makedirs(sys.argv[3], exist_ok=True)
    words = (os.path.join(share, "NorvoEditDat.dat"), os.path.join(share, "timezones.dat"))
    for theme, scale, points in (("light", "1", 10), ("dark", "1", 10), ("contrast", "1", 10), ("light", "1.5", 10),
                                 ("light", "2", 10), ("dark", "2", 10), ("light", "1", 15), ("dark", "1.5", 15)):
        name = "%s-%s-%d" % (theme, scale, points)
        settings(d, theme, points)
        d.start(*words, QT_SCALE_FACTOR=scale, XDG_CURRENT_DESKTOP="KDE", KDE_SESSION_VERSION="5",
                XDG_CONFIG_DIRS="/nonexistent")
        d.focus(TITLE)
        d.expect(d.focused, "Add", "the focus at start")
        d.key("Tab", "Tab", "Tab", "Down", "Down", "Down", "Down")
        d.expect(lambda: d.text("Zone"), "Africa/Cairo", "the picked record")
        take(d, name)
        d.key("alt+f")
        take(d, name + "-menu")
        d.key("x")
        d.focus("Quit")
        take(d, name + "-quit")
        d.key("Escape")
        d.focus(TITLE)
        d.key("alt+a")
        d.focus("Save As")
        take(d, name + "-save")
        d.key("Escape")
        d.focus(TITLE)
        d.key("alt+h", "a")
        d.focus("About " + TITLE)
        take(d, name + "-about")
        d.key("Return")
        d.focus(TITLE)
        desk.run("xdotool", "getactivewindow", "windowsize", "--sync", "1100", "600")
        take(d, name + "-large")
        d.key("Tab", "Tab", "Tab", "Tab", "z", "Tab")
        take(d, name + "-refused")
        d.key("alt+F4")
        d.ends()


desk.main(session)
