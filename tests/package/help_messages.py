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
ROOMS = ("app", "data", "editor", "forms", "system", "ui")


def plain(text):
    return re.sub(r"\s+", " ", text).strip()


def texts(source):
    """The pieces of text with a blank in them in a C++ source, escapes made plain."""
    for line in source.read_text(encoding="utf-8").splitlines():
        line = re.sub(r"'(\\.|[^'\\])'|^\s*(#include|//).*", "", line)  # the character constant '"' begins no text
        for literal in re.findall(r'"((?:[^"\\]|\\.)*)"', line):
            yield plain(re.sub(r"\\[nr]", " ", literal).replace('\\"', '"'))


top = Path(sys.argv[1])
page = plain(html.unescape(re.sub(r"<[^>]+>", "", (top / "share/Help/NorvoEditDat.html").read_text(encoding="utf-8"))))
for room in ROOMS:
    found = {text for source in (top / room).glob("*.cpp") if not source.stem.endswith("_design")
             for text in texts(source) if " " in text} - NO_MESSAGES
    for text in found or {"(no text found)"}:
        if text not in page:
            sys.exit(f"The help page lacks this text of a message in {room}/: {text}")
