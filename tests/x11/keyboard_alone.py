"""The whole main job without the mouse, read all the while as a screen reader would: names, roles and states
of the controls, the list's headings and cells, the texts of the boxes."""

import os
import pathlib

import desk

TITLE = "Norvo Data File Editor"


def session(d, share):
    sample = os.path.join(share, "timezones.dat")
    saved = os.path.join(d.folder, "saved.dat")
    d.start(os.path.join(share, "NorvoEditDat.dat"), sample)
    d.focus(TITLE)

    # Every control has its name and role.
    named = {(one.get_role_name(), one.get_name()) for one in d.walk(d.window(TITLE))}
    for wanted in [("push button", name) for name in ("Add", "Delete", "Save As", "Cancel", "Move Up", "Move Down")
                   ] + [("text", name) for name in ("Zone", "Area", "Country", "Position", "Remarks")
                        ] + [("combo box", "Area"), ("combo box", "Country"), ("table", "Records")]:
        assert wanted in named, "%r is not among %r" % (wanted, sorted(named))
    for name in ("Area", "Country"):
        assert d.find("combo box", name).get_description() == "one of the listed values"
    assert d.field("Zone").get_description() == ""
    table = d.table().get_table_iface()
    assert [table.get_column_description(i) for i in range(5)] == ["Zone", "Area", "Country", "Position", "Remarks"]
    assert (d.rows(), d.cell(0, 0)) == (312, "Africa/Abidjan")

    def enabled():
        return [d.state(d.find("push button", name), "ENABLED")
                for name in ("Delete", "Move Up", "Move Down", "Save As")]

    d.expect(enabled, [False, False, False, True], "the buttons with no row selected")

    # From the first button to the list, down to the second record, and back to its fields.
    d.expect(lambda: d.state(d.find("push button", "Add"), "FOCUSED"), True, "the focus at start")
    d.key("Tab", "Tab", "Tab")
    d.expect(lambda: d.state(d.table(), "FOCUSED"), True, "the focus in the list")
    d.key("Down", "Down")
    d.expect(lambda: d.text(d.field("Zone")), "Africa/Algiers", "the record picked by key")
    d.expect(enabled, [True, True, True, True], "the buttons with a row selected")
    d.key("Tab")
    d.expect(lambda: d.state(d.field("Zone"), "FOCUSED"), True, "the focus in the first field")
    d.key("End")
    d.type("-by-key")
    d.key("shift+Tab")

    # Update, move up, delete, all by the keys of the buttons; never through the fields, since those that the
    # update has emptied let nobody pass.
    def press(name, key):
        while d.focused(TITLE) != name:
            before = d.focused(TITLE)
            d.key(key)
            desk.until(lambda: d.focused(TITLE) not in (before, None), "the focus off %s" % before)
        d.key("space")

    d.expect(lambda: d.focused(TITLE), "Records", "the focus back in the list")
    press("Update", "shift+Tab")
    d.expect(lambda: d.cell(1, 0), "Africa/Algiers-by-key", "the updated record")
    press("Move Up", "Tab")
    d.expect(lambda: d.cell(0, 0), "Africa/Algiers-by-key", "the moved record")
    d.expect(lambda: d.focused(TITLE), "Records", "the focus in the list when its button goes off")
    press("Delete", "shift+Tab")
    d.expect(d.rows, 311, "one record less")

    # Save by its access key; the dialog and the boxes by theirs.
    d.key("alt+a")
    d.focus("Save As")
    d.key("ctrl+a")
    d.type(saved)
    d.key("Return")
    d.focus(TITLE)
    desk.until(lambda: os.path.exists(saved), "the saved file")
    d.key("F1")
    page = os.path.join(os.path.dirname(d.program), "Help", "NorvoEditDat.html")
    d.expect(d.opened, [pathlib.Path(page).as_uri()], "the help page handed to the desktop")
    d.key("alt+h")
    d.type("a")
    d.focus("About " + TITLE)
    texts = {one.get_name() for one in d.walk(d.window("About " + TITLE))}
    assert {"NorvoEditDat", "1.00.0020", "Easily edit data files.", "OK"} <= texts, texts
    d.key("Return")
    d.focus(TITLE)
    d.key("alt+f")
    d.type("x")
    d.focus("Quit")
    prompts = {one.get_name() for one in d.walk(d.window("Quit"))}
    assert "Are you sure?" in prompts, prompts
    d.key("Return")
    d.expect(d.ends, "0", "the exit status")


desk.main(session)
