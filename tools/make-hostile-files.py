#!/usr/bin/env python3
"""Makes files that are hard on an editor, to try out with the program's window.

usage: make-hostile-files.py FOLDER

Writes into FOLDER a specification of two columns, two.dat, and then damaged, huge and special files. The
name of each file begins with the form to open it in: dat_, csv_ or csvh_. The specification list.dat has a
field whose list file holds 200,000 entries. Start the program like this:

    NorvoEditDat FOLDER/two.dat FOLDER/dat_zero_bytes
    NorvoEditDat FOLDER/two.dat FOLDER/csv_line_50mb /csv
    NorvoEditDat FOLDER/list.dat FOLDER/dat_plain
"""

import os
import sys
from pathlib import Path

MEGABYTE = 1024 * 1024
ROW = b'"a","b"\r\n'

SPECIFICATION = b'2,4\r\n"One","50","0","-"\r\n"Two","40","0","-"\r\n'

FILES = {
    "dat_plain": b"2,2\r\n" + ROW * 2,
    "dat_zero_bytes": b"",
    "dat_header_only": b"3,2\r\n",
    "dat_header_without_line_end": b"3,2",
    "dat_fewer_rows": b"9,2\r\n" + ROW,
    "dat_more_rows": b"1,2\r\n" + ROW * 3,
    "dat_largest_size_no_rows": b"32767,2\r\n",
    "dat_largest_size_ragged": b'32767,2\r\n"a"\r\n',
    "dat_largest_columns": b"32767,32767\r\n" + ROW,
    "dat_too_many_rows": b"32768,2\r\n" + ROW,
    "dat_huge_number": b"1e400,2\r\n" + ROW,
    "dat_negative": b"-1,2\r\n" + ROW,
    "dat_not_numeric": b"rows,columns\r\n" + ROW,
    "dat_no_columns": b"2,0\r\n\r\n\r\n",
    "dat_nul_bytes": b'2,2\r\n"\0a\0","\0"\r\n\0,\0\r\n',
    "dat_all_nul": b"\0" * MEGABYTE,
    "dat_lone_cr": b"2,2\r" + ROW.replace(b"\r\n", b"\r") * 2,
    "dat_mixed_line_ends": b'3,2\r"a","b"\r\n"c\n","d"\r\r\n"e","f"',
    "dat_lf_only": b'2,2\n"a","b"\n"c","d"\n',
    "dat_not_utf8": b'1,2\r\n"\xff\xfe","\xc3"\r\n',
    "dat_line_50mb": b'1,2\r\n"' + b"x" * (50 * MEGABYTE) + b'","b"\r\n',
    "dat_line_50mb_of_commas": b"1,2\r\n" + b"," * (50 * MEGABYTE) + b"x\r\n",
    "dat_first_line_50mb": b"9" * (50 * MEGABYTE) + b",2\r\n" + ROW,
    "dat_cell_10mb": b'1,2\r\n"a","' + b'"" , ' * (2 * MEGABYTE) + b'."\r\n',
    "dat_full": b"32767,2\r\n" + ROW * 32767,
    "csv_zero_bytes": b"",
    "csv_blank_first_line": b"\r\n" + ROW,
    "csv_lf_only": b'"a","b"\n"c","d"\n',
    "csv_lone_cr": b'"a","b"\r"c","d"\r',
    "csv_nul_bytes": b'"\0a\0","\0"\r\n',
    "csv_line_50mb": b'"' + b"x" * (50 * MEGABYTE) + b'","b"\r\n',
    "csv_line_50mb_of_commas": b"," * (50 * MEGABYTE) + b"x\r\n",
    "csv_cell_10mb": b'"a","' + b'"" , ' * (2 * MEGABYTE) + b'."\r\n',
    "csv_32767_rows": ROW * 32767,
    "csv_32768_rows": ROW * 32768,
    "csv_lines_50mb": b"\r" * (50 * MEGABYTE),
    "csvh_zero_bytes": b"",
    "csvh_header_only": b'"One","Two"\r\n',
    "csvh_header_50mb": b"x" * (50 * MEGABYTE) + b"\r\n" + ROW,
}


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for name, content in FILES.items():
        (folder / name).write_bytes(content)
    (folder / "two.dat").write_bytes(SPECIFICATION)
    entries = b"".join(b"Entry %d\r\n" % number for number in range(200_000))
    (folder / "entries.txt").write_bytes(entries)
    # With its full path the program finds the list file wherever it is started.
    list_file = os.fsencode(folder.resolve() / "entries.txt")
    (folder / "list.dat").write_bytes(
        SPECIFICATION.replace(b'"40","0","-"', b'"40","2","' + list_file + b'"'))
    (folder / "dat_folder").mkdir(exist_ok=True)
    if not (folder / "dat_pipe").exists():
        os.mkfifo(folder / "dat_pipe")
    locked = folder / "dat_locked"
    locked.unlink(missing_ok=True)
    locked.write_bytes(FILES["dat_plain"])
    locked.chmod(0)


main()
