"""Times on the real window, from outside: from a program's start, or from an act of its user, to the final picture.
The program is measured in turn with the least that the toolkit takes for a window of its shape, which is called
the floor. The figures depend on the machine, their ratios hardly; nothing here fails for being slow.

    /usr/bin/python3 bench/window/window_times.py PROGRAM FLOOR_WINDOW TABLES_FOLDER [--rounds N] [--json FILE]

PROGRAM is a release build, and TABLES_FOLDER what make_tables has written."""

import argparse
import contextlib
import csv
import json
import os
import statistics
import sys

import figures
from screen import NotSeen, Screen, Started

SAMPLES = 3  # of an act in each run, after one that warms up; their median counts
MENU_HEIGHT = 19
GROWTH = 6  # pixels that one step of a drag adds
# Middles of buttons and the like in the main window as it is designed, below the menu bar.
ADD, DELETE, MOVE_UP, MOVE_DOWN = (32, 228), (88, 228), (132, 228), (164, 228)
FIRST_ROW, LOWER_ROW, ROWS_AREA = (28, 74), (28, 124), (10, 90, 400, 100)
PLACES = (20, 40), (660, 40), (20, 460), (660, 460)  # of four windows on the screen
EDITS = {"update": ADD, "move down": MOVE_DOWN, "move up": MOVE_UP, "delete": DELETE, "add": ADD}


class Table:
    def __init__(self, folder, name):
        self.name = name
        self.file = os.path.join(folder, name + ".dat")
        self.specification = os.path.join(folder, name + "-spec.dat")
        self.bytes = os.path.getsize(self.file)
        with open(self.file, "rb") as file:
            self.rows = int(file.readline().split(b",")[0])
        with open(self.specification, encoding="utf-8", newline="") as file:
            self.percents = [row[1] for row in list(csv.reader(file))[1:]]

    def program_words(self, program):
        return [program, self.specification, self.file]

    def floor_words(self, floor, view):
        return [floor, view, str(self.rows), ",".join(self.percents)]


def middle(act, undo=None):
    """The median of some measurements, the first of which doesn't count; undo brings the state before back."""
    times = []
    for _ in range(1 + SAMPLES):
        times.append(act())
        if undo:
            undo()
    return statistics.median(times[1:])


def place(middle_of):
    return middle_of[0], middle_of[1] + MENU_HEIGHT


# --- what is measured. Each gives seconds and leaves the window as the next one wants it.


def start(screen, words, x, y):
    run = Started(screen, words, x, y)
    # Rows draw a grid, so that two colours at least are there once they are.
    if run.inks(*ROWS_AREA) < 2:
        raise NotSeen("no records in the final picture")
    return run


def down(run):
    run.click(*place(FIRST_ROW))
    return middle(lambda: run.time_key("Down"))


def page_down(run):
    return middle(lambda: run.time_key("Next"))


def resize(run):
    sizes = [(run.width + GROWTH, run.height + GROWTH), (run.width, run.height)]

    def step():
        sizes.reverse()
        return run.time_size(*sizes[1])
    return middle(step)


def letter(run):
    run.key("Tab")
    return middle(lambda: run.time_key("x"), lambda: run.key("BackSpace"))


def edits(run):
    """The seconds of each edit, once. Leaves as many records as were there."""
    run.click(*place(LOWER_ROW))
    return {name: run.time_button(*place(button)) for name, button in EDITS.items()}


def save(run):
    """Saves under a new name. Returns the most memory that was in use until then."""
    path = os.path.join(run.screen.folder, "saved.dat")
    run.key("a", "Alt_L")
    run.screen.until(lambda: run.screen.active() and run.screen.active().id != run.window.id, "the file dialog")
    run.settle()
    run.key("a", "Control_L")
    run.screen.type(path)
    run.settle()
    run.key("Return")
    run.screen.until(lambda: run.screen.active() and run.screen.active().id == run.window.id, "the dialog's end")
    run.settle()
    run.screen.until(lambda: os.path.exists(path), "the saved file")
    os.remove(path)
    return run.peak_memory()


ACTS = (down, page_down, resize, letter)


def measure_round(screen, words):
    """words are those of each run: {(table's name, side): words}. Each is started alone; then all are on the screen
    at a time, and each act is done in one after the other, so that what slows the machine for a while slows both
    sides of a ratio.
    Returns {(table's name, side): {name: seconds or bytes}}."""
    runs, values = {}, {}
    screen.rest()
    for key in words:
        with told(key, "start"):
            # Alone: a window that loses the focus to the new one paints itself anew beside it.
            run = start(screen, words[key], *PLACES[0])
            values[key] = {"start": run.start_time, "memory": run.peak_memory()}
            run.end()
    for key, place_of_one in zip(words, PLACES):
        with told(key, "start"):
            runs[key] = start(screen, words[key], *place_of_one)
    for act in ACTS:
        for key, run in runs.items():
            with told(key, act.__name__):
                run.activate()
                values[key][act.__name__] = act(run)
    programs = {key: run for key, run in runs.items() if key[1] == "program"}
    times = {key: [] for key in programs}
    for _ in range(1 + SAMPLES):
        for key, run in programs.items():
            with told(key, "edits"):
                run.activate()
                times[key].append(edits(run))
    for key, run in programs.items():
        values[key].update({name: statistics.median(one[name] for one in times[key][1:]) for name in EDITS})
        if key[0] == "limit":
            with told(key, "save"):
                run.activate()
                values[key]["memory after saving"] = save(run)
    for run in runs.values():
        run.end()
    return values


@contextlib.contextmanager
def told(key, act):
    """Says of what wasn't seen where it was missed."""
    try:
        yield
    except NotSeen as fault:
        raise NotSeen("%s, %s, %s: %s" % (*key, act, fault)) from fault


def measure(options, tables):
    """The figures of each round."""
    words = {}
    for table in tables:
        floor = table.floor_words(options.floor, options.view)
        words[table.name, "twin" if options.same else "program"] = (
            floor if options.same else table.program_words(options.program))
        words[table.name, "floor"] = floor
    screen = Screen()
    try:
        rounds = []
        for number in range(options.rounds):
            print("round %d of %d" % (number + 1, options.rounds), file=sys.stderr)
            # In the opposite order each time: to be started first may be a burden or a help.
            order = sorted(words, reverse=number % 2 == 1)
            rounds.append(measure_round(screen, {key: words[key] for key in order}))
        return rounds
    finally:
        screen.close()


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", type=os.path.abspath)
    parser.add_argument("floor", type=os.path.abspath)
    parser.add_argument("tables", type=os.path.abspath)
    parser.add_argument("--rounds", type=int, default=21)
    parser.add_argument("--view", choices=("table", "tree"), default="table", help="the view in the floor's window")
    parser.add_argument("--json", help="file for the same figures with those of each round, in seconds and bytes")
    parser.add_argument("--same", action="store_true",
                        help="the floor in the program's place too, which tells how far the ratios can be trusted")
    return parser.parse_args()


def main():
    options = arguments()
    tables = [Table(options.tables, name) for name in ("typical", "limit")]
    try:
        rounds = measure(options, tables)
    except NotSeen as fault:
        sys.exit("window_times: " + str(fault))
    lines = figures.of_twins(rounds, tables) if options.same else figures.of_program(rounds, tables)
    figures.show(lines)
    if options.json:
        with open(options.json, "w", encoding="utf-8") as file:
            json.dump({"rounds": options.rounds, "figures": lines}, file, indent=1)


if __name__ == "__main__":
    main()
