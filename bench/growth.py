"""Runs the program of the growth tables, and shows them or puts them into the document: growth.py PROGRAM [--write] [SUBJECT]"""
import subprocess
import sys

import document


def main():
    program, *words = sys.argv[1:]
    subjects = [word for word in words if word != "--write"]
    if "--write" in words and subjects:
        sys.exit("growth: --write takes all subjects, as the document has them")
    run = subprocess.run([program, *subjects], stdout=subprocess.PIPE, text=True)
    print(run.stdout)
    if run.returncode:
        sys.exit(run.returncode)
    if "--write" in words:
        document.write("growth", run.stdout)


if __name__ == "__main__":
    main()
