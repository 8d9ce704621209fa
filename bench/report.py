"""Makes one table of what bench/run has measured. A line says what was measured, its figure, what it is compared with
and the figure of that, the ratio, the goal and whether it is met.

    python3 bench/report.py RESULTS_FOLDER TABLES_FOLDER

Of the passes of a benchmark the least counts, and the median follows in brackets: everything else that the machine
does only adds to a time. Of the window's figures the median over its rounds counts. Growth is the power x in size^x
over the five sizes that were measured: 1 is linear, 0 is flat."""

import glob
import json
import math
import os
import re
import statistics
import sys

LIMIT = "rows:32767"
LINEAR, FLAT = "<= 1.15", "<= 0.1"  # the highest powers that count as such; caches add to the true one
SECONDS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
FORMS = {"dat": ".dat", "csv": ".csv", "csvh": ".csv with header"}
READERS = {  # peer: its title, how many times as fast as it the program has to be
    "ReadPeer/libcsv": ("libcsv, cells kept", ">= 4"),
    "ReadPeer/libcsv_room": ("libcsv, rows with room", "-"),
    "ReadPeer/references": ("bare reference loop", ">= 0.7"),
    "ReadPeer/getline": ("getline", "-"),
    "ReadPeer/whole": ("reading alone", "-"),
}
WRITERS = {
    "WritePeer/libcsv_fwrite": ("libcsv, csv_fwrite2", ">= 2.5"),
    "WritePeer/libcsv_write": ("libcsv, csv_write2", ">= 2.5"),
    "WritePeer/blocks": ("quoting in blocks", "-"),
}
WAITS = ("Complete/", "FindNothing/", "Leave/")
WINDOW_GOALS = {  # how many times as long as the floor the program may take, by table
    "start": {"typical": "<= 1.2 x floor", "limit": "<= 2.2 x floor"},
    "down": {"limit": "<= 3 x floor"},
    "page down": {"typical": "<= 1.3 x floor", "limit": "<= 1.3 x floor"},
    "resize": {"typical": "<= 1.3 x floor", "limit": "<= 1.3 x floor"},
    "letter": {"typical": "<= 1.5 x floor", "limit": "<= 1.5 x floor"},
}
WINDOW_EDITS = ("update", "move down", "move up", "delete", "add")
WINDOW_MEMORY = (  # Its ratio is what the program has beyond the floor to the size of the file.
    ("typical", "memory", "peak memory at start", "-"),
    ("limit", "memory", "peak memory at start", "-"),
    ("limit", "memory after saving", "peak memory with edits and saving", "<= 2 x file, beyond floor"),
)


class Results:
    """The times in seconds and the counters of the benchmarks, by name and size such as "Load/dat", "rows:2048"."""

    def __init__(self, folder):
        self.times = {}
        self.counters = {}
        for path in glob.glob(os.path.join(folder, "*_bench.json")):
            with open(path, encoding="utf-8") as file:
                for run in json.load(file)["benchmarks"]:
                    self._take(run)

    def _take(self, run):
        if run["run_type"] != "iteration":
            return
        if run.get("error_occurred"):
            sys.exit("report: %s: %s" % (run["name"], run["error_message"]))
        key = re.match(r"([^:]+)/(\w+:\d+)", run["run_name"]).groups()
        self.times.setdefault(key, []).append(run["real_time"] * SECONDS[run["time_unit"]])
        for counter in ("extra_MB", "kept_MB"):
            self.counters.setdefault((*key, counter), []).append(run.get(counter, math.nan))

    def least(self, name, size=LIMIT):
        return min(self.times[name, size])

    def shown(self, name, size=LIMIT):
        times = self.times[name, size]
        unit = "ms" if min(times) >= 1e-4 else "us"
        return "%.4g [%.4g] %s" % (min(times) / SECONDS[unit], statistics.median(times) / SECONDS[unit], unit)

    def names(self):
        return sorted({name for name, _ in self.times})

    def sizes(self, name):
        return sorted((size for one, size in self.times if one == name), key=lambda size: int(size.split(":")[1]))

    def power(self, name):
        sizes = self.sizes(name)
        numbers = [math.log(int(size.split(":")[1])) for size in sizes]
        return statistics.linear_regression(numbers, [math.log(self.least(name, size)) for size in sizes]).slope


def line(what, figure, title="-", other="-", ratio=None, goal="-"):
    """A goal begins with what the ratio may be at most or least, such as "<= 1.2 x floor"."""
    met = "-"
    if goal != "-" and not math.isnan(ratio):  # Not every system says how much memory is in use.
        sign, number = goal.split()[:2]
        met = "yes" if (ratio <= float(number) if sign == "<=" else ratio >= float(number)) else "NO"
    return what, figure, title, other, "-" if ratio is None else "%.2f" % ratio, goal, met


def faster(results, what, mine, peers):
    """How many times as fast as each of the peers."""
    for peer, (title, goal) in peers.items():
        ratio = results.least(peer) / results.least(mine)
        yield line(what, results.shown(mine), title, results.shown(peer), ratio, goal)


def against(results, what, mine, title, peer, goal="-", size=LIMIT):
    """How many times as long as the peer."""
    ratio = results.least(mine, size) / results.least(peer, size)
    return line(what, results.shown(mine, size), title, results.shown(peer, size), ratio, goal)


def memory(results, what, name, counter, file_bytes):
    used = max(results.counters[name, LIMIT, counter])
    return line(what, "%.1f MB" % used, "size of the file", "%.1f MB" % (file_bytes / 1e6), used * 1e6 / file_bytes)


