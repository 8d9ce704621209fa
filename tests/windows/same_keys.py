"""The program for Windows under Wine, beside the one for this system: the same keys and clicks on both. What they
save has to be the same, byte for byte.

    same_keys.py WINDOWS_PROGRAM PROGRAM SHARE_FOLDER [PICTURE_FOLDER]"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2]))

from tools import hands
from tools.screen import Screen, until

TITLE = "Norvo Data File Editor"
WINE = "/usr/lib/wine/wine64"


class Here:
    """The program of this system."""

    titles = {"main": TITLE, "about": "About " + TITLE, "save": "Save As"}

    def __init__(self, program, folder):
        self.words, self.folder, self.environment = [program], folder, dict(os.environ)
        self.scale, self.pictures, self.count = 1, None, 0
        folder.mkdir()

    def path(self, path):
        return str(path)

    def start(self, *words):
        self.editor = subprocess.Popen([*self.words, *words], cwd=self.folder, env=self.environment)
        self.do("^main")

    def do(self, steps, **texts):
        """Each step is a key, with the number of presses after "*", a 'text', a {text} of texts, an @picture, ^ and the
        title of a window to wait for, or a click %x,y in that window. It counts from the left and from the top, or up
        from the bottom if it is negative."""
        for step in re.findall(r"'[^']*'|\S+", steps):
            sign, rest = step[0], step[1:].strip("'}")
            if sign in "'{":
                hands.type_text(rest if sign == "'" else texts[rest])
            elif sign == "^":
                self.window = hands.focus(self.titles.get(rest, rest))
            elif sign == "@":
                self.picture(rest)
            elif sign == "%":
                left, top, _, height = hands.place(self.window)
                x, y = (int(number) * self.scale for number in rest.split(","))
                hands.click(left + x, top + y + (height if y < 0 else 0))
            else:
                key, _, times = step.partition("*")
                hands.key(*[key] * int(times or 1))

    def picture(self, name):
        if self.pictures:
            self.count += 1
            file = self.pictures / ("%d-%02d-%s.png" % (self.scale, self.count, name))
            hands.run("import", "-window", "root", str(file))

    def ends(self):
        """Waits for the editor's end, and gives its status."""
        until(lambda: self.editor.poll() is not None, "the end of the editor")
        until(lambda: subprocess.run(["xdotool", "search", "--name", TITLE], capture_output=True).returncode,
              "no window of the editor")
        return self.editor.returncode

    def leave(self):
        self.do("alt+F4")
        return self.ends()


class There(Here):
    """The program for Windows, in a Wine of its own that shows it larger by scale."""

    titles = {**Here.titles, "save": "Save"}  # as Wine calls its dialog

    def __init__(self, program, folder, scale, pictures):
        super().__init__(program, folder)
        self.environment = dict(os.environ, WINEPREFIX=str(folder / "wine"), WINEDEBUG="-all")
        self.wine("wineboot", "--init")
        for key, name, kind, value in (
                (r"HKCU\Control Panel\Desktop", "LogPixels", "REG_DWORD", str(96 * scale)),
                (r"HKCU\Software\Wine\WineBrowser", "Browsers", "REG_SZ", shutil.which("xdg-open"))):
            self.wine("reg", "add", key, "/v", name, "/t", kind, "/d", value, "/f")
        # The command prompt hands on its line as it stands, also with half of the program's name in quotes.
        (folder / "the program").symlink_to(program.parent)
        start = folder / "start.bat"
        start.write_text('@"%s"\\%s %%*\r\n' % (self.path(folder / "the program"), program.name))
        self.words, self.scale, self.pictures = [WINE, "cmd", "/c", self.path(start)], scale, pictures

    def paste_after_the_end(self):
        """What was copied can be pasted once the editor has ended. On Linux that is up to the desktop."""
        file = self.folder / "pasted.dat"
        desktop = subprocess.Popen([WINE, "cmd"], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                   env=self.environment)  # Wine's lasts while a program runs.
        self.start(file.name)
        self.do("%60,55 'Copied' ctrl+a ctrl+c")
        self.leave()
        self.start(file.name)
        self.do("%60,55 ctrl+v %32,-22")
        save(self, file)
        until(lambda: b"Copied" in file.read_bytes(), "what was copied")
        self.leave()
        desktop.communicate()

    def wine(self, *words):
        subprocess.run([WINE, *words], check=words[0] != "wineboot", capture_output=True, env=self.environment)

    def path(self, path):
        return "Z:" + str(path).replace("/", "\\")


def answer(box, key):
    """Presses key in the box of that title until it has gone. Wine may not hear the first one in a new window."""
    number = hands.focus(box)
    patience = time.monotonic()

    def is_gone():
        nonlocal patience
        if time.monotonic() >= patience:
            hands.key(key)
            patience = time.monotonic() + 2
        return subprocess.run(["xwininfo", "-id", number], capture_output=True).returncode != 0
    until(is_gone, "the end of the box %r" % box)


