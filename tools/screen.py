#!/usr/bin/env python3
"""A private screen: an X server without a monitor, and a window manager.

    tools/screen.py COMMAND [WORD...]     runs COMMAND on such a screen, and exits with its status

Needs Xvfb, xprop and the window manager."""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

TIMEOUT = 100  # seconds, against hanging alone: a sanitized build on a busy machine is slow
WIDTH, HEIGHT = 1280, 900

# By default openbox binds keys that programs want. This binds only the one that closes a window. The font is for
# the pictures in the help page.
OPENBOX_SETTINGS = """<openbox_config xmlns="http://openbox.org/3.4/rc">
<theme><font place="ActiveWindow"><name>sans</name><size>8</size><weight>bold</weight></font></theme>
<keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
</openbox_config>
"""


def until(condition, what):
    """Waits for condition to give something true, and returns that."""
    deadline = time.monotonic() + TIMEOUT
    while time.monotonic() < deadline:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError("not seen in %d s: %s" % (TIMEOUT, what))


class Screen:
    """Sets DISPLAY in environment, and runs the window manager in a copy of it with an empty home."""

    def __init__(self, environment, manager="openbox"):
        self.folder = tempfile.mkdtemp(prefix="norvo-screen-")
        self.children = []
        try:
            self._start_server(environment)
            self._start_manager(environment, manager)
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        for child in reversed(list(self.children)):
            self.end(child)
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, words, **options):
        """Starts a program that ends with the screen."""
        child = subprocess.Popen(words, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                 stderr=subprocess.DEVNULL, **options)
        self.children.append(child)
        return child

    def end(self, child):
        child.terminate()
        child.wait()
        self.children.remove(child)

    def _start_server(self, environment):
        read_end, write_end = os.pipe()
        # Without -noreset the server resets whenever its last client disconnects. With -r it repeats no key: on a busy
        # machine a key may be held down for long.
        self.start(["Xvfb", "-displayfd", str(write_end), "-screen", "0", "%dx%dx24" % (WIDTH, HEIGHT),
                    "-nolisten", "tcp", "-noreset", "-r"], pass_fds=[write_end])
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("Xvfb has not started")
        environment["DISPLAY"] = ":" + number

    def _start_manager(self, environment, manager):
        words = [manager]
        if manager == "openbox":
            settings = os.path.join(self.folder, "openbox.xml")
            with open(settings, "w", encoding="utf-8") as file:
                file.write(OPENBOX_SETTINGS)
            words += ["--sm-disable", "--config-file", settings]
        own = {name: value for name, value in environment.items() if not name.startswith("XDG_")}
        own["HOME"] = self.folder
        self.start(words, env=own, cwd=self.folder)
        # A window shown while the window manager takes over may get lost.
        check = ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"]
        until(lambda: b"window id" in subprocess.run(check, env=environment, capture_output=True).stdout, manager)


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(128 + signal.SIGTERM))
    with Screen(os.environ):
        status = subprocess.call(sys.argv[1:])
    sys.exit(status if status >= 0 else 128 - status)


if __name__ == "__main__":
    main()
