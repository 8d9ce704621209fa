"""Times the real window from outside: from a program's start, or from an act of its user, to the final picture.
The floor, which is the least that the toolkit takes for a window of that shape, is measured in turn with the
program. The figures depend on the machine, their ratios hardly. bench/report.py makes a table of them.

    /usr/bin/python3 bench/window/window_times.py PROGRAM FLOOR_WINDOW TABLES_FOLDER FIGURES_FILE [--rounds N]

PROGRAM is a release build. TABLES_FOLDER is the folder that "table_once make" has filled."""

import argparse
import contextlib
import csv
import json
import os
import statistics
import sys

from screen import NotSeen, Screen, Started

SAMPLES = 3  # of an act in each run, after one that warms up; their median counts
GROWTH = 6  # pixels that one step of a drag adds
# Places in the main window as it is designed, its menu bar of 19 pixels included.
FIRST_ROW, LOWER_ROW, ROWS_AREA = (28, 93), (28, 143), (10, 90, 400, 100)
ADD, DELETE, MOVE_UP, MOVE_DOWN = (32, 247), (88, 247), (132, 247), (164, 247)
EDITS = {"update": ADD, "move down": MOVE_DOWN, "move up": MOVE_UP, "delete": DELETE, "add": ADD}
PLACES = (20, 40), (660, 40), (20, 460), (660, 460)  # of four windows on the screen


def words_of(options, table):
    """The words that start the program and the floor on a table, by the key of each run."""
    file, specification = (os.path.join(options.tables, table + end) for end in (".dat", "-spec.dat"))
    with open(file, encoding="utf-8") as lines:
        rows = lines.readline().split(",")[0]
    with open(specification, encoding="utf-8", newline="") as lines:
        percents = ",".join(row[1] for row in list(csv.reader(lines))[1:])
    floor = [options.floor, rows, percents]
    program = floor if options.same else [options.program, specification, file]
    return {table + "/program": program, table + "/floor": floor}


def middle(act, undo=lambda: None):
    """The median of some measurements without the first. undo brings back the state before the act."""
    times = []
    for _ in range(1 + SAMPLES):
        times.append(act())
        undo()
    return statistics.median(times[1:])


# --- Acts. Each leaves the window in the state that the next one needs.


def start(screen, words, x, y):
    run = Started(screen, words, x, y)
    # Rows draw a grid, so there are two colours at least as soon as rows are there.
    if run.inks(*ROWS_AREA) < 2:
        raise NotSeen("no records in the final picture")
    return run


def down(run):
    run.click(*FIRST_ROW)
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
    """The time of each edit, once. Leaves as many records as there were."""
    run.click(*LOWER_ROW)
    return {name: run.time_button(*button) for name, button in EDITS.items()}


def save(run):
    """Saves under a new name. Returns the most memory that was in use until then."""
    path = os.path.join(run.screen.folder, "saved.dat")
    run.key("a", "Alt_L")
    run.screen.until(lambda: run.screen.active() not in (None, run.window), "the file dialog")
    run.settle()
    run.key("a", "Control_L")
    run.screen.type(path)
    run.settle()
    run.key("Return")
    run.screen.until(lambda: run.screen.active() == run.window, "the dialog's end")
    run.settle()
    run.screen.until(lambda: os.path.exists(path), "the saved file")
    os.remove(path)
    return run.peak_memory()


ACTS = {"down": down, "page down": page_down, "resize": resize, "letter": letter}


@contextlib.contextmanager
def named(key, act):
    """Adds the run and the act to the message about what was not seen."""
    try:
        yield
    except NotSeen as fault:
        raise NotSeen("%s, %s: %s" % (key, act, fault)) from fault


def measure_round(screen, words, editors):
    """Starts each run of words alone, then all of them. Each act is done in one window after the other, so that what
    slows the machine for a while slows both sides of a ratio. Returns for each key of words the seconds, or bytes of
    memory, by name. Only editors can take edits."""
    runs, values = {}, {}
    screen.rest()
    for key in words:
        with named(key, "start"):
            # A second window would take the focus from the first, which would then paint beside it.
            run = start(screen, words[key], *PLACES[0])
            values[key] = {"start": run.start_time, "memory": run.peak_memory()}
            run.end()
    for key, place in zip(words, PLACES):
        with named(key, "start"):
            runs[key] = start(screen, words[key], *place)
    for act, measure in ACTS.items():
        for key, run in runs.items():
            with named(key, act):
                run.activate()
                values[key][act] = measure(run)
    times = {key: [] for key in editors}
    for _ in range(1 + SAMPLES):
        for key in editors:
            with named(key, "edits"):
                runs[key].activate()
                times[key].append(edits(runs[key]))
    for key in editors:
        with named(key, "save"):
            runs[key].activate()
            values[key]["memory after saving"] = save(runs[key])
        values[key].update({name: statistics.median(one[name] for one in times[key][1:]) for name in EDITS})
    for run in runs.values():
        run.end()
    return values


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    for name in ("program", "floor", "tables", "figures"):
        parser.add_argument(name, type=os.path.abspath)
    parser.add_argument("--rounds", type=int, default=21)
    parser.add_argument("--same", action="store_true",
                        help="start the floor in the program's place too, to see how far the ratios can be trusted")
    options = parser.parse_args()
    words = {**words_of(options, "typical"), **words_of(options, "limit")}
    editors = [] if options.same else ["typical/program", "limit/program"]
    rounds = []
    screen = Screen()
    try:
        for number in range(options.rounds):
            print("round %d of %d" % (number + 1, options.rounds), file=sys.stderr)
            # In the opposite order each time: to be started first may be a burden or a help.
            order = sorted(words, reverse=number % 2 == 1)
            rounds.append(measure_round(screen, {key: words[key] for key in order}, editors))
    except NotSeen as fault:
        sys.exit("window_times: " + str(fault))
    finally:
        screen.close()
    with open(options.figures, "w", encoding="utf-8") as file:
        json.dump(rounds, file, indent=1)


if __name__ == "__main__":
    main()
