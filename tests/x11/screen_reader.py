"""What a screen reader hears while the focus moves: one focus at a time, and an event for each move. A key pressed
again on a button that has gone dead does nothing."""

import desk
from desk import TITLE, Atspi
from gi.repository import GLib


def session(d, share):
    (d.folder / "data.dat").write_bytes(b'2,5\r\n"one","","","",""\r\n"two","","","",""\r\n')
    heard = []
    ear = Atspi.EventListener.new(lambda event: heard.append(event.source))
    for kind in ("state-changed:focused", "property-change:accessible-description"):
        ear.register("object:" + kind)
    d.start(share / "NorvoEditDat.dat", "data.dat")
    d.focus(TITLE)
    box, records = d.find("combo box", "Area"), d.table()
    entries, text = (box.get_child_at_index(i) for i in range(box.get_child_count()))
    first = records.get_accessible_at(0, 0)

    def seen():
        """Who has the focus, down to the record and the entry; who was heard last; the first field; how many rows."""
        while GLib.MainContext.default().iteration(False):
            pass
        rows = [records.get_accessible_at(i, 0) for i in range(records.get_n_rows())]
        nodes = [*d.walk(), *rows, *map(entries.get_child_at_index, range(3))]
        focused = [one for one in nodes if d.state(one, "FOCUSED")]
        return [one.get_name() for one in focused + heard[-1:]], d.text("Zone"), len(rows)

    for keys, *wanted in (
            ("", ["Add", "Add"], "", 2),
            ("Tab Tab Tab", ["Records", "one", "one"], "", 2),
            ("Down", ["Records", "one", "one"], "one", 2),
            ("Down", ["Records", "two", "two"], "two", 2),
            ("Tab x shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab", ["Move Up", "Move Up"], "x", 2),
            ("Return Return", ["Records", "two", "two"], "x", 2),  # The list has the focus of the dead button.
            ("Tab x shift+Tab Return", ["Records", "two", "two"], "two", 2),
            ("Tab x shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab Return", ["Records", "one", "one"], "x", 1),
            ("Return space Return", ["Records", "one"], "x", 1),  # nor that of Delete
            ("Right Return", ["Records", "one", "one"], "one", 1),
            ("shift+Tab shift+Tab shift+Tab Return Return Down", ["Records", "Records"], "one", 0),
            ("Tab Tab a", ["Area", "Area", "Area"], "one", 0),  # the box and the text in it
            ("open", ["Area", "Africa", "Area"], "one", 0),
            ("Down", ["Area", "America", "America"], "one", 0),
            ("Escape", ["Area", "Area", "Area"], "one", 0)):
        d.key(*keys.split()) if keys != "open" else box.get_action_iface().do_action(0)
        d.expect(seen, tuple(wanted), "after the keys %r" % keys)
        heard.clear()
    assert not first.get_state_set().contains(Atspi.StateType.FOCUSED) and not records.get_accessible_at(0, 0)
    assert (entries.get_parent().get_name(), entries.get_index_in_parent(), text.get_index_in_parent()) == ("Area", 0, 1)
    d.key("z", "Tab")
    refused = [(role, "not one of the listed values") for role in ("combo box", "text")]
    d.expect(lambda: (seen()[0][:2], [(one.get_role_name(), one.get_description()) for one in heard]),
             (["Area", "Area"], refused), "what is heard of a refusal")


desk.main(session)
