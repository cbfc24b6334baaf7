"""Puts tables into docs/performance.md, between the markers of that name."""
import pathlib

DOCUMENT = pathlib.Path(__file__).resolve().parent.parent / "docs" / "performance.md"


def write(name, text):
    begin, end = f"<!-- {name} -->\n", f"<!-- end of {name} -->"
    before, found, rest = DOCUMENT.read_text().partition(begin)
    _, closed, after = rest.partition(end)
    if not found or not closed:
        raise SystemExit(f"{DOCUMENT.name} has no place for {name}: the lines {begin.strip()} and {end}")
    DOCUMENT.write_text(f"{before}{begin}\n{text.strip()}\n\n{end}{after}")
