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
ADD = "%32,-22"  # the button


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

    def do(self, steps):
        """Each step is a key, with the number of presses after "*", a 'text', an @picture, or a click %x,y. It counts
        from the left and from the top of the editor's window, or up from the bottom if it is negative."""
        for step in re.findall(r"'[^']*'|\S+", steps):
            if step[0] == "'":
                hands.type_text(step[1:-1])
            elif step[0] == "@":
                self.picture(step[1:])
            elif step[0] == "%":
                left, top, _, height = hands.place(hands.focus(TITLE))
                x, y = (int(number) * self.scale for number in step[1:].split(","))
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
    here.do("alt+a")
    hands.focus(here.save_title)
    here.do("@save-%s Home shift+End" % name)  # Wine's dialog doesn't know Ctrl+A.
    hands.type_text(here.path(file))
    here.do("Return")
    hands.focus(TITLE)
    until(file.exists, name)


def save_as_offered(here, file):
    """Saves what is open, and ends the editor. The dialog offers its file, in the file's own folder."""
    here.do("alt+a")
    hands.focus(here.save_title)
    here.do("@offered Return")
    hands.focus(TITLE)
    until(file.exists, file.name)
    here.do("alt+F4")
    return here.ends()


def edit(here):
    """The main job, by keys: pick, change, complete, be refused, update. Then by mouse and keys: pick a record, move
    and delete it, and add one."""
    here.do("@start Tab*3 Down*2 Tab End quotedbl comma Tab ctrl+a 'Nowhere'")
    here.do("alt+a Tab @refused")  # Neither gets out of the field.
    here.do("ctrl+a 'europe' Tab ctrl+a 'Germ' @completed Tab*2 shift+Tab*11 space")
    save(here, "updated")
    here.do("shift+Tab*6 %60,112 @picked %165,-22 %165,-22")
    save(here, "moved")
    here.do("%88,-22")
    save(here, "deleted")
    here.do("%60,55 ctrl+a 'Zone of mine' Tab 'Asia' Tab 'jap' Tab @typed " + ADD)
    save(here, "added")


def open_what_is_not_there(here):
    """Opens a name that isn't there, adds an empty record, and saves it under that name."""
    here.start()
    here.do("space ctrl+o")
    hands.focus("Open")
    hands.type_text(here.path(here.folder / "new.dat"))
    here.do("Return")
    hands.focus(TITLE)
    here.do("shift+Tab Tab space")
    return save_as_offered(here, here.folder / "new.dat")


def work(here, share, opened):
    window = here.start(here.path(share / "NorvoEditDat.dat"), here.path(share / "timezones.dat"))
    edit(here)
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
    return [here.ends(), open_what_is_not_there(here)]


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
                assert statuses == [0] * 2, statuses
        for other in both[1:]:
            for name in ("updated.dat", "moved.dat", "deleted.dat", "added.dat", "new.dat"):
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