def files(results, file_bytes):
    for form, title in FORMS.items():
        load, save, app_open, app_save = (act + form for act in ("Load/", "Save/", "AppOpen/", "AppSave/"))
        yield from faster(results, "Load " + title, load, READERS)
        yield against(results, "AppOpen " + title, app_open, "Load", load, "<= 1.5")
        yield from faster(results, "Save " + title, save, WRITERS)
        yield against(results, "Save " + title, save, "plain write", "WritePeer/plain", "<= 3")
        yield against(results, "AppSave " + title, app_save, "Save", save, "<= 1.5")
        yield memory(results, "Load %s, memory kept" % title, load, "kept_MB", file_bytes)
        yield memory(results, "AppOpen %s, memory kept" % title, app_open, "kept_MB", file_bytes)
        used = max(results.counters[save, LIMIT, "extra_MB"])
        yield line("Save %s, memory beside" % title, "%.1f MB" % used, "megabytes", "-", used, "<= 10")
        yield memory(results, "AppSave %s, memory beside" % title, app_save, "extra_MB", file_bytes)


def waits(results):
    size = "entries:10000"
    for name in results.names():
        if name.startswith(WAITS):
            milliseconds = results.least(name, size) * 1e3
            yield line(name + ", 10,000 entries", results.shown(name, size), "milliseconds", "-", milliseconds, "<= 5")


def growth(results):
    for name in results.names():
        power, sizes = results.power(name), results.sizes(name)
        shown = "%s %s-%s" % (*sizes[0].split(":"), sizes[-1].split(":")[1])
        if name.startswith("Act/"):
            what = name.removeprefix("Act/") + ", growth"
            yield line(what, results.shown(name), "flat", shown, power, FLAT)
        elif not name.startswith(("ReadPeer/", "WritePeer/")):
            yield line(name + ", growth", "size^%.2f" % power, "linear", shown, power, LINEAR)


def benchmarks(folder, file_bytes):
    results = Results(folder)
    yield from files(results, file_bytes)
    yield against(results, "GetWords/plain, 10 MB", "GetWords/plain", "quoted cells", "GetWords/fields",
                  size="bytes:10000000")
    yield from waits(results)
    yield from growth(results)


def instructions(folder, bytes_of):
    for path in sorted(glob.glob(os.path.join(folder, "*.callgrind"))):
        act, table = os.path.basename(path).removesuffix(".callgrind").split("-")
        with open(path, encoding="utf-8", errors="replace") as file:
            count = int(re.search(r"^(?:summary|totals): (\d+)", file.read(), re.MULTILINE).group(1))
        what = "%s %s, whole process" % ({"load": "load", "save": "load and save"}[act], table)
        yield line(what, "%.2f M instr." % (count / 1e6), "bytes of the file", "%d" % bytes_of[table],
                   count / bytes_of[table])


def ratio_of(values, others):
    return statistics.median(one / other for one, other in zip(values, others))


def milliseconds(values):
    return "%.4g ms" % (statistics.median(values) * 1e3)


def window(rounds, bytes_of):
    """What window_times.py has measured. Ratios are formed round by round."""
    def column(table, side, name):
        return [one[table + side][name] for one in rounds]

    for name, goals in WINDOW_GOALS.items():
        for table in bytes_of:
            program, floor = column(table, "/program", name), column(table, "/floor", name)
            yield line("Window: %s, %s" % (name, table), milliseconds(program), "floor", milliseconds(floor),
                       ratio_of(program, floor), goals.get(table, "-"))
    if "update" not in rounds[0]["limit/program"]:
        return  # The floor stood in the program's place.
    for name in WINDOW_EDITS:
        typical, limit = (column(table, "/program", name) for table in ("typical", "limit"))
        for table, times in (("typical", typical), ("limit", limit)):
            yield line("Window: %s, %s" % (name, table), milliseconds(times), "milliseconds", "-",
                       statistics.median(times) * 1e3, "<= 16")
        yield line("Window: %s, limit" % name, milliseconds(limit), "typical", milliseconds(typical),
                   ratio_of(limit, typical), "<= 2 x typical")
    for table, name, title, goal in WINDOW_MEMORY:
        program, floor = column(table, "/program", name), column(table, "/floor", "memory")
        beyond = [one - least for one, least in zip(program, floor)]
        yield line("Window: %s, %s" % (title, table), "%.4g MB" % (statistics.median(program) / 1e6), "floor",
                   "%.4g MB" % (statistics.median(floor) / 1e6), statistics.median(beyond) / bytes_of[table], goal)


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = re.search(r"model name\s*: (.*)|$", file.read()).group(1) or "unknown"
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES")
    return "%d cores, %s, %.1f GB of memory" % (os.cpu_count(), model, memory / 1e9)


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    folder, tables = sys.argv[1:]
    bytes_of = {table: os.path.getsize(os.path.join(tables, table + ".dat")) for table in ("typical", "limit")}
    lines = [("", "figure", "compared with", "its figure", "ratio", "goal", "met"),
             *benchmarks(folder, bytes_of["limit"]), *instructions(folder, bytes_of)]
    if os.path.exists(os.path.join(folder, "window.json")):
        with open(os.path.join(folder, "window.json"), encoding="utf-8") as file:
            lines += window(json.load(file), bytes_of)
    widths = [max(map(len, column)) for column in zip(*lines)]
    print("Machine: " + machine())
    print("Times are the least of several passes, the median in brackets; the window's are medians")
    for one in lines:
        print("  ".join(text.ljust(width) for text, width in zip(one, widths)).rstrip())


if __name__ == "__main__":
    main()
