"""The program for Windows under Wine, beside the one for this system: the same keys and clicks on both. What they
save has to be the same, byte for byte.

    same_keys.py WINDOWS_PROGRAM PROGRAM SHARE_FOLDER [PICTURE_FOLDER]"""

import os
import pathlib
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

    save_title = "Save As"

    def __init__(self, program, folder):
        self.words, self.folder, self.environment = [program], folder, dict(os.environ)
        self.scale, self.pictures, self.count = 1, None, 0
        folder.mkdir()

    def path(self, path):
        return str(path)

    def start(self, *words):
        self.editor = subprocess.Popen([*self.words, *words], cwd=self.folder, env=self.environment)
        return hands.focus(TITLE)

    def picture(self, name):
        if self.pictures:
            self.count += 1
            file = self.pictures / ("%d-%02d-%s.png" % (self.scale, self.count, name))
            hands.run("import", "-window", "root", str(file))

    def ends(self):
        until(lambda: self.editor.poll() is not None, "the end of the editor")
        until(lambda: subprocess.run(["xdotool", "search", "--name", TITLE], capture_output=True).returncode,
              "no window of the editor")
        return self.editor.returncode


class There(Here):
    """The program for Windows, in a Wine of its own that shows it larger by scale."""

    save_title = "Save"  # as Wine calls its dialog

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

    def wine(self, *words):
        subprocess.run([WINE, *words], check=words[0] != "wineboot", capture_output=True, env=self.environment)

    def paste_after_the_end(self):
        """What was copied can be pasted once the editor has ended. On Linux that is up to the desktop."""
        file = self.folder / "pasted.dat"
        desktop = subprocess.Popen([WINE, "cmd"], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                   env=self.environment)  # Wine's lasts while a program runs.
        self.click_first_field(file.name)
        hands.type_text("Copied")
        hands.key("ctrl+a", "ctrl+c", "alt+F4")
        self.ends()
        x, y, _, height = self.click_first_field(file.name)
        hands.key("ctrl+v")
        hands.click(x + 32, y + height - 22)  # add
        hands.key("alt+a")
        hands.focus(self.save_title)
        hands.key("Return")
        until(lambda: file.exists() and b"Copied" in file.read_bytes(), "what was copied")
        hands.focus(TITLE)
        hands.key("alt+F4")
        self.ends()
        desktop.communicate()

    def click_first_field(self, name):
        place = hands.place(self.start(name))
        hands.click(place[0] + 60, place[1] + 55)
        return place

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


def save(here, name):
    file = here.folder / (name + ".dat")  # Wine's dialog would add it, which the system's doesn't.
    hands.key("alt+a")
    hands.focus(here.save_title)
    here.picture("save-" + name)
    hands.key("Home", "shift+End")  # Wine's dialog doesn't know Ctrl+A.
    hands.type_text(here.path(file))
    hands.key("Return")
    hands.focus(TITLE)
    until(file.exists, name)


def edit(here, share):
    """The main job, by keys: pick, change, complete, be refused, update, move, delete."""
    window = here.start(here.path(share / "NorvoEditDat.dat"), here.path(share / "timezones.dat"))
    here.picture("start")
    hands.key(*"Tab Tab Tab Down Down Tab End quotedbl comma".split())
    hands.key("Tab", "ctrl+a")
    hands.type_text("Nowhere")
    hands.key("alt+a", "Tab")  # Neither gets out of the field.
    here.picture("refused")
    hands.key("ctrl+a")
    hands.type_text("europe")
    hands.key("Tab", "ctrl+a")
    hands.type_text("Germ")
    here.picture("completed")
    hands.key("Tab", "Tab", *["shift+Tab"] * 11, "space")
    save(here, "updated")
    hands.key(*["shift+Tab"] * 6)
    return window


