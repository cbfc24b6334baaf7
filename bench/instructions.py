"""Counts the instructions of operations, and holds them against their budget: instructions.py PROGRAM BUDGET [--record]

A line of the budget is an operation and its instructions. Other versions of Qt or the compiler count otherwise: record anew
with them, in a commit that changes nothing else.
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile

TOLERANCE = 0.04


def environment(folder):
    """Nothing of the caller's: what depends on names of folders or on hash seeds would count differently each time."""
    return {"PATH": os.environ["PATH"], "HOME": folder, "TMPDIR": folder, "XDG_RUNTIME_DIR": folder, "LC_ALL": "C.UTF-8",
            "TZ": "UTC", "QT_QPA_PLATFORM": "offscreen", "QT_HASH_SEED": "0"}


def count(program):
    with tempfile.TemporaryDirectory() as folder:
        run = subprocess.run(
            ["valgrind", "--tool=callgrind", "--instr-atstart=no", f"--callgrind-out-file={folder}/counts", program],
            env=environment(folder), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if run.returncode:
            sys.exit(f"{run.stdout}instructions: {program} failed; the lines above say why")
        counts = {}
        for path in pathlib.Path(folder).glob("counts.*"):
            text = path.read_text()
            name = re.search(r"^desc: Trigger: Client Request: (.*)$", text, re.M)
            if name:
                counts[name[1]] = int(re.search(r"^(?:summary|totals): (\d+)", text, re.M)[1])
        return counts


def read_budget(path):
    lines = path.read_text().splitlines() if path.exists() else []
    return {name: int(number) for name, number in (line.split() for line in lines)}


def faults(counts, budget):
    for name in budget.keys() - counts.keys():
        yield f"{name} has a budget, but is not counted any more"
    for name, now in counts.items():
        if name not in budget:
            yield f"{name} has no budget"
        elif abs(now / budget[name] - 1) > TOLERANCE:
            yield f"{name}: budget {budget[name]}, now {now} ({now / budget[name] - 1:+.1%})"


def nearer(counts, again, budget):
    """Of two counts of each operation the one that is nearer to its budget."""
    return {name: min(now, again.get(name, now), key=lambda number: abs(number - budget.get(name, number)))
            for name, now in counts.items()}


def main():
    path = pathlib.Path(sys.argv[2])
    counts = count(sys.argv[1])
    budget = read_budget(path)
    if sys.argv[3:] != ["--record"] and any(faults(counts, budget)):
        # A timer that fires on a busy machine is counted too; what the code costs is there the second time as well.
        counts = nearer(counts, count(sys.argv[1]), budget)
    print(f"{'operation':44} {'budget':>12} {'now':>12}")
    for name, now in sorted(counts.items()):
        change = f"{now / budget[name] - 1:+8.2%}" if name in budget else ""
        print(f"{name:44} {budget.get(name, ''):>12} {now:>12} {change}")
    if sys.argv[3:] == ["--record"]:
        path.write_text("".join(f"{name} {now}\n" for name, now in sorted(counts.items())))
        return
    found = sorted(faults(counts, budget))
    for fault in found:
        print(fault)
    if found:
        sys.exit("Undo what made the difference; if it is meant, or saves, record it: bench/instructions --record")


if __name__ == "__main__":
    main()
