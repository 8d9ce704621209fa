#!/usr/bin/env python3
"""Every message that the program can show is explained in its help page, in the program's own words.

usage: help_messages.py SOURCE_FOLDER
"""

import html
import re
import sys
from pathlib import Path

NO_MESSAGES = {
    "Data (*.dat) | *.dat",
    "Comma Separated Values (*.csv) | *.csv",
    "one of the listed values",  # for screen readers
    "/100 W=",  # a layout rule
    "AppCmd: unrecognized cmd (%s)",  # a trace of debug builds
}


ROOMS = ("app", "data", "editor", "platform", "text", "ui")


def plain(text):
    return re.sub(r"\s+", " ", text).strip()


def texts(source):
    """The pieces of text with a blank in them in a C++ source, escapes made plain."""
    for line in source.read_text(encoding="utf-8").splitlines():
        if line.lstrip().startswith(("#include", "//")):
            continue
        line = re.sub(r"'(\\.|[^'\\])'", "", line)  # the character constant '"' begins no text
        for literal in re.findall(r'"((?:[^"\\]|\\.)*)"', line):
            text = plain(re.sub(r"\\[nr]", " ", literal).replace('\\"', '"'))
            if " " in text and text not in NO_MESSAGES:
                yield text


top = Path(sys.argv[1])
page = (top / "share/Help/NorvoEditDat.html").read_text(encoding="utf-8")
page = plain(html.unescape(re.sub(r"<[^>]+>", "", page)))
found = {room: [text for source in sorted((top / room).glob("*.cpp")) if not source.stem.endswith("_design")
                for text in texts(source)] for room in ROOMS}
missing = [f"{room}/: {text}" for room in ROOMS for text in found[room] or ["(no text found)"] if text not in page]
if missing:
    sys.exit("The help page lacks these texts of messages:\n" + "\n".join(missing))
