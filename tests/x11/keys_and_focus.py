"""A combo field under real keys and real focus: completion when a key is released, fast typing, and a field that keeps
the focus while its text isn't listed. Then the ways out of the window."""

import desk
from desk import TITLE


def session(d, _share):
    (d.folder / "fruit.dat").write_bytes(b'2,4\r\n"Name","50","0","-"\r\n"Fruit","50","2","fruit.txt"\r\n')
    (d.folder / "fruit.txt").write_bytes(b"Abacus\r\nApple\r\nBanana\r\n")
    d.start("fruit.dat", "none.dat")
    d.focus(TITLE)
    # The next key replaces what was not typed. In fast typing it goes down before the last one is up.
    d.click(d.find("text", "Fruit"))
    for keys, text in (("a", "Abacus"), ("p", "Apple"), ("ctrl+a +b +a -b +n -a -n", "Banana"),
                       ("+BackSpace +d -BackSpace -d", "Band"), ("ctrl+a z z", "zz")):
        d.key(*keys.split())
        d.expect(lambda: d.text("Fruit"), text, "after the keys " + keys)

    # A text that isn't listed keeps the focus. Even so the user can go to the menu bar and to a box, and the field has
    # the focus again afterwards. A completed text has the capitals of the entry.
    d.key("Alt_L")
    d.expect(d.focused, "File", "the focus in the menu bar")
    d.click(d.find("push button", "Add"))
    d.expect(d.focused, "Fruit", "the focus in the refusing field")
    d.key("Tab", "Escape")
    d.focus("Quit")
    d.key("Escape")
    d.focus(TITLE)
    d.key("ctrl+a")
    d.type("APPLE")
    d.key("Tab")
    d.expect(d.focused, "Add", "the focus out of the field")
    assert (d.text("Fruit"), d.table().get_n_rows()) == ("Apple", 0), "a refused press was delivered"

    # The close box asks nothing. Too many words end the program with another status.
    d.key("alt+F4")
    assert d.ends() == (0, ""), d.ends()
    d.start("1", "2", "3")
    d.expect(d.focused, "OK", "the focus in the message")
    d.key("Return")
    assert d.ends() == (1, ""), d.ends()


desk.main(session)
