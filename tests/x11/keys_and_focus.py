"""Combo fields under real keys and real focus: completion on release, fast typing, and what a text that isn't
listed keeps the user from. Then the ways out of the window."""

import os

import desk

TITLE = "Norvo Data File Editor"


def write(path, *lines):
    with open(path, "wb") as file:
        file.write(b"".join(line.encode() + b"\r\n" for line in lines))


def session(d, _share):
    spec = os.path.join(d.folder, "fruit.dat")
    data = os.path.join(d.folder, "data.dat")
    write(spec, "3,4", '"Name","40","0","-"', '"Fruit","30","2","fruit.txt"', '"Kind","30","1","fruit.txt"')
    write(os.path.join(d.folder, "fruit.txt"), "Abacus", "Apple", "Banana")
    write(data, "2,3", '"one","Apple","Apple"', '"two","Banana","Abacus"')
    d.start(spec, data)
    d.focus(TITLE)
    name, fruit, kind = (d.field(one) for one in ("Name", "Fruit", "Kind"))

    def selected():
        piece = fruit.get_text_iface().get_selection(0)
        return d.text(fruit)[piece.start_offset:piece.end_offset]

    def shows(text, part, what):
        d.expect(lambda: (d.text(fruit), selected()), (text, part), what)

    # One key at a time: the part not typed stands selected, and the next key replaces it.
    d.click(fruit)
    d.key("a")
    shows("Abacus", "bacus", "completion of a")
    d.key("p")
    shows("Apple", "ple", "completion of ap")
    d.key("BackSpace")
    shows("Ap", "", "nothing completed behind an erasure")
    d.key("ctrl+a")
    shows("Ap", "Ap", "nothing completed by selecting")

    # Fast: the next key goes down before the last one is up.
    for act in ("keydown b", "keydown a", "keyup b", "keydown n", "keyup a", "keyup n"):
        desk.run("xdotool", *act.split())
    shows("Banana", "ana", "three overlapping keys")

    d.key("ctrl+a", "a")
    for act in ("keydown BackSpace", "keydown p", "keyup BackSpace", "keyup p"):
        desk.run("xdotool", *act.split())
    shows("Apple", "ple", "a key typed while the erasing one is still down")

    # A text that isn't listed keeps the focus, whatever road is tried; the click isn't delivered.
    d.key("ctrl+a")
    d.type("zz")
    shows("zz", "", "a text without an entry")
    for attempt in (lambda: d.key("Tab"), lambda: d.key("shift+Tab"), lambda: d.key("alt+a"),
                    lambda: d.click(name), lambda: d.click(kind), lambda: d.click(d.table()),
                    lambda: d.click(d.find("push button", "Add"))):
        attempt()
        d.type("z")  # lands in the field that has the focus, behind all that the attempt has done
        d.expect(lambda: d.text(fruit).strip("z"), "", "the focus in the refusing field")
    shows("z" * 9, "", "all keys in the refusing field")
    assert d.rows() == 2, "the refused click on Add was delivered"

    # A listed text in other capitals is accepted and stays as typed.
    d.key("ctrl+a")
    d.type("APPLE")
    d.key("Tab")
    d.expect(lambda: d.state(kind, "FOCUSED"), True, "the focus in the next field")
    assert d.text(fruit).lower() == "apple"

    # In mode 1 nothing is completed. The menu, Esc and a box are never refused.
    d.type("b")
    d.expect(lambda: d.text(kind), "b", "no completion in mode 1")
    d.key("Escape")
    d.focus("Quit")
    d.key("Escape")
    d.focus(TITLE)
    d.type("anana")
    d.expect(lambda: d.text(kind), "banana", "the focus back in the field behind the box")
    d.key("alt+f")
    d.type("x")
    d.focus("Quit")
    d.key("Escape")
    d.focus(TITLE)

    # The close box asks nothing.
    d.key("alt+F4")
    d.expect(d.ends, "0", "the exit status")


desk.main(session)
