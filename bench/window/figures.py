"""What comes of the rounds of window_times: medians with their spread, ratios formed round by round, and the goals
beside them. A figure is a dictionary; seconds and bytes, whatever the table on the screen shows."""

import statistics

GOALS = {  # most of the ratio to the floor, by table
    "start": {"typical": 1.2, "limit": 2.2},
    "down": {"limit": 3},
    "page_down": {"typical": 1.3, "limit": 1.3},
    "resize": {"typical": 1.3, "limit": 1.3},
    "letter": {"typical": 1.5, "limit": 1.5},
}
EDITS = ("update", "move down", "move up", "delete", "add")
MOST_OF_EDIT = 0.016  # seconds
MOST_OF_LIMIT_EDIT = 2  # times what it takes on the typical table
MOST_OF_MEMORY = 2  # sizes of the file beyond the floor's


def spread(values):
    return {"median": statistics.median(values), "min": min(values), "max": max(values), "all": values}


def figure(name, unit, program, floor=None, ratios=None, goal=None, met=None):
    """One line of the table. Without a goal there is nothing to be met."""
    return {"name": name.replace("_", " "), "unit": unit, "program": spread(program),
            "floor": floor and spread(floor), "ratio": ratios and spread(ratios), "goal": goal, "met": met}


def ratios_of(values, others):
    return [one / other for one, other in zip(values, others)]


def column(rounds, table, side, name):
    return [one[table.name, side][name] for one in rounds]


def against_floor(rounds, table, name, most, side="program"):
    program, floor = column(rounds, table, side, name), column(rounds, table, "floor", name)
    ratios = ratios_of(program, floor)
    goal = most and "<= %g x floor" % most
    return figure("%s, %s" % (name, table.name), "s", program, floor, ratios, goal,
                  most and statistics.median(ratios) <= most)


def edit(rounds, table, name):
    times = column(rounds, table, "program", name)
    goal, met = "<= %g ms" % (MOST_OF_EDIT * 1000), statistics.median(times) <= MOST_OF_EDIT
    ratios = None
    if table.name == "limit":
        ratios = [time / one["typical", "program"][name] for time, one in zip(times, rounds)]
        goal += " and <= %g x typical" % MOST_OF_LIMIT_EDIT
        met = met and statistics.median(ratios) <= MOST_OF_LIMIT_EDIT
    return figure("%s, %s" % (name, table.name), "s", times, None, ratios, goal, met)


def memory(rounds, table, name, title, most=None):
    """Its ratio is what the program has beyond the floor to the size of the file."""
    program, floor = column(rounds, table, "program", name), column(rounds, table, "floor", "memory")
    beyond = [(one - least) / table.bytes for one, least in zip(program, floor)]
    goal = most and "<= floor + %g x file" % most
    return figure("%s, %s" % (title, table.name), "B", program, floor, beyond, goal,
                  most and statistics.median(beyond) <= most)


def of_program(rounds, tables):
    limit = tables[-1]
    return ([against_floor(rounds, table, name, goals.get(table.name)) for name, goals in GOALS.items()
             for table in tables] +
            [edit(rounds, table, name) for name in EDITS for table in tables] +
            [memory(rounds, table, "memory", "peak memory at start") for table in tables] +
            [memory(rounds, limit, "memory after saving", "peak memory with edits and saving", MOST_OF_MEMORY)])


def of_twins(rounds, tables):
    """The floor against itself: what the ratios are when nothing differs."""
    return [against_floor(rounds, table, name, None, "twin") for name in GOALS for table in tables]


def show(lines):
    form = "%-42s %26s %9s %7s  %-28s %s"
    print(form % ("", "program", "floor", "ratio", "goal", "met"))
    for line in lines:
        unit, scale = {"s": ("ms", 1e3), "B": ("MB", 1e-6)}[line["unit"]]
        median, least, most = (line["program"][key] * scale for key in ("median", "min", "max"))
        print(form % ("%s (%s)" % (line["name"], unit), "%.2f [%.2f-%.2f]" % (median, least, most),
                      "%.2f" % (line["floor"]["median"] * scale) if line["floor"] else "-",
                      "%.2f" % line["ratio"]["median"] if line["ratio"] else "-",
                      line["goal"] or "-", "-" if line["met"] is None else "yes" if line["met"] else "NO"))
