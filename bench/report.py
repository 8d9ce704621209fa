"""Makes one table of what bench/run has measured. A line gives what was measured and its figure, what it is compared
with and the figure of that, the ratio, the goal, and whether it is met.

    python3 bench/report.py RESULTS_FOLDER TABLES_FOLDER

The time of a benchmark is the least of its passes, since other work on the machine only adds to a time; the median
follows in brackets. A figure of the window is the median of its rounds. Growth is the power x in size^x over the five
sizes that were measured: 1 is linear, 0 is flat."""

import glob
import json
import math
import os
import re
import statistics
import sys

FORMS = {"dat": ".dat", "csv": ".csv", "csvh": ".csv with header"}
# What is compared at the largest size: what, its benchmark, the title of the other and its benchmark, the goal.
# The ratio says how many times as fast as the other it is. Where the goal begins with "<=", it says how many times
# as long it takes.
COMPARED = (
    ("Load", "Load/%s", "libcsv, cells kept", "ReadPeer/libcsv", ">= 4"),
    ("Load", "Load/%s", "bare reference loop", "ReadPeer/references", ">= 0.7"),
    ("AppOpen", "AppOpen/%s", "Load", "Load/%s", "<= 1.5"),
    ("Save", "Save/%s", "libcsv", "WritePeer/libcsv", ">= 2.5"),
    ("Save", "Save/%s", "plain write", "WritePeer/plain", "<= 3"),
    ("AppSave", "AppSave/%s", "Save", "Save/%s", "<= 1.5"),
    ("Check", "Check/%s", "Load", "Load/%s", "<= 2"),
    ("Copy", "Copy/%s", "Load and Save", "Load/%s+Save/%s", "<= 2"),
)
MEMORY = (  # what, its benchmark and the counter, the goal for its megabytes
    ("Load %s, memory kept", "Load/%s", "kept_MB", "-"),
    ("AppOpen %s, memory kept", "AppOpen/%s", "kept_MB", "-"),
    ("Save %s, memory beside", "Save/%s", "extra_MB", "<= 10"),
    ("AppSave %s, memory beside", "AppSave/%s", "extra_MB", "-"),
)
FLAT, LINEAR = "<= 0.1", "<= 1.15"  # the highest powers that count as flat and as linear; caches add a little
WINDOW_TIMES = (  # name, the goals for the typical and the limit table
    ("start", "<= 1.2 x floor", "<= 2.2 x floor"),
    ("down", "-", "<= 3 x floor"),
    ("page down", "<= 1.3 x floor", "<= 1.3 x floor"),
    ("resize", "<= 1.3 x floor", "<= 1.3 x floor"),
    ("letter", "<= 1.5 x floor", "<= 1.5 x floor"),
)
WINDOW_EDITS = ("update", "move down", "move up", "delete", "add")
WINDOW_MEMORY = (  # table, name, title, the goal for what the program has beyond the floor
    ("typical", "memory", "peak memory at start", "-"),
    ("limit", "memory", "peak memory at start", "-"),
    ("limit", "memory after saving", "peak memory with edits and saving", "<= 2 x file, beyond floor"),
)


def line(what, figure, title="-", other="-", ratio=None, goal="-"):
    """A goal begins with the highest or lowest ratio that meets it, such as "<= 1.2 x floor"."""
    met = "-"
    if goal != "-":
        sign, number = goal.split()[:2]
        met = "yes" if (ratio <= float(number) if sign == "<=" else ratio >= float(number)) else "NO"
    return what, figure, title, other, "-" if ratio is None else "%.2f" % ratio, goal, met


def median(values, unit="ms"):
    return "%.4g %s" % (statistics.median(values), unit)


def shown(times):
    scale, unit = (1, "ms") if min(times) >= 0.1 else (1000, "us")
    return "%.4g [%.4g] %s" % (min(times) * scale, statistics.median(times) * scale, unit)


class Results:
    """What the benchmarks have measured, by a name such as "Load/dat"."""

    def __init__(self, folder):
        self.times = {}  # in milliseconds, by name and by size, such as 2048
        self.unit = {}  # of the size, such as "rows", by name
        self.most = {}  # megabytes, by name and counter
        for path in glob.glob(os.path.join(folder, "*_bench.json")):
            with open(path, encoding="utf-8") as file:
                for run in json.load(file)["benchmarks"]:
                    self._take(run)

    def _take(self, run):
        if run["run_type"] != "iteration":
            return
        if run.get("error_occurred"):
            sys.exit("report: %s: %s" % (run["name"], run["error_message"]))
        name, unit, size = re.match(r"([^:]+)/(\w+):(\d+)", run["run_name"]).groups()
        self.unit[name] = unit
        self.times.setdefault(name, {}).setdefault(int(size), []).append(run["real_time"])
        for counter in ("extra_MB", "kept_MB"):
            self.most[name, counter] = max(run.get(counter, 0), self.most.get((name, counter), 0))

    def compare(self, what, mine, title, other, goal="-"):
        times, *parts = (self.times[name][max(self.times[name])] for name in (mine, *other.split("+")))
        others = [sum(passes) for passes in zip(*map(sorted, parts))]
        ratio = min(times) / min(others) if goal.startswith("<=") else min(others) / min(times)
        return line(what, shown(times), title, shown(others), ratio, goal)

    def growth(self, name, goal):
        sizes = sorted(self.times[name])
        logarithms = [[math.log(size), math.log(min(self.times[name][size]))] for size in sizes]
        power = statistics.linear_regression(*zip(*logarithms)).slope
        measured = "%s %d-%d" % (self.unit[name], sizes[0], sizes[-1])
        return line(name.removeprefix("Act/") + ", growth", shown(self.times[name][sizes[-1]]),
                    "flat" if goal == FLAT else "linear", measured, power, goal)