def save(here, file, steps=""):
    here.do("alt+a ^save @save-%s %s Return ^main" % (file.stem, steps), path=here.path(file))
    until(file.exists, file.name)


def save_as(here, name):
    file = here.folder / (name + ".dat")  # Wine's dialog would add it, which the system's doesn't.
    save(here, file, "Home shift+End {path}")  # Wine's dialog doesn't know Ctrl+A.


def edit(here):
    """The main job, by keys: pick, change, complete, be refused, update. Then by mouse and keys: pick a record, move
    and delete it, and add one."""
    # The field insists: neither Alt+A nor Tab gets out of it.
    here.do("@start Tab*3 Down*2 Tab End quotedbl comma Tab ctrl+a 'Nowhere' alt+a Tab @refused")
    here.do("ctrl+a 'europe' Tab ctrl+a 'Germ' @completed Tab*2 shift+Tab*11 space")
    save_as(here, "updated")
    here.do("shift+Tab*6 %60,112 @picked %165,-22 %165,-22")
    save_as(here, "moved")
    here.do("%88,-22")
    save_as(here, "deleted")
    here.do("%60,55 ctrl+a 'Zone of mine' Tab 'Asia' Tab 'jap' Tab @typed %32,-22")
    save_as(here, "added")


def open_what_is_not_there(here):
    """Opens a name that isn't there, adds an empty record, and saves it under that name."""
    file = here.folder / "new.dat"
    here.start()
    here.do("space ctrl+o ^Open {path} Return ^main shift+Tab Tab space", path=here.path(file))
    save(here, file)
    return here.leave()


def save_as_offered(here, name):
    """The dialog offers a file in its own folder, however it was named at the start."""
    file = here.folder / name
    file.parent.mkdir(exist_ok=True)
    here.start(name)
    here.do("shift+Tab Tab space")  # A click may come before the new window takes it.
    save(here, file)
    return here.leave()


def work(here, share, opened):
    here.start(here.path(share / "NorvoEditDat.dat"), here.path(share / "timezones.dat"))
    edit(here)
    # Wine lets the window manager make a window smaller than its least size, and doesn't notice.
    hands.expect_drags(here.window, ((30, 100),))
    here.do("@size F1")
    hands.expect(lambda: opened.exists() and opened.read_text().count("NorvoEditDat.html"), 1, "the help page")
    opened.unlink()
    here.do("alt+h a ^about @about %50,185")  # the link
    hands.expect(lambda: opened.exists() and opened.read_text(), "https://norvo.example/\n", "the address")
    opened.unlink()
    answer("About " + TITLE, "Return")
    for key in ("Escape", "Return"):
        here.do("^main alt+f x ^Quit @quit")
        answer("Quit", key)
    return [here.ends(), open_what_is_not_there(here),
            *(save_as_offered(here, name) for name in ("bare.dat", "below/named.dat"))]


def main():
    windows, own, share = (pathlib.Path(word).resolve() for word in sys.argv[1:4])
    pictures = pathlib.Path(sys.argv[4]) if len(sys.argv) > 4 else None
    if pictures:
        pictures.mkdir(parents=True, exist_ok=True)
    folder = pathlib.Path(tempfile.mkdtemp(prefix="norvo-windows-"))
    opened = folder / "opened"
    opener = folder / "bin" / "xdg-open"
    opener.parent.mkdir()
    opener.write_text('#!/bin/sh\necho "$1" >>"%s"\n' % opened)
    opener.chmod(0o755)
    os.environ["PATH"] = "%s:%s" % (opener.parent, os.environ["PATH"])
    both = []
    try:
        with Screen(os.environ):
            both += [Here(own, folder / "here"), There(windows, folder / "there", 1, pictures),
                     There(windows, folder / "large", 2, pictures)]
            for here in both:
                try:
                    statuses = work(here, share, opened)
                except BaseException:
                    here.picture("failed")
                    raise
                assert statuses == [0] * 4, statuses
            both[1].paste_after_the_end()
        for other in both[1:]:
            for name in ("updated", "moved", "deleted", "added", "new", "bare", "below/named"):
                lines, wanted = ((one.folder / f"{name}.dat").read_bytes().split(b"\r\n") for one in (other, both[0]))
                assert lines == wanted, (name, other.scale, *next(pair for pair in zip(lines, wanted)
                                                                  if pair[0] != pair[1]))
        lines = (both[0].folder / "added.dat").read_bytes().split(b"\r\n")
        assert lines[0] == b"312,5" and lines[-2].startswith(b'"Zone of mine","Asia","Japan"'), lines[-2]
    finally:
        for here in both[1:]:
            subprocess.run(["/usr/lib/wine/wineserver64", "-k"], check=False, env=here.environment)
        shutil.rmtree(folder, ignore_errors=True)


main()