def add_and_move(here, window):
    """By mouse and keys: pick a record, move it, and add one."""
    x, y, width, height = hands.place(window)
    unit = here.scale
    hands.click(x + 60 * unit, y + 112 * unit)
    here.picture("picked")
    hands.click(x + 165 * unit, y + height - 22 * unit)  # down
    hands.click(x + 165 * unit, y + height - 22 * unit)
    save(here, "moved")
    hands.click(x + 88 * unit, y + height - 22 * unit)  # delete
    save(here, "deleted")
    hands.click(x + 60 * unit, y + 55 * unit)
    hands.key("ctrl+a")
    hands.type_text("Zone of mine")
    hands.key("Tab")
    hands.type_text("Asia")
    hands.key("Tab")
    hands.type_text("jap")
    hands.key("Tab")
    here.picture("typed")
    hands.click(x + 32 * unit, y + height - 22 * unit)  # add
    save(here, "added")


def open_what_is_not_there(here):
    """Opens a name that isn't there, adds an empty record, and saves it under that name."""
    file = here.folder / "new.dat"
    here.start()
    hands.key("space", "ctrl+o")
    hands.focus("Open")
    hands.type_text(here.path(file))
    hands.key("Return")
    hands.focus(TITLE)
    hands.key("shift+Tab", "Tab", "space", "alt+a")
    hands.focus(here.save_title)
    hands.key("Return")
    hands.focus(TITLE)
    until(file.exists, "new.dat")


def save_as_offered(here, name):
    """The dialog offers a file in its own folder, however it was named at the start."""
    file = here.folder / name
    file.parent.mkdir(exist_ok=True)
    x, y, _, height = hands.place(here.start(name))
    hands.click(x + 32 * here.scale, y + height - 22 * here.scale)  # add
    hands.key("alt+a")
    hands.focus(here.save_title)
    here.picture("offered")
    hands.key("Return")
    hands.focus(TITLE)
    until(file.exists, name)
    hands.key("alt+F4")
    return here.ends()


def work(here, share, opened):
    window = edit(here, share)
    add_and_move(here, window)
    # Wine lets the window manager make a window smaller than its least size, and doesn't notice.
    hands.expect_drags(window, ((30, 100),))
    here.picture("size")
    hands.key("F1")
    hands.expect(lambda: opened.exists() and opened.read_text().count("NorvoEditDat.html"), 1, "the help page")
    opened.unlink()
    hands.key("alt+h", "a")
    hands.focus("About " + TITLE)
    here.picture("about")
    x, y = hands.place(hands.focus("About " + TITLE))[:2]
    hands.click(x + 50 * here.scale, y + 185 * here.scale)  # the link
    hands.expect(lambda: opened.exists() and opened.read_text(), "https://norvo.example/\n", "the address")
    opened.unlink()
    answer("About " + TITLE, "Return")
    for key in ("Escape", "Return"):
        hands.focus(TITLE)
        hands.key("alt+f", "x")
        hands.focus("Quit")
        here.picture("quit")
        answer("Quit", key)
    statuses = [here.ends()]
    open_what_is_not_there(here)
    hands.key("alt+F4")
    statuses += [here.ends()]
    return statuses + [save_as_offered(here, name) for name in ("bare.dat", "below/named.dat")]


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
            for name in ("updated.dat", "moved.dat", "deleted.dat", "added.dat", "new.dat", "bare.dat",
                         "below/named.dat"):
                lines, wanted = ((here.folder / name).read_bytes().split(b"\r\n") for here in (other, both[0]))
                assert lines == wanted, (name, other.scale, *next(pair for pair in zip(lines, wanted)
                                                                  if pair[0] != pair[1]))
        lines = (both[0].folder / "added.dat").read_bytes().split(b"\r\n")
        assert lines[0] == b"312,5" and lines[-2].startswith(b'"Zone of mine","Asia","Japan"'), lines[-2]
    finally:
        for here in both[1:]:
            subprocess.run(["/usr/lib/wine/wineserver64", "-k"], check=False, env=here.environment)
        shutil.rmtree(folder, ignore_errors=True)


main()
