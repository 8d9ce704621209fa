"""Makes one plain table of what bench/run has measured: what, its figure, what it is compared with, the ratio, the
goal and whether it is met.

    python3 bench/report.py RESULTS TABLES_FOLDER

Of the passes of a benchmark the least counts, the median stands behind it in brackets: whatever else the machine
does only adds to a time. Of the window's figures the median over its rounds counts. How a time grows with the size
is given as the power x in size^x over the five sizes that were measured: 1 is linear, 0 is flat."""

import glob
import json
import math
import os
import statistics
import sys

LIMIT_ROWS = "rows:32767"
LINEAR, FLAT = 1.15, 0.1  # the highest powers that count as such; caches and small sizes add to the true one
MOST_OF_COMPLETION = 5  # milliseconds
MOST_OF_SAVING = 10  # megabytes
SECONDS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
FORMS = {"dat": ".dat", "csv": ".csv", "csvh": ".csv with header"}
READERS = {  # peer: its title, how many times as fast as it the program's own has to be
    "CellsPeer/libcsv": ("libcsv, cells kept", 4),
    "CellsPeer/libcsv_room": ("libcsv, rows with room", None),  # helped by knowing how long rows are
    "SplitIntoReferences": ("bare reference loop", 0.7),
    "CellsPeer/getline": ("getline", None),
    "ReadWhole": ("reading alone", None),
}
WRITERS = {
    "CellsPeer/libcsv_fwrite": ("libcsv, csv_fwrite2", 2.5),
    "CellsPeer/libcsv_write": ("libcsv, csv_write2", 2.5),
    "CellsPeer/blocks": ("quoting in blocks", None),
}
ACTS = ("Pick", "Add", "Update", "Delete", "MoveUp", "MoveDown")
LINEAR_ONES = ("Load/", "Save/", "AppOpen/", "AppSave/", "LoadLongField", "SaveLongField", "GetWords/", "FillList",
               "Complete/", "FindNothing/", "Leave/", "RedrawLayout")


class Results:
    """What the benchmarks have measured, by name and size such as "Load/dat" and "rows:2048"."""

    def __init__(self, folder):
        self.times = {}
        self.counters = {}
        for path in glob.glob(os.path.join(folder, "*.json")):
            with open(path, encoding="utf-8") as file:
                self._take(json.load(file).get("benchmarks", []))

    def _take(self, runs):
        for run in runs:
            if run["run_type"] != "iteration":
                continue
            if run.get("error_occurred"):
                sys.exit("report: %s: %s" % (run["name"], run["error_message"]))
            parts = run["run_name"].split("/")
            end = next(at for at, part in enumerate(parts) if ":" in part)
            key = "/".join(parts[:end]), parts[end]
            self.times.setdefault(key, []).append(run["real_time"] * SECONDS[run["time_unit"]])
            for counter in ("extra_MB", "kept_MB"):
                self.counters.setdefault((*key, counter), []).append(run.get(counter, math.nan))

    def has(self, name, size=LIMIT_ROWS):
        return (name, size) in self.times

    def least(self, name, size=LIMIT_ROWS):
        return min(self.times[name, size])

    def shown(self, name, size=LIMIT_ROWS):
        times = self.times[name, size]
        unit = "ms" if min(times) >= 1e-4 else "us"
        return "%.4g [%.4g] %s" % (min(times) / SECONDS[unit], statistics.median(times) / SECONDS[unit], unit)

    def most(self, name, counter, size=LIMIT_ROWS):
        return max(self.counters[name, size, counter])

    def names(self, beginnings):
        return sorted({name for name, _ in self.times if name.startswith(tuple(beginnings))})

    def power(self, name):
        """x, where the time grows as size^x; and the sizes' kind, the least and the most of them."""
        sizes = sorted((int(size.split(":")[1]), size) for family, size in self.times if family == name)
        kind = sizes[0][1].split(":")[0]
        points = [(math.log(number), math.log(self.least(name, size))) for number, size in sizes]
        slope = statistics.linear_regression(*zip(*points)).slope
        return slope, "%s %d-%d" % (kind, sizes[0][0], sizes[-1][0])


def line(what, figure, against="-", other="-", ratio=None, goal=None):
    """goal: ("<=" or ">=", number) for the ratio, or nothing"""
    met = None if goal is None else ratio <= goal[1] if goal[0] == "<=" else ratio >= goal[1]
    return (what, figure, against, other, "-" if ratio is None else "%.2f" % ratio,
            "-" if goal is None else "%s %g" % goal, "-" if met is None else "yes" if met else "NO")


def faster(results, what, mine, peers):
    """How many times as fast as each of the peers."""
    for peer, (title, least) in peers.items():
        if results.has(peer):
            yield line(what, results.shown(mine), title, results.shown(peer),
                       results.least(peer) / results.least(mine), least and (">=", least))


