"""Runs benchmark programs and prints medians as ratios: ratios.py REPETITIONS PROGRAM...

A measurement "a/b" is held against "a/b/bare"; one named "a/b/1000" with a smaller twin "a/b/10" is also shown per row.
Where other threads or programs do the work, the name ends in "/real_time" and the clock on the wall counts.
"""
import json
import subprocess
import sys

LIMITS = {"buildPage": 1.25, "report": 2.0, "scanSrecord": 0.1, "scanDrive": 1.5}
HELD_LIMIT = 64  # KiB, whatever the size of the file
WALL = "/real_time"
MICROSECONDS = {"ns": 1e-3, "us": 1, "ms": 1e3, "s": 1e6}


def medians(program, repetitions, held):
    out = subprocess.run(
        [program, f"--benchmark_repetitions={repetitions}", "--benchmark_report_aggregates_only=true",
         "--benchmark_format=json", "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.05"],
        check=True, stdout=subprocess.PIPE, text=True).stdout
    for run in json.loads(out)["benchmarks"]:
        if run.get("aggregate_name") == "median":
            name = run["run_name"].removesuffix(WALL)
            time = run["real_time" if run["run_name"].endswith(WALL) else "cpu_time"]
            if "heldKiB" in run:
                held[name] = run["heldKiB"]
            yield name, time * MICROSECONDS[run["time_unit"]]


def main():
    times = {}
    held = {}
    for program in sys.argv[2:]:
        times.update(medians(program, int(sys.argv[1]), held))
    print(f"{'measurement':44} {'us':>10} {'bare, us':>10} {'ratio':>7} {'at most':>8}")
    built = []
    for name, time in times.items():
        bare = times.get(name + "/bare")
        if bare is None:
            continue
        kind = name.split("/")[0]
        if kind == "buildPage":
            built.append(time / bare)
        print(f"{name:44} {time:10.1f} {bare:10.1f} {time / bare:7.2f} {LIMITS.get(kind, ''):>8}")
    if built:
        built.sort()
        print(f"{'buildPage, the median page':44} {'':10} {'':10} {built[len(built) // 2]:7.2f} {1.15:>8}")
    for name, time in times.items():
        base, _, rows = name.rpartition("/")
        if rows.isdigit() and rows != "10" and f"{base}/10" in times:
            per_row = (time / int(rows)) / (times[f"{base}/10"] / 10)
            print(f"{name + ', per row against 10':44} {time:10.1f} {'':10} {per_row:7.2f} {1.3:>8}")
    for name, size in held.items():
        print(f"{name + ', KiB held at most':44} {size:10.1f} {'':10} {'':7} {HELD_LIMIT:>8}")


if __name__ == "__main__":
    main()