def benchmarks(folder, file_megabytes):
    results = Results(folder)
    for form, title in FORMS.items():
        for what, mine, other_title, other, goal in COMPARED:
            yield results.compare(what + " " + title, mine.replace("%s", form), other_title,
                                  other.replace("%s", form), goal)
        for what, name, counter, goal in MEMORY:
            used = results.most[name % form, counter]
            other = ("megabytes", "-", used) if goal != "-" else (
                "size of the file", "%.4g MB" % file_megabytes, used / file_megabytes)
            yield line(what % title, "%.1f MB" % used, *other, goal)
    yield results.compare("Words of plain cells", "GetWords/plain", "quoted cells", "GetWords/fields")
    for name in sorted(results.times):
        if name.startswith(("Complete/", "FindNothing/", "Leave/")):
            times = results.times[name][10_000]
            yield line(name + ", 10,000 entries", shown(times), "milliseconds", "-", min(times), "<= 5")
    for name in sorted(results.times):
        if not name.startswith(("ReadPeer/", "WritePeer/")):
            yield results.growth(name, FLAT if name.startswith("Act/") else LINEAR)


def instructions(folder, tables):
    for path in sorted(glob.glob(os.path.join(folder, "*.callgrind"))):
        act, table = os.path.basename(path).removesuffix(".callgrind").split("-")
        with open(path, encoding="utf-8", errors="replace") as file:
            count = int(re.search(r"^(?:summary|totals): (\d+)", file.read(), re.MULTILINE).group(1))
        what = "%s %s, whole process" % ({"load": "load", "save": "load and save"}[act], table)
        yield line(what, "%.2f M instr." % (count / 1e6), "bytes of the file", "%d" % tables[table],
                   count / tables[table])


def window(rounds, tables):
    """What window_times.py has measured. Ratios compare figures of the same round."""
    def column(key, name, scale):
        return [one[key][name] * scale for one in rounds]

    def compare(what, values, title, others, goal):
        ratio = statistics.median(one / other for one, other in zip(values, others))
        return line("Window: " + what, median(values), title, median(others), ratio, goal)

    for name, *goals in WINDOW_TIMES:
        for table, goal in zip(tables, goals):
            program, floor = (column(table + side, name, 1e3) for side in ("/program", "/floor"))
            yield compare("%s, %s" % (name, table), program, "floor", floor, goal)
    for name in WINDOW_EDITS:
        typical, limit = (column(table + "/program", name, 1e3) for table in tables)
        for table, times in (("typical", typical), ("limit", limit)):
            yield line("Window: %s, %s" % (name, table), median(times), "milliseconds", "-",
                       statistics.median(times), "<= 16")
        yield compare(name + ", limit", limit, "typical", typical, "<= 2 x typical")
    for table, name, title, goal in WINDOW_MEMORY:
        program, floor = column(table + "/program", name, 1e-6), column(table + "/floor", "memory", 1e-6)
        beyond = statistics.median(one - least for one, least in zip(program, floor))
        yield line("Window: %s, %s" % (title, table), median(program, "MB"), "floor", median(floor, "MB"),
                   beyond * 1e6 / tables[table], goal)


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = re.search(r"model name\s*: (.*)|$", file.read()).group(1)
    gigabytes = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 1e9
    return "%d cores, %s, %.1f GB of memory" % (os.cpu_count(), model, gigabytes)


def main():
    folder, tables_folder = sys.argv[1:]
    tables = {name: os.path.getsize(os.path.join(tables_folder, name + ".dat")) for name in ("typical", "limit")}
    lines = [("", "figure", "compared with", "its figure", "ratio", "goal", "met"),
             *benchmarks(folder, tables["limit"] / 1e6), *instructions(folder, tables)]
    if os.path.exists(os.path.join(folder, "window.json")):
        with open(os.path.join(folder, "window.json"), encoding="utf-8") as file:
            lines += window(json.load(file), tables)
    widths = [max(map(len, column)) for column in zip(*lines)]
    print("Machine: " + machine())
    print("Times are the least of several passes, the median in brackets; the window's are medians")
    for one in lines:
        print("  ".join(text.ljust(width) for text, width in zip(one, widths)).rstrip())


if __name__ == "__main__":
    main()
