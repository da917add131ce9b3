"""Makes the tables of docs/benchmarks.md: report.py RESULTS INSIDE README

Also puts a summary into the README, between its lines "<!-- speed -->" and "<!-- /speed -->".

RESULTS has lines "name <tab> number", one for each measurement; INSIDE is the JSON output of settings_benchmark.
"""
import collections
import json
import os
import statistics
import sys

MEDIAN = statistics.median


def read_results(path):
    results = collections.defaultdict(list)
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            name, number = line.rstrip("\n").split("\t")
            results[name].append(float(number))
    return results


def read_inside(path):
    """Seconds by the name of the benchmark."""
    with open(path, encoding="utf-8") as file:
        runs = [run for run in json.load(file)["benchmarks"] if run["run_type"] == "iteration"]
    results = collections.defaultdict(list)
    for run in runs:
        results[run["run_name"].removesuffix("/manual_time")].append(run["real_time"] / 1e9)
    return {name: MEDIAN(times) for name, times in results.items()}


def slides(results, size, kind, name):
    """The numbers of a name, for each run of slides."""
    return [numbers for key, numbers in results.items()
            if key.startswith(f"{size} {kind} ") and key.endswith(" " + name)]


def text(number, unit):
    return f"{number:.{max(0, 2 - len(str(int(number))) + 1)}f} {unit}"


def time_text(seconds):
    for factor, unit in ((1, "s"), (1e3, "ms"), (1e6, "µs")):
        if seconds * factor >= 1:
            break
    return text(seconds * factor, unit)


def row(what, ours, base, show, maximum_ratio=None, maximum=None):
    ratio = ours / base
    limit, met = "", ""
    if maximum_ratio is not None:
        limit, met = f"{maximum_ratio} times", ratio <= maximum_ratio
    elif maximum is not None:
        limit, met = show(maximum), ours <= maximum
    met = {True: "yes", False: "**no**"}.get(met, "")
    return f"| {what} | {show(ours)} | {show(base)} | {ratio:.2f} | {limit} | {met} |"


def update_readme(path, line):
    with open(path, encoding="utf-8") as file:
        before, rest = file.read().split("<!-- speed -->\n")
    after = rest.split("<!-- /speed -->\n")[1]
    with open(path, "w", encoding="utf-8") as file:
        file.write(before + f"<!-- speed -->\n{line}\n<!-- /speed -->\n" + after)


def main():
    results, inside = read_results(sys.argv[1]), read_inside(sys.argv[2])

    def seconds(name):
        return MEDIAN(results[name]) / 1e3

    rows = [row("Start to the first painted frame, beside an empty Qt window",
                seconds("start torvane"), seconds("start empty"), time_text, maximum_ratio=1.5),
            row("– beside an empty window that loads no more plug-ins than the editor",
                seconds("start torvane"), seconds("start empty, same plug-ins"), time_text)]
    rows.append(row("Instructions up to the first frame, beside an empty window with the same plug-ins",
                    MEDIAN(results["instructions torvane"]) / 1e6, MEDIAN(results["instructions empty"]) / 1e6,
                    lambda number: text(number, "million"), maximum=200))
    for name, limit in (("empty", 1.25), ("empty, same plug-ins", None)):
        rows.append(row("Peak of the memory, beside an empty Qt window" if limit else "– with the same plug-ins",
                        MEDIAN(results["memory torvane"]) / 1024, MEDIAN(results["memory " + name]) / 1024,
                        lambda number: text(number, "MB"), maximum_ratio=limit))
    for keys in (10, 1000, 100000):
        rows.append(row(f"Validation pass over {keys:,} keys, beside plain reading and writing",
                        inside[f"pass/{keys}"], inside[f"plain/{keys}"], time_text, maximum_ratio=1.2))
        rows.append(row("– with all that protects the file, as a start does it",
                        inside[f"repair/{keys}"], inside[f"plain/{keys}"], time_text))
    growth = [inside[f"{name}/100000"] / inside[f"{name}/1000"] / 100 for name in ("pass", "plain")]
    rows.append(row("– growth of the time for one key from 1,000 to 100,000 keys", *growth,
                    lambda number: text(number, "times")))
    rows.append(row("One edit with five pages, beside a spin box alone", inside["edit"], inside["edit alone"],
                    time_text, maximum=1e-3))
    for size in ("800 600", "1400 1000"):
        where = size.replace(" ", " × ")
        for name, what, maximum, measure in (
                ("opening", "First opening of the drawer until it is seen", None, MEDIAN),
                ("cost", "Most expensive frame of a run, processor time", 0.016, max),
                ("interval", "From one frame to the next", None, MEDIAN)):
            ours, base = (MEDIAN([measure(run) for run in slides(results, size, kind, name)]) / 1e3
                          for kind in ("torvane", "plain"))
            rows.append(row(f"{what}, {where}", ours, base, time_text, maximum=maximum))

    heading = "| what | Torvane | baseline | ratio | at most | met |\n|---|--:|--:|--:|--:|---|"
    update_readme(sys.argv[3],
                  f"The first frame is on the screen after {time_text(seconds('start torvane'))}, where an empty Qt window takes "
                  f"{time_text(seconds('start empty'))}; the pass over 1,000 keys takes {time_text(inside['pass/1000'])}, where "
                  f"plain reading and writing takes {time_text(inside['plain/1000'])}.")

    print("# Speed and memory\n\nMade by `scripts/benchmark`, which says how to run it again; "
          f"{os.cpu_count()} processor cores, software rendering on Xvfb. Times are medians.\n")
    print(heading)
    print("\n".join(rows))
    print("\n## Where the time of a start goes\n\n| stage | ms |\n|---|--:|")
    for name, numbers in results.items():
        if name.startswith("stage "):
            print(f"| {name.removeprefix('stage ')} | {MEDIAN(numbers):.1f} |")
    print("""
The control center and its pages are measured in a start of their own; together they are most of the window.

## How it is measured

- *First painted frame*: an X client fills the empty screen with a colour, starts the program and looks, every half
  millisecond, whether that colour is gone from the middle row and the middle column of the program's window.
- *Instructions*: counted by valgrind, without a screen and with one font, so that the figures of machines can be compared.
  `scripts/instructions` fails when a start takes 10 % more than the number in `benchmarks/instructions`.
- *Peak of the memory*: `VmHWM` a second after the first frame, when the drawer has opened.
- *Validation pass*: the file lies in memory and is written again each time, so that it is really read. The plain
  reading and writing visits the same keys in the same order and stores what it has read.
- *Slides*: the stand-alone window; the baseline slides a column and a drawer of the same number of plain Qt widgets.
  Each run opens and closes both some times. The cost of a frame is the processor time of the process from the end of one
  frame to the end of the next; the interval between them follows the 16 ms clock of Qt's animations.""")


if __name__ == "__main__":
    main()