def at_most(results, what, mine, peer, title, most):
    """How many times as long as the peer."""
    return line(what, results.shown(mine), title, results.shown(peer), results.least(mine) / results.least(peer),
                ("<=", most))


def megabytes(results, what, name, counter, file_bytes, most=None):
    used = results.most(name, counter)
    if math.isnan(used):
        return line(what, "unknown")
    if most is not None:
        return line(what, "%.1f MB" % used, "megabytes", "-", used, ("<=", most))
    return line(what, "%.1f MB" % used, "size of the file", "%.1f MB" % (file_bytes / 1e6), used * 1e6 / file_bytes)


def files(results, file_bytes):
    for form, title in FORMS.items():
        load, save = "Load/" + form, "Save/" + form
        yield from faster(results, "Load " + title, load, READERS)
        yield at_most(results, "AppOpen " + title, "AppOpen/" + form, load, "Load", 1.5)
        yield from faster(results, "Save " + title, save, WRITERS)
        yield at_most(results, "Save " + title, save, "PlainWrite", "plain write", 3)
        yield at_most(results, "AppSave " + title, "AppSave/" + form, save, "Save", 1.5)
        yield megabytes(results, "Load %s, memory kept" % title, load, "kept_MB", file_bytes)
        yield megabytes(results, "AppOpen %s, memory kept" % title, "AppOpen/" + form, "kept_MB", file_bytes)
        yield megabytes(results, "Save %s, memory beside" % title, save, "extra_MB", file_bytes, MOST_OF_SAVING)
        yield megabytes(results, "AppSave %s, memory beside" % title, "AppSave/" + form, "extra_MB", file_bytes)


def growth(results):
    for name in results.names(LINEAR_ONES):
        power, sizes = results.power(name)
        yield line(name + ", growth", "size^%.2f" % power, "linear", sizes, power, ("<=", LINEAR))
    for name in ACTS:
        power, sizes = results.power(name)
        yield line(name + ", growth", results.shown(name), "flat", sizes, power, ("<=", FLAT))


def completions(results):
    size = "entries:10000"
    for name in results.names(("Complete/", "FindNothing/", "Leave/")):
        took = results.least(name, size) * 1e3
        yield line(name + ", 10,000 entries", results.shown(name, size), "milliseconds", "-", took,
                   ("<=", MOST_OF_COMPLETION))


def instructions(folder, tables):
    for path in sorted(glob.glob(os.path.join(folder, "*.callgrind"))):
        act, table = os.path.basename(path).removesuffix(".callgrind").split("-")
        with open(path, encoding="utf-8", errors="replace") as file:
            count = next(int(text.split()[1]) for text in file if text.startswith(("summary:", "totals:")))
        size = os.path.getsize(os.path.join(tables, table + ".dat"))
        what = {"load": "load %s", "save": "load and save %s"}[act] % table
        yield line(what + ", whole process", "%.2f M instr." % (count / 1e6), "bytes of the file", "%d" % size,
                   count / size)


def window(folder):
    path = os.path.join(folder, "window.json")
    if not os.path.exists(path):
        return
    with open(path, encoding="utf-8") as file:
        figures = json.load(file)["figures"]
    for one in figures:
        unit, scale = {"s": ("ms", 1e3), "B": ("MB", 1e-6)}[one["unit"]]
        mine, floor = ("%.4g %s" % (side["median"] * scale, unit) if side else "-"
                       for side in (one["program"], one["floor"]))
        ratio = "%.2f" % one["ratio"]["median"] if one["ratio"] else "-"
        met = {None: "-", True: "yes", False: "NO"}[one["met"]]
        yield "Window: " + one["name"], mine, "floor" if one["floor"] else "-", floor, ratio, one["goal"] or "-", met


def first_value(path, key):
    with open(path, encoding="utf-8") as file:
        return next((text.split(":", 1)[1].strip() for text in file if text.startswith(key)), "unknown")


def machine():
    memory = first_value("/proc/meminfo", "MemTotal").split()[0]
    gigabytes = "%.1f GB" % (int(memory) * 1024 / 1e9) if memory.isdigit() else memory
    return "%d cores, %s, %s of memory" % (os.cpu_count(), first_value("/proc/cpuinfo", "model name"), gigabytes)


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    folder, tables = sys.argv[1:]
    results = Results(folder)
    file_bytes = os.path.getsize(os.path.join(tables, "limit.dat"))
    head = ("", "figure", "compared with", "its figure", "ratio", "goal", "met")
    lines = [head, *files(results, file_bytes), *completions(results), *growth(results),
             *instructions(folder, tables), *window(folder)]
    widths = [max(len(one[at]) for one in lines) for at in range(len(head))]
    print("Machine: " + machine())
    print("Tables in " + ("memory" if tables.startswith("/dev/shm") else "a folder on disk") +
          "; times are the least of several passes, the median in brackets; the window's are medians")
    for one in lines:
        print("  ".join(text.ljust(width) for text, width in zip(one, widths)).rstrip())


if __name__ == "__main__":
    main()
