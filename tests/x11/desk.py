"""A desk of its own for a scripted session: a screen, an accessibility bus, and the editor. Real keys and clicks
drive the editor from outside its process, and the session reads it as a screen reader does. A script that uses
this starts with `desk.main(session)`."""

import faulthandler
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import traceback
import warnings

import gi

gi.require_version("Atspi", "2.0")
sys.path.append(str(pathlib.Path(__file__).resolve().parents[2]))

from gi.repository import Atspi
from tools import hands
from tools.screen import TIMEOUT, Screen, until

warnings.simplefilter("ignore", DeprecationWarning)  # the names that Debian 12's bindings still need

TITLE = "Norvo Data File Editor"
run = hands.run


class Desk:
    def __init__(self, program):
        self.program = pathlib.Path(program).resolve()
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="norvo-session-"))
        self.log = self.folder / "stderr"
        self.editor = None
        # Stands in for the desktop's own, which starts a browser that outlives the session.
        opener = self.folder / "bin" / "xdg-open"
        opener.parent.mkdir()
        (self.folder / "opened").touch()
        opener.write_text('#!/bin/sh\necho "$1" >>"%s"\n' % (self.folder / "opened"))
        opener.chmod(0o755)
        os.environ["PATH"] = "%s:%s" % (opener.parent, os.environ["PATH"])
        self.screen = Screen(os.environ, os.environ.get("NORVO_SESSION_MANAGER", "openbox"))

    def start(self, *words, **environment):
        """Starts the editor on words. Its home is empty, so it sees none of the user's settings."""
        values = dict(os.environ, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", HOME=self.folder,
                      XDG_CONFIG_HOME=self.folder / "config", **environment)
        with open(self.log, "ab") as log:
            self.editor = subprocess.Popen([self.program, *words], stdout=log, stderr=log, env=values, cwd=self.folder)

    def ends(self):
        """Waits for the editor to end, and returns its exit status and what it has said on its standard error."""
        until(lambda: self.editor.poll() is not None, "the end of the editor")
        return self.editor.returncode, self.log.read_text(errors="replace")

    def close(self):
        if self.editor and self.editor.poll() is None:
            self.editor.terminate()
            self.editor.wait()
        self.screen.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def opened(self):
        """What the editor has handed to the desktop to open, in order."""
        return (self.folder / "opened").read_text().splitlines()

    # --- windows and keys

    focus, key, type = map(staticmethod, (hands.focus, hands.key, hands.type_text))

    def click(self, node, times=1):
        """Clicks the middle of an accessible object."""
        box = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        hands.click(box.x + box.width // 2, box.y + box.height // 2, times)

    # --- what a screen reader reads

    def walk(self, node=None):
        """All accessible objects of the editor, or node and those below it; tables and lists are not entered."""
        if node is None:
            root = Atspi.get_desktop(0)
            programs = [root.get_child_at_index(i) for i in range(root.get_child_count())]
            node = next((one for one in programs if one and one.get_process_id() == self.editor.pid), None)
        if not node:
            return
        yield node
        if node.get_role_name() not in ("table", "list"):
            for i in range(node.get_child_count()):
                yield from self.walk(node.get_child_at_index(i) or False)

    def find(self, role, name):
        return until(lambda: next((one for one in self.walk()
                                   if one.get_role_name() == role and one.get_name() == name), None),
                     "%s %r" % (role, name))

    def state(self, node, name):
        """Whether the object is in a state such as ENABLED or FOCUSED."""
        node.clear_cache()
        return node.get_state_set().contains(getattr(Atspi.StateType, name))

    def focused(self):
        """Name of the innermost object that has the focus; None while none has it."""
        return next((one.get_name() for one in reversed(list(self.walk())) if self.state(one, "FOCUSED")), None)

    def text(self, name):
        """The text in the field under that heading."""
        return self.find("text", name).get_text_iface().get_text(0, -1)

    def table(self):
        return self.find("table", "Records").get_table_iface()

    def cell(self, row, column):
        child = self.table().get_accessible_at(row, column)
        child.clear_cache()
        return child.get_name()

    expect = staticmethod(hands.expect)


def main(session):
    """Runs session(desk, share_folder) on a message bus of its own: script PROGRAM SHARE_FOLDER"""
    if os.environ.get("NORVO_SESSION_BUS") != "own":
        os.environ["NORVO_SESSION_BUS"] = "own"
        # The accessibility bus has its socket there; two sessions at a time must not share one.
        os.environ["XDG_RUNTIME_DIR"] = tempfile.mkdtemp(prefix="norvo-bus-")
        os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable, *sys.argv])
    faulthandler.dump_traceback_later(4 * TIMEOUT)  # Shows where a call hangs.
    desk = Desk(sys.argv[1])
    try:
        session(desk, pathlib.Path(sys.argv[2]).resolve())
    except BaseException:
        traceback.print_exc()
        print("the editor said:", desk.log.read_text(errors="replace"))
        sys.exit(1)
    finally:
        desk.close()
        shutil.rmtree(os.environ["XDG_RUNTIME_DIR"], ignore_errors=True)
