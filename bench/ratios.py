"""Runs benchmark programs and prints medians as ratios: ratios.py [--write] ROUNDS PROGRAM...

A round runs each program once. What is compared is taken from one round, as the clock of the machine may have another pace
in the next, and the median of the rounds' ratios is shown.

A measurement "a/b" is held against "a/b/bare"; one named "a/b/1000" with a smaller twin "a/b/10" is also shown per row.
Where other threads or programs do the work, the name ends in "/real_time" and the clock on the wall counts.
"""
import json
import statistics
import subprocess
import sys

import document

REPETITIONS = 5  # in one round
LIMITS = {"buildPage": 1.25, "report": 2.0, "scanSrecord": 0.1, "scanDrive": 1.5}
MEDIAN_PAGE_LIMIT = 1.15
ROW_LIMIT = 1.3
HELD_LIMIT = 64  # KiB, whatever the size of the file
WALL = "/real_time"
MICROSECONDS = {"ns": 1e-3, "us": 1, "ms": 1e3, "s": 1e6}


def measure(program, held):
    out = subprocess.run(
        [program, f"--benchmark_repetitions={REPETITIONS}", "--benchmark_report_aggregates_only=true",
         "--benchmark_format=json", "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.02"],
        check=True, stdout=subprocess.PIPE, text=True).stdout
    for run in json.loads(out)["benchmarks"]:
        if run.get("aggregate_name") == "median":
            name = run["run_name"].removesuffix(WALL)
            time = run["real_time" if run["run_name"].endswith(WALL) else "cpu_time"]
            if "heldKiB" in run:
                held[name] = run["heldKiB"]
            yield name, time * MICROSECONDS[run["time_unit"]]


def number(value):
    return f"{value:.1f}" if value != "" else ""


def compare(times, others, factor=1):
    return statistics.median(time / other * factor for time, other in zip(times, others))


def against_bare(times):
    """Rows of what has a bare twin, and the ratio of the median page."""
    built = []
    for name, time in times.items():
        bare = times.get(name + "/bare")
        if bare is None:
            continue
        kind = name.split("/")[0]
        if kind == "buildPage":
            built.append(compare(time, bare))
        yield name, statistics.median(time), statistics.median(bare), compare(time, bare), LIMITS.get(kind, "")
    if built:
        yield "buildPage, the median page", "", "", statistics.median(built), MEDIAN_PAGE_LIMIT


def against_ten(times):
    """Rows of what is done for many rows, each against one of ten."""
    for name, time in times.items():
        base, _, rows = name.rpartition("/")
        if rows.isdigit() and rows != "10" and f"{base}/10" in times:
            ratio = compare(time, times[f"{base}/10"], 10 / int(rows))
            yield f"{name}, per row against 10", statistics.median(time), "", ratio, ROW_LIMIT


def table(rows, held):
    yield f"| {'measurement':44} | {'us':>10} | {'bare, us':>10} | {'ratio':>6} | {'at most':>7} |"
    yield f"| {'-' * 44} | {'-' * 9}: | {'-' * 9}: | {'-' * 5}: | {'-' * 6}: |"
    for name, time, bare, ratio, limit in rows:
        shown = f"**{ratio:.2f}**" if limit and ratio > limit else f"{ratio:.2f}"
        yield f"| {name:44} | {number(time):>10} | {number(bare):>10} | {shown:>6} | {limit:>7} |"
    for name, size in held.items():
        yield f"| {name + ', KiB held at most':44} | {size:10.1f} | {'':10} | {'':6} | {HELD_LIMIT:>7} |"


def main():
    rounds, *programs = [word for word in sys.argv[1:] if word != "--write"]
    if int(rounds) < 1:
        sys.exit("ratios: there must be a round at least")
    times = {}
    held = {}
    for _ in range(int(rounds)):
        for program in programs:
            for name, time in measure(program, held):
                times.setdefault(name, []).append(time)
    # The programs measure in an order drawn anew each time.
    times = dict(sorted(times.items()))
    text = "\n".join(table([*against_bare(times), *against_ten(times)], held))
    print(text)
    if "--write" in sys.argv:
        document.write("ratios", text)


if __name__ == "__main__":
    main()
