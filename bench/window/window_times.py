"""Times the real window from outside: from a program's start, or from an act of its user, to the final picture.
The floor, which is the least that the toolkit takes for a window of that shape, is measured in turn with the
program. The figures depend on the machine, but their ratios hardly do. bench/report.py makes a table of them.

    /usr/bin/python3 bench/window/window_times.py PROGRAM FLOOR_WINDOW TABLES_FOLDER FIGURES_FILE [--rounds N]

PROGRAM is a release build. TABLES_FOLDER is the folder that "table_once make" has filled."""

import argparse
import csv
import itertools
import json
import os
import statistics
import sys
import time

from screen import Screen, Started, until

SAMPLES = 3  # measurements of an act in each run, after one to warm up; the median counts
GROWTH = 6  # pixels that one step of a drag adds
# Places in the main window as it is designed, its menu bar included.
FIRST_ROW, LOWER_ROW, ROWS_AREA = (28, 93), (28, 143), (10, 90, 400, 100)
EDITS = {"update": (32, 247), "move down": (164, 247), "move up": (132, 247), "delete": (88, 247), "add": (32, 247)}


def words_of(options, table):
    """The words that start the program and the floor on a table."""
    file, specification = (os.path.join(options.tables, table + end) for end in (".dat", "-spec.dat"))
    with open(file, encoding="utf-8") as lines:
        rows = lines.readline().split(",")[0]
    with open(specification, encoding="utf-8", newline="") as lines:
        percents = ",".join(row[1] for row in list(csv.reader(lines))[1:])
    return {table + "/program": [options.program, specification, file],
            table + "/floor": [options.floor, rows, percents]}


def middle(act, undo=lambda: None):
    """The median of some measurements without the first. undo brings back the state before the act."""
    times = []
    for _ in range(1 + SAMPLES):
        times.append(act())
        undo()
    return statistics.median(times[1:])


def edits(run):
    """The times of the edits. Each series leaves as many records as there were."""
    times = {name: [] for name in EDITS}
    for _ in range(1 + SAMPLES):
        run.press(*LOWER_ROW)
        run.release()
        for name, button in EDITS.items():
            run.press(*button)
            run.release()
            times[name].append(run.time())
    return {name: statistics.median(one[1:]) for name, one in times.items()}


def save(run, folder):
    """Saves under a new name in the folder of the table. Returns the most memory that the program has used so far."""
    path = os.path.join(folder, "saved.dat")
    run.key("Alt_L", "a")
    until(lambda: run.screen.active() not in (None, run.window), "the file dialog")
    run.settle()
    run.screen.type("saved.dat")  # Over the offered name, which is selected.
    run.settle()
    run.key("Return")
    until(lambda: run.screen.active() == run.window and os.path.exists(path), "the saved file")
    run.settle()
    os.remove(path)
    return run.peak_memory()


def measure(screen, words, takes_edits):
    """Runs a program once. Returns its seconds, and bytes of memory, by name."""
    time.sleep(1)  # The server and the window manager clean up after the last program.
    run = Started(screen, words)
    # Rows draw a grid, so there are two colours at least as soon as rows are there.
    if run.inks(*ROWS_AREA) < 2:
        sys.exit("no records in the final picture")
    values = {"start": run.start_time, "memory": run.peak_memory()}
    run.press(*FIRST_ROW)
    run.release()
    values["down"] = middle(lambda: run.time("Down"))
    values["page down"] = middle(lambda: run.time("Next"))
    sizes = itertools.cycle([(run.size.width + GROWTH, run.size.height + GROWTH), (run.size.width, run.size.height)])
    values["resize"] = middle(lambda: run.time_size(*next(sizes)))
    run.key("Tab")
    values["letter"] = middle(lambda: run.time("x"), lambda: run.key("BackSpace"))
    if takes_edits:
        values.update(edits(run))
        values["memory after saving"] = save(run, os.path.dirname(words[-1]))
    screen.end(run.process)
    return values


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    for name in ("program", "floor", "tables", "figures"):
        parser.add_argument(name, type=os.path.abspath)
    parser.add_argument("--rounds", type=int, default=21)
    options = parser.parse_args()
    words = {**words_of(options, "typical"), **words_of(options, "limit")}
    rounds = []
    with Screen() as screen:
        for number in range(options.rounds):
            print("round %d of %d" % (number + 1, options.rounds), file=sys.stderr)
            rounds.append({})
            # In the opposite order each time, because it may help or hurt a program to be started first.
            for key in sorted(words, reverse=number % 2 == 1):
                rounds[-1][key] = measure(screen, words[key], takes_edits=key.endswith("/program"))
    with open(options.figures, "w", encoding="utf-8") as file:
        json.dump(rounds, file, indent=1)


if __name__ == "__main__":
    main()
