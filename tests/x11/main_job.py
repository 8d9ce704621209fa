"""A day's work in a minute: the sample is opened, a record picked and changed, another added and moved, a
third deleted, the list saved under a new name, and the program left by Esc. The file then differs from the
sample in exactly those records."""

import os

import desk


def session(d, share):
    sample = os.path.join(share, "timezones.dat")
    saved = os.path.join(d.folder, "saved.dat")
    d.start(os.path.join(share, "NorvoEditDat.dat"), sample)
    d.focus("Norvo Data File Editor")
    with open(sample, "rb") as file:
        before = file.read().split(b"\r\n")

    # Pick the third record with the mouse; its fields show it.
    d.click(d.table().get_table_iface().get_accessible_at(2, 0))
    d.expect(lambda: d.text(d.field("Zone")), "Africa/Bissau", "the picked record in its field")

    # Change two fields, one of them completed by typing.
    d.click(d.field("Remarks"))
    d.key("ctrl+a")
    d.type("changed by hand")
    d.click(d.field("Country"))
    d.key("ctrl+a")
    d.type("germ")
    d.expect(lambda: d.text(d.field("Country")), "Germany", "the completed country")
    d.click(d.find("push button", "Update"))
    d.expect(lambda: d.cell(2, 4), "changed by hand", "the updated record")

    # Add a record: the area by a listed value, the rest by typing.
    d.click(d.field("Zone"))
    d.type("Europe/Norvo")
    d.key("Tab")
    d.type("Europe")
    d.key("Tab")
    d.type("norw")
    d.key("Tab")
    d.type("0 N")
    d.key("Tab")
    d.type('with "quotes", and a comma')
    rows = d.rows()
    d.click(d.find("push button", "Add"))
    d.expect(d.rows, rows + 1, "the added record")

    # Move it up twice.
    d.click(d.table())
    d.key("End")
    d.expect(lambda: d.text(d.field("Zone")), "Europe/Norvo", "the new record, picked")
    d.click(d.find("push button", "Move Up"))
    d.click(d.find("push button", "Move Up"))
    d.expect(lambda: d.cell(rows - 2, 0), "Europe/Norvo", "the moved record")

    # Delete the first record.
    d.click(d.table())
    d.key("Home")
    d.expect(lambda: d.text(d.field("Zone")), "Africa/Abidjan", "the first record, picked")
    d.click(d.find("push button", "Delete"))
    d.expect(d.rows, rows, "one record less")

    # Save under a new name by the access key, and leave by Esc and OK.
    d.key("alt+a")
    d.focus("Save As")
    d.key("ctrl+a")
    d.type(saved)
    d.key("Return")
    d.focus("Norvo Data File Editor")
    desk.until(lambda: os.path.exists(saved), "the saved file")
    d.key("Escape")
    d.focus("Quit")
    d.key("Return")
    d.expect(d.ends, "0", "the exit status")

    wanted = list(before)
    bissau = wanted[3].split(b'","')
    bissau[2] = b"Germany"
    bissau[4] = b'changed by hand"'
    wanted[3] = b'","'.join(bissau)
    wanted.insert(len(wanted) - 3, b'"Europe/Norvo","Europe","Norway","0 N","with ""quotes"", and a comma"')
    del wanted[1]
    with open(saved, "rb") as file:
        after = file.read().split(b"\r\n")
    for number, (one, other) in enumerate(zip(after, wanted)):
        assert one == other, "line %d: %r, wanted %r" % (number + 1, one, other)
    assert len(after) == len(wanted), (len(after), len(wanted))
    d.expect(d.complaints, "", "nothing on standard error")


desk.main(session)
