"""Runs benchmark programs and prints medians as ratios: ratios.py [--write] REPETITIONS PROGRAM...

A measurement "a/b" is held against "a/b/bare"; one named "a/b/1000" with a smaller twin "a/b/10" is also shown per row.
Where other threads or programs do the work, the name ends in "/real_time" and the clock on the wall counts.
"""
import json
import subprocess
import sys

import document

LIMITS = {"buildPage": 1.25, "report": 2.0, "scanSrecord": 0.1, "scanDrive": 1.5}
MEDIAN_PAGE_LIMIT = 1.15
ROW_LIMIT = 1.3
HELD_LIMIT = 64  # KiB, whatever the size of the file
WALL = "/real_time"
MICROSECONDS = {"ns": 1e-3, "us": 1, "ms": 1e3, "s": 1e6}


def medians(program, repetitions, held):
    out = subprocess.run(
        [program, f"--benchmark_repetitions={repetitions}", "--benchmark_report_aggregates_only=true",
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


def against_bare(times):
    """Rows of what has a bare twin, and the ratio of the median page."""
    built = []
    for name, time in times.items():
        bare = times.get(name + "/bare")
        if bare is None:
            continue
        kind = name.split("/")[0]
        if kind == "buildPage":
            built.append(time / bare)
        yield name, time, bare, time / bare, LIMITS.get(kind, "")
    if built:
        yield "buildPage, the median page", "", "", sorted(built)[len(built) // 2], MEDIAN_PAGE_LIMIT


def against_ten(times):
    """Rows of what is done for many rows, each against one of ten."""
    for name, time in times.items():
        base, _, rows = name.rpartition("/")
        if rows.isdigit() and rows != "10" and f"{base}/10" in times:
            ratio = (time / int(rows)) / (times[f"{base}/10"] / 10)
            yield f"{name}, per row against 10", time, "", ratio, ROW_LIMIT


def table(rows, held):
    yield f"| {'measurement':44} | {'us':>10} | {'bare, us':>10} | {'ratio':>6} | {'at most':>7} |"
    yield f"| {'-' * 44} | {'-' * 9}: | {'-' * 9}: | {'-' * 5}: | {'-' * 6}: |"
    for name, time, bare, ratio, limit in rows:
        shown = f"**{ratio:.2f}**" if limit and ratio > limit else f"{ratio:.2f}"
        yield f"| {name:44} | {number(time):>10} | {number(bare):>10} | {shown:>6} | {limit:>7} |"
    for name, size in held.items():
        yield f"| {name + ', KiB held at most':44} | {size:10.1f} | {'':10} | {'':6} | {HELD_LIMIT:>7} |"


def main():
    words = [word for word in sys.argv[1:] if word != "--write"]
    if int(words[0]) < 2:
        sys.exit("ratios: a median takes at least 2 repetitions")
    times = {}
    held = {}
    for program in words[1:]:
        times.update(medians(program, int(words[0]), held))
    text = "\n".join(table([*against_bare(times), *against_ten(times)], held))
    print(text)
    if "--write" in sys.argv:
        document.write("ratios", text)


if __name__ == "__main__":
    main()
