"""A desk of its own for a scripted session: an X server, a window manager and an accessibility bus, and the
editor on it, driven by real keys and mouse clicks from outside the process and read as a screen reader
would. A script that uses it starts with `desk.main(session)`."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import traceback
import warnings

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2]))

from tools.screen import Screen

warnings.simplefilter("ignore", DeprecationWarning)  # the names that Debian 12's bindings still need

TIMEOUT = 30  # seconds; generous, since a sanitized build on a busy machine is slow


def until(condition, what):
    """Waits for condition to give something true, and returns that."""
    deadline = time.monotonic() + TIMEOUT
    while time.monotonic() < deadline:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError("not seen in %d s: %s" % (TIMEOUT, what))


def run(*words):
    return subprocess.run(words, check=True, capture_output=True, text=True).stdout.strip()


class Desk:
    """The screen, and what is on it."""

    def __init__(self, program):
        self.program = os.path.abspath(program)
        self.folder = tempfile.mkdtemp(prefix="norvo-session-")
        self.children = []
        self._opener()
        self.screen = Screen(os.environ)

    def _opener(self):
        # Stands in for the desktop's own, which would start a browser that outlives the session.
        folder = os.path.join(self.folder, "opener")
        os.mkdir(folder)
        path = os.path.join(folder, "xdg-open")
        with open(path, "w", encoding="utf-8") as file:
            file.write('#!/bin/sh\necho "$1" >> "%s"\n' % os.path.join(self.folder, "opened"))
        os.chmod(path, 0o755)
        os.environ["PATH"] = folder + os.pathsep + os.environ["PATH"]

    def opened(self):
        """What the editor has handed to the desktop to open, in order."""
        try:
            with open(os.path.join(self.folder, "opened"), encoding="utf-8") as file:
                return file.read().splitlines()
        except FileNotFoundError:
            return []

    def start(self, *words, **environment):
        """Starts the editor on words."""
        log = open(os.path.join(self.folder, "stderr"), "ab")
        # Its home is empty, so that no setting of the machine's user changes what is tested.
        values = dict(os.environ, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                      HOME=self.folder, XDG_CONFIG_HOME=os.path.join(self.folder, "config"),
                      **environment)
        self.editor = subprocess.Popen([self.program, *words], stderr=log, stdout=log, env=values,
                                       cwd=self.folder)
        self.children.append(self.editor)

    def close(self):
        for child in reversed(self.children):
            if child.poll() is None:
                child.terminate()
            child.wait()
        self.screen.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def complaints(self):
        """What the editor has said on its standard error."""
        with open(os.path.join(self.folder, "stderr"), encoding="utf-8", errors="replace") as file:
            return file.read()

    # --- windows and keys

    def titles(self):
        """Titles of the windows that are on the screen."""
        try:
            ids = run("xdotool", "search", "--onlyvisible", "--name", ".").split()
            return [run("xdotool", "getwindowname", one) for one in ids]
        except subprocess.CalledProcessError:
            return []

    def focus(self, title):
        """Waits until the window of that title has the keyboard."""
        def has_it():
            try:
                return run("xdotool", "getactivewindow", "getwindowname") == title
            except subprocess.CalledProcessError:
                return False
        until(has_it, "the window %r in front" % title)

    def key(self, *keys):
        for one in keys:
            run("xdotool", "key", one)

    def type(self, text):
        run("xdotool", "type", "--delay", "20", "--", text)

    def click(self, node):
        """Clicks the middle of an accessible object."""
        box = node.get_component_iface().get_extents(self.atspi.CoordType.SCREEN)
        run("xdotool", "mousemove", "--sync", str(box.x + box.width // 2), str(box.y + box.height // 2),
            "click", "1")

    def ends(self):
        """Waits for the editor to end, and returns its exit status."""
        return until(lambda: (self.editor.poll() is not None) and str(self.editor.returncode),
                     "the end of the editor")

    # --- what a screen reader reads

    @property
    def atspi(self):
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi
        return Atspi

    def windows(self):
        """The editor's windows as accessible objects."""
        root = self.atspi.get_desktop(0)
        for i in range(root.get_child_count()):
            application = root.get_child_at_index(i)
            if application and application.get_process_id() == self.editor.pid:
                return [application.get_child_at_index(j) for j in range(application.get_child_count())]
        return []

    def window(self, title):
        return until(lambda: next((one for one in self.windows() if one and one.get_name() == title), None),
                     "a window %r among %r" % (title, [one.get_name() for one in self.windows() if one]))

    def find(self, role, name, title="Norvo Data File Editor"):
        """The object of that role and name in the window of that title."""
        return until(lambda: next((one for one in self.walk(self.window(title))
                                   if one.get_role_name() == role and one.get_name() == name), None),
                     "%s %r in %r" % (role, name, title))

    def walk(self, node, most=400):
        """node and what is below it, tables not entered."""
        yield node
        if node.get_role_name() == "table":
            return
        for i in range(min(node.get_child_count(), most)):
            child = node.get_child_at_index(i)
            if child:
                yield from self.walk(child)

    def state(self, node, name):
        """Whether the object is in a state such as ENABLED or FOCUSED."""
        node.clear_cache()
        return node.get_state_set().contains(getattr(self.atspi.StateType, name))

    def focused(self, title):
        """Name of the object that has the focus in the window of that title; None while none has it."""
        return next((one.get_name() for one in self.walk(self.window(title)) if self.state(one, "FOCUSED")), None)

    def text(self, node):
        return node.get_text_iface().get_text(0, -1)

    def field(self, name):
        """The line edit of the field under that heading."""
        return self.find("text", name)

    def table(self):
        return self.find("table", "Records")

    def cell(self, row, column):
        child = self.table().get_table_iface().get_accessible_at(row, column)
        child.clear_cache()
        return child.get_name()

    def rows(self):
        return self.table().get_table_iface().get_n_rows()

    def expect(self, actual, wanted, what):
        """Waits until actual() gives wanted."""
        seen = []

        def equal():
            seen[:] = [actual()]
            return seen[0] == wanted
        try:
            until(equal, what)
        except AssertionError:
            raise AssertionError("%s: %r, wanted %r" % (what, seen[0], wanted)) from None


def main(session):
    """Runs session(desk, share_folder) on a message bus of its own: script PROGRAM SHARE_FOLDER"""
    if os.environ.get("NORVO_SESSION_BUS") != "own":
        os.environ["NORVO_SESSION_BUS"] = "own"
        # The accessibility bus has its socket there; two sessions at a time must not share one.
        os.environ["XDG_RUNTIME_DIR"] = tempfile.mkdtemp(prefix="norvo-bus-")
        os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable, *sys.argv])
    desk = Desk(sys.argv[1])
    try:
        session(desk, os.path.abspath(sys.argv[2]))
        print("passed")
    except BaseException:
        traceback.print_exc()
        print("windows on the screen:", desk.titles())
        print("the editor said:", desk.complaints())
        picture = os.environ.get("NORVO_SESSION_PICTURE")
        if picture:
            subprocess.run(["import", "-window", "root", picture], check=False)
        sys.exit(1)
    finally:
        desk.close()
        shutil.rmtree(os.environ["XDG_RUNTIME_DIR"], ignore_errors=True)
