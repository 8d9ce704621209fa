#!/usr/bin/env python3
"""Makes the sample from the time zone table that the tz database publishes.

usage: make-sample.py zone1970.tab iso3166.tab FOLDER

Writes into FOLDER the table timezones.dat, its specification NorvoEditDat.dat and the specification's
two list files, countries.txt and areas.txt. Both tab files are part of the tz database; a Debian system
has them in /usr/share/zoneinfo.
"""

import re
import sys
import unicodedata
from pathlib import Path

COLUMNS = [
    # heading, percent of the list's width, mode, list file. The percents leave room for the list's
    # vertical scroll bar.
    ("Zone", "28", "0", "-"),
    ("Area", "13", "1", "areas.txt"),
    ("Country", "22", "2", "countries.txt"),
    ("Position", "19", "0", "-"),
    ("Remarks", "15", "0", "-"),
]


def tab_rows(path):
    """The rows of a tab file, without its comments."""
    lines = Path(path).read_text(encoding="utf-8").splitlines()
    return [line.split("\t") for line in lines if line and not line.startswith("#")]


def alphabetical(text):
    """A sort key that puts a letter with an accent beside the plain one: Åland Islands is among the A's."""
    plain = "".join(c for c in unicodedata.normalize("NFD", text) if not unicodedata.combining(c))
    return (plain.casefold(), text)


def readable_angle(digits, hemisphere):
    """0130 or 013045 as 1°30′E or 1°30′45″E; the digits in front of the minutes are the degrees."""
    seconds = ""
    if len(digits) > 5:
        digits, seconds = digits[:-2], digits[-2:] + "″"
    return f"{int(digits[:-2])}°{digits[-2:]}′{seconds}{hemisphere}"


def readable_position(iso6709):
    match = re.fullmatch(r"([+-])(\d{4}|\d{6})([+-])(\d{5}|\d{7})", iso6709)
    if not match:
        sys.exit(f"not a position: {iso6709}")
    latitude = readable_angle(match[2], "N" if match[1] == "+" else "S")
    longitude = readable_angle(match[4], "E" if match[3] == "+" else "W")
    return f"{latitude} {longitude}"


def records(zones, names):
    """One record for each zone, in the order of the zones' names."""
    result = []
    for codes, position, zone, *remarks in zones:
        area, slash, _ = zone.partition("/")
        if not slash:
            sys.exit(f"zone without an area: {zone}")
        country = names[codes.split(",")[0]]
        result.append((zone, area, country, readable_position(position), remarks[0] if remarks else ""))
    return sorted(result)


def write_lines(path, lines):
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("utf-8"))


def write_table(path, rows):
    """Writes the rows in the program's own table form: the size first, then every field in quotes."""
    for row in rows:
        for cell in row:
            if cell != cell.strip(" ") or "\r" in cell:
                sys.exit(f"a cell that would not be read back as it is: {cell!r}")
    lines = [f"{len(rows)},{len(rows[0])}"]
    lines += [",".join('"' + cell.replace('"', '""') + '"' for cell in row) for row in rows]
    write_lines(path, lines)


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    zones = tab_rows(sys.argv[1])
    names = dict(tab_rows(sys.argv[2]))
    folder = Path(sys.argv[3])

    table = records(zones, names)
    write_table(folder / "timezones.dat", table)
    write_table(folder / "NorvoEditDat.dat", COLUMNS)
    write_lines(folder / "countries.txt", sorted(names.values(), key=alphabetical))
    write_lines(folder / "areas.txt", sorted({area for _, area, *_ in table}))


main()
