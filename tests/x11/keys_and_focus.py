"""Combo fields under real keys and real focus: completion when a key is released, fast typing, and a field that keeps
the focus while its text isn't listed. Then the ways out of the window."""

import desk
from desk import TITLE, main


def session(d, _share):
    for name, *lines in (
            ("fruit.dat", "3,4", '"Name","40","0","-"', '"Fruit","30","2","fruit.txt"', '"Kind","30","1","fruit.txt"'),
            ("fruit.txt", "Abacus", "Apple", "Banana"),
            ("data.dat", "2,3", '"one","Apple","Apple"', '"two","Banana","Abacus"')):
        (d.folder / name).write_bytes("".join(line + "\r\n" for line in lines).encode())
    d.start("fruit.dat", "data.dat")
    d.focus(TITLE)
    name, fruit, kind = (d.find("text", one) for one in ("Name", "Fruit", "Kind"))

    def shown():
        piece = fruit.get_text_iface().get_selection(0)
        text = d.text("Fruit")
        return text, text[piece.start_offset:piece.end_offset]

    # The part that was not typed is selected, and the next key replaces it.
    d.click(fruit)
    for keys, text, selected in (
            ("a", "Abacus", "bacus"),
            ("p", "Apple", "ple"),
            ("BackSpace", "Ap", ""),
            ("ctrl+a", "Ap", "Ap"),
            # Fast: the next key goes down before the last one is up.
            ("+b +a -b +n -a -n", "Banana", "ana"),
            ("ctrl+a a", "Abacus", "bacus"),
            ("+BackSpace +p -BackSpace -p", "Apple", "ple"),
            ("ctrl+a z z", "zz", "")):
        d.key(*keys.split())
        d.expect(shown, (text, selected), "after the keys " + keys)

    # A text that isn't listed keeps the focus, whichever way out the user tries, and no press is delivered: also from
    # the menu bar, and by assistive technology. The key after each attempt goes to the field that has the focus.
    add, records, box = d.find("push button", "Add"), d.find("table", "Records"), d.find("combo box", "Fruit")

    def from_menu_bar(way_out):
        d.key("Alt_L")
        d.expect(lambda: d.state(d.find("menu item", "File"), "FOCUSED"), True, "the focus in the menu bar")
        way_out()

    attempts = (
        lambda: d.key("Tab"), lambda: d.key("shift+Tab"), lambda: d.key("alt+a"), lambda: d.click(name, times=2),
        lambda: d.click(kind), lambda: d.click(records), lambda: d.click(add),
        lambda: from_menu_bar(lambda: d.click(add)), lambda: from_menu_bar(lambda: d.key("alt+a")),
        lambda: from_menu_bar(lambda: d.click(name)),
        lambda: add.get_action_iface().do_action(0), lambda: name.get_component_iface().grab_focus(),
        lambda: records.get_table_iface().add_row_selection(0))
    for count, attempt in enumerate(attempts, start=3):
        attempt()
        d.expect(lambda: d.description(box), "not one of the listed values", "the sign of attempt %d" % (count - 2))
        d.key("z")
        d.expect(shown, ("z" * count, ""), "the text in the refusing field, attempt %d" % (count - 2))
    edge = box.get_component_iface().get_extents(desk.Atspi.CoordType.SCREEN)
    spot = desk.run("import", "-window", "root", "-crop", "1x1+%d+%d" % (edge.x + 1, edge.y + 1), "txt:-")
    assert "srgb(196,30,30)" in spot, "the frame of a refusing field: " + spot
    assert (d.table().get_n_rows(), d.text("Name")) == (2, ""), "a refused press or pick was delivered"
    d.key("ctrl+a")
    d.click(fruit)
    d.expect(shown, ("z" * (2 + len(attempts)), ""), "a click into the refusing field itself")

    # A completed text has the capitals of the entry.
    d.key("ctrl+a")
    d.type("APPLE")
    d.expect(lambda: d.description(box), "one of the listed values", "the sign goes")
    d.key("Tab")
    d.expect(d.focused, "Kind", "the next field")
    assert d.text("Fruit") == "Apple", d.text("Fruit")

    # In mode 1 nothing is completed. Even a refusing field lets the user go to the menu and to a box, and has the
    # focus again afterwards. A listed text in other capitals is accepted and stays as typed.
    for keys in ("B Escape", "A N alt+f x"):
        d.key(*keys.split())
        d.focus("Quit")
        d.key("Escape")
        d.focus(TITLE)
    d.type("ANA")
    d.key("Tab")
    d.expect(d.focused, "Add", "the focus out of the field")
    assert d.text("Kind") == "BANANA", d.text("Kind")

    # The close box asks nothing.
    d.key("alt+F4")
    assert d.ends() == (0, ""), d.ends()

    # Too many words end the program with another status.
    d.start("1", "2", "3")
    d.expect(d.focused, "OK", "the focus in the message")
    d.key("Return")
    assert d.ends() == (1, ""), d.ends()


main(session)
