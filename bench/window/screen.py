"""A screen to measure windows on, and the programs whose windows are watched there from outside. The server reports
what a program paints as damage to its window, so neither its timers nor the window manager's decorations are mistaken
for it. Needs Debian's python3-xlib and what tools/screen.py needs."""

import os
import select
import sys
import time

from Xlib import X, XK, display
from Xlib.ext import damage

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))

from tools.screen import HEIGHT, TIMEOUT, WIDTH, Screen as EmptyScreen, until

QUIET_AT_START = 0.25  # seconds without damage after which a picture counts as the final one
QUIET = 0.12
IDLE = 0.003  # processor seconds that a program may use in that time and still count as done


class Screen(EmptyScreen):
    def __init__(self):
        # No bus: the toolkit would start one, and that would count as the program's time.
        self.environment = {name: value for name, value in os.environ.items() if not name.startswith(("QT_", "XDG_"))}
        self.environment.update(QT_QPA_PLATFORM="xcb", DBUS_SESSION_BUS_ADDRESS="disabled:")
        super().__init__(self.environment)
        self.environment.update(HOME=self.folder, XDG_RUNTIME_DIR=self.folder)
        self.damaged = {}  # window: when its last damage was heard of
        self.created = set()  # the windows of the program that was started last
        self.display = display.Display(self.environment["DISPLAY"])
        self.display.set_error_handler(lambda *_: None)  # Windows come and go; the callers notice a missing one.
        self.display.damage_query_version()
        self.root = self.display.screen().root
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self.manager = self._owner(self._property(self.root, "_NET_SUPPORTING_WM_CHECK"))

    def _property(self, window, name):
        found = window.get_full_property(self.display.intern_atom(name), X.AnyPropertyType)
        return found.value[0] if found and len(found.value) else None

    def _owner(self, window):
        """The part of a window's number that identifies the client that made it."""
        return window & ~self.display.display.info.resource_id_mask

    def active(self):
        """The window that has the keyboard, or None."""
        number = self._property(self.root, "_NET_ACTIVE_WINDOW")
        return self.display.create_resource_object("window", number) if number else None

    def listen(self, seconds):
        """Takes in the server's events. Waits at most that long for the first one."""
        if not self.display.pending_events():  # An answer to a request may have brought some along.
            select.select([self.display.fileno()], [], [], max(seconds, 0))
        now = time.perf_counter()  # Taking in the events takes a while.
        for _ in range(self.display.pending_events()):
            one = self.display.next_event()
            if one.type == self.display.extension_event.DamageNotify:
                self.damaged[one.drawable.id] = now
            elif one.type == X.CreateNotify and self._owner(one.window.id) != self.manager:
                # The window is not shown yet, so none of its damage is missed.
                one.window.damage_create(damage.DamageReportRawRectangles)
                self.display.flush()
                self.created.add(one.window.id)

    def fake(self, kind, code=0, x=0, y=0):
        self.display.xtest_fake_input(kind, code, x=x, y=y)

    def stroke(self, *names):
        """Presses keys, such as "Control_L" or "a", and releases them in the opposite order."""
        codes = [self.display.keysym_to_keycode(XK.string_to_keysym(name) or ord(name)) for name in names]
        for code in codes:
            self.fake(X.KeyPress, code)
        for code in reversed(codes):
            self.fake(X.KeyRelease, code)

    def type(self, text):
        for letter in text:
            self.stroke(letter)


class Started:
    """A program and its main window. start_time is the time in seconds from the start of the process to the final
    picture."""

    def __init__(self, screen, words):
        self.screen = screen
        screen.fake(X.MotionNotify, x=WIDTH - 1, y=HEIGHT - 1)
        screen.display.sync()
        screen.listen(0)
        screen.damaged.clear()
        screen.created.clear()
        begin = time.perf_counter()
        self.process = screen.start(words, env=screen.environment, cwd=screen.folder)
        self.start_time = self._wait(screen.created, begin, QUIET_AT_START, must_paint=True) - begin
        self.window = until(self._active_of_created, "the window of " + words[0])
        self.size = self.window.get_geometry()
        self.corner = screen.root.translate_coords(self.window, 0, 0)

    def _active_of_created(self):
        active = self.screen.active()
        return active if active and active.id in self.screen.created else None

    def _processor_time(self):
        """Seconds that all its threads have run."""
        clock = ~self.process.pid << 3 | 2  # See clock_getcpuclockid(3).
        return time.clock_gettime(clock)

    def _wait(self, windows, begin, quiet, must_paint):
        """Waits until nothing has painted for quiet seconds and the program was idle in that time. Returns the time at
        which one of the windows was last painted."""
        last, since = None, begin
        used = self._processor_time()
        while time.perf_counter() < begin + TIMEOUT:
            self.screen.listen(since + quiet - time.perf_counter())
            if self.process.poll() is not None:
                raise AssertionError("the program has ended")
            seen = max((self.screen.damaged[one] for one in windows if one in self.screen.damaged), default=None)
            if seen != last:
                last = since = seen
                used = self._processor_time()
            elif time.perf_counter() >= since + quiet:
                before, used = used, self._processor_time()
                if used - before < IDLE and (last or not must_paint):
                    return last
                since = time.perf_counter()
        raise AssertionError("nothing painted in %d s" % TIMEOUT)

    def settle(self):
        """Waits until the program has finished what it was told to do."""
        self.screen.display.sync()
        self.screen.damaged.clear()
        self._wait([self.window.id], time.perf_counter(), QUIET, must_paint=False)

    def time(self, *names):
        """Sends these keys after the requests that still wait. Returns the seconds from then to the final picture."""
        self.screen.stroke(*names)
        self.screen.damaged.clear()
        begin = time.perf_counter()
        self.screen.display.flush()
        return self._wait([self.window.id], begin, QUIET, must_paint=True) - begin

    def key(self, *names):
        self.screen.stroke(*names)
        self.settle()

    def press(self, x, y):
        """Presses the mouse button there. That picks a row; a button of the window acts when it is released."""
        self.screen.fake(X.MotionNotify, x=self.corner.x + x, y=self.corner.y + y)
        self.screen.fake(X.ButtonPress, 1)
        self.settle()

    def release(self):
        self.screen.fake(X.ButtonRelease, 1)

    def time_size(self, width, height):
        self.window.configure(width=width, height=height)
        return self.time()

    def peak_memory(self):
        """The most memory that it has had so far, in bytes."""
        with open("/proc/%d/status" % self.process.pid, encoding="ascii", errors="replace") as file:
            line = next(one for one in file if one.startswith("VmHWM:"))
        return int(line.split()[1]) * 1024

    def inks(self, left, top, width, height):
        """How many different colours a part of the window shows."""
        image = self.window.get_image(left, top, width, height, X.ZPixmap, 0xFFFFFFFF)
        return len({image.data[at:at + 4] for at in range(0, len(image.data), 4)})
