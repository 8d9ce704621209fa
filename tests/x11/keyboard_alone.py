"""The whole main job without the mouse. The session reads the window as a screen reader does: names, roles and states
of the controls, the list's headings and cells, the texts of the boxes. Only the link in the About box needs a
click."""

import desk
from desk import TITLE


def session(d, share):
    sample, saved = share / "timezones.dat", d.folder / "saved.dat"
    d.start(share / "NorvoEditDat.dat", sample)
    d.focus(TITLE)

    # Every control has its name, role and description, and is enabled or disabled as it should be.
    listed = "one of the listed values"
    wanted = {("table", "Records", "", True), ("menu item", "Open", "", False), ("menu item", "Exit", "", True),
              *(("text", name, "", True) for name in ("Zone", "Position", "Remarks")),
              *((role, name, listed, True) for role in ("combo box", "text") for name in ("Area", "Country")),
              *(("push button", name, "", True) for name in ("Add", "Save As", "Cancel")),
              *(("push button", name, tip, False) for name, tip in (
                  ("Delete", ""), ("Move Up", "Move Up"), ("Move Down", "Move Down")))}
    d.expect(lambda: wanted - {(one.get_role_name(), one.get_name(), one.get_description(), d.state(one, "ENABLED"))
                               for one in d.walk()}, set(), "the controls that are missing")
    assert d.table().get_column_description(4) == "Remarks", "the headings"

    # Update and move a record by keys. The update empties the fields, and an empty combo field doesn't let the focus
    # leave, so the keys avoid them.
    for keys, actual, result in (
            ("Tab Tab Tab Down Down Tab End quotedbl comma", lambda: d.text("Zone"), 'Africa/Algiers",'),
            ("shift+Tab " * 7 + "space", lambda: d.cell(1, 0), 'Africa/Algiers",'),
            ("Tab space", d.focused, "Records")):  # The button Move Up is disabled now.
        d.key(*keys.split())
        d.expect(actual, result, "after the keys %r" % keys)

    d.key("alt+a")
    d.focus("Save As")
    d.key("ctrl+a")
    d.type(str(saved))
    d.key("Return")
    d.focus(TITLE)
    lines = sample.read_bytes().split(b"\r\n")
    lines[1:3] = [lines[2].replace(b"Algiers", b'Algiers"",'), lines[1]]
    d.expect(lambda: saved.exists() and saved.read_bytes(), b"\r\n".join(lines), "the saved file")

    # Help, the About box, and the way out.
    page = (d.program.parent / "Help" / "NorvoEditDat.html").as_uri()
    d.key("F1")
    d.expect(d.opened, [page], "the help page handed to the desktop")
    d.key("alt+h", "a")
    about = d.focus("About " + TITLE)
    assert "_NET_WM_STATE_SKIP_TASKBAR" in desk.run("xprop", "-id", about, "_NET_WM_STATE")
    d.find("label", "1.00.0020")
    d.click(d.find("label", "\xa9 2026 the authors"), times=2)
    d.expect(d.opened, [page, "https://norvo.example/"], "the link handed to the desktop")
    desk.run("xdotool", "click", "3")
    d.key("Return")
    d.focus(TITLE)
    d.key("alt+f", "x")
    d.focus("Quit")
    d.find("label", "Are you sure?")
    d.key("Return")
    assert d.ends() == (0, ""), d.ends()
    assert len(d.opened()) == 2, "the right button or a double click opened the link"


desk.main(session)
