"""Changes the pages one place at a time and asks their tests; see tools/mutate."""
import argparse
import concurrent.futures
import json
import os
import pathlib
import random
import re
import shlex
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Of a processor's time, which a change may make a test spend without end; or of waiting, on a machine that does other things.
TEST_SECONDS = 60
WAIT_SECONDS = 300
# What holds for every page. It takes long, and is asked when a page's own test has noticed nothing.
COMMON_TEST = "tst_allPages"

# What is found, and what may stand there instead. Only code is looked at: no comments, no preprocessor.
OPERATORS = {" < ": [" <= "], " <= ": [" < "], " > ": [" >= "], " >= ": [" > "], " == ": [" != "], " != ": [" == "],
             " && ": [" || "], " || ": [" && "], " + ": [" - "], " - ": [" + "], " * ": [" / "], " / ": [" * "],
             "true": ["false"], "false": ["true"]}
TOKEN = re.compile(
    r'(?P<string>"(?:[^"\\\n]|\\.)*")'
    r"|(?P<character>'(?:[^'\\]|\\.)')"
    r"|(?P<number>(?<![\w.])\d+(?:\.\d+)?\b)"
    r"|(?P<operator> (?:<=|>=|==|!=|&&|\|\||[<>+\-*/]) |\b(?:true|false)\b)"
    r"|(?P<negation>(?<=[( ])!(?=[\w(]))")
COMMENT = re.compile(r"/\*.*?\*/|//[^\n]*|^ *#[^\n]*", re.S | re.M)
# Where a text is translated shows in other languages only; the tests of the translations look at that.
TRANSLATED_AT = re.compile(r'QT_TRANSLATE_NOOP\(\s*"[^"]*"')
STATEMENT = re.compile(r"^ {4,}(?:return )?[\w>.\-:&()\*]+\([^;{}]*\);$", re.M)


def code_only(text):
    """The text with everything blanked that is not to be changed, at the same places."""
    blank = lambda match: re.sub(r"[^\n]", " ", match.group())
    return TRANSLATED_AT.sub(blank, COMMENT.sub(blank, text))


def number_beside(number):
    return number + "1" if "." in number else str(int(number) + 1)


def changes_of(text):
    """All (start, end, instead) of a source."""
    code = code_only(text)
    changes = []
    for match in TOKEN.finditer(code):
        kind, found = match.lastgroup, match.group()
        if kind == "string":
            changes.append((*match.span(), found[:-1] + '~"'))
        elif kind == "number":
            changes.append((*match.span(), number_beside(found)))
        elif kind == "operator":
            changes += [(*match.span(), instead) for instead in OPERATORS[found]]
        elif kind == "negation":
            changes.append((*match.span(), ""))
    for match in STATEMENT.finditer(code):
        if not match.group().lstrip().startswith("return"):
            changes.append((*match.span(), "    ;"))
    return changes


class Workshop:
    def __init__(self, build):
        self.build = build
        commands = json.loads((build / "compile_commands.json").read_text())
        self.commands = {pathlib.Path(entry["file"]): entry for entry in commands}
        self.environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", TZ="UTC", LC_ALL="C.UTF-8")

    def build_targets(self, targets):
        subprocess.run(["cmake", "--build", self.build, "--target", *targets], check=True, stdout=subprocess.DEVNULL)

    def library_with(self, source, text, folder):
        """The library with another text of one source; nothing when it does not compile."""
        changed = folder / source.name
        changed.write_text(text)
        entry = self.commands[source]
        words = [word for word in shlex.split(entry["command"]) if not word.endswith("ccache")]
        original = (self.build / words[words.index("-o") + 1]).resolve()
        made = folder / "changed.o"
        words[words.index("-o") + 1] = str(made)
        words = [str(changed) if word == str(source) else word for word in words]
        # A change may leave something unused; whether it is noticed is for the test to say.
        if subprocess.run([*words, "-w"], cwd=entry["directory"], capture_output=True).returncode:
            return None
        objects = [str(path) for path in self.objects() if path.resolve() != original]
        # By this name the test asks for the library, and takes the one that is there already.
        name = os.readlink(next((self.build / "lib").glob("libmelvox_ui*.so")))
        library = folder / name
        folder_of_others = self.build / "lib"
        subprocess.run(["c++", "-shared", f"-Wl,-soname,{name}", f"-Wl,-rpath,{folder_of_others}", "-o", library, made,
                        *objects, f"-L{folder_of_others}", *self.others(folder_of_others / name)], check=True)
        return library

    def others(self, library):
        """The libraries that the library asks for."""
        told = subprocess.run(["readelf", "-d", library], check=True, capture_output=True, text=True).stdout
        return [f"-l:{name}" for name in re.findall(r"\(NEEDED\).*\[(.+)\]", told)]

    def objects(self):
        return sorted((self.build / "src" / "CMakeFiles" / "melvox_ui.dir").rglob("*.o"))

    def notices(self, test, source, text):
        """Does a test fail with another text of a source? Nothing when that does not compile."""
        with tempfile.TemporaryDirectory(prefix="mutate-") as folder:
            library = self.library_with(source, text, pathlib.Path(folder))
            if library is None:
                return None
            return not self.passes(test, library) or not self.passes(COMMON_TEST, library)

    def passes(self, test, library):
        # For the test alone: the programs that start it are none of Qt's.
        command = ["prlimit", f"--cpu={TEST_SECONDS}", "env", f"LD_PRELOAD={library}", self.build / "bin" / test]
        try:
            done = subprocess.run(command, env=self.environment, capture_output=True, timeout=WAIT_SECONDS)
        except subprocess.TimeoutExpired:
            return False
        return done.returncode == 0


def told(source, text, change):
    start, end, instead = change
    line = text.count("\n", 0, start) + 1
    return f"{source.relative_to(ROOT)}:{line}: {text[start:end].strip()}  ->  {instead.strip() or '(nothing)'}"


def check_page(shop, page, count, jobs, chance):
    source = ROOT / "src" / "pages" / f"{page}.cpp"
    test = f"tst_{page}"
    text = source.read_text()
    # In the same way as the changes, so that a fault of this program is not taken for one that a test noticed.
    if shop.notices(test, source, text) is not False:
        sys.exit(f"mutate: {test} or {COMMON_TEST} fails as it is; mend that first")
    changes = changes_of(text)
    if count and len(changes) > count:
        changes = sorted(chance.sample(changes, count))
    texts = [text[:start] + instead + text[end:] for start, end, instead in changes]
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        noticed = list(pool.map(lambda changed: shop.notices(test, source, changed), texts))
    killed = noticed.count(True)
    survivors = [told(source, text, change) for change, was in zip(changes, noticed) if was is False]
    return killed, survivors


def main():
    parser = argparse.ArgumentParser(prog="tools/mutate")
    parser.add_argument("build", type=pathlib.Path, help=argparse.SUPPRESS)
    parser.add_argument("pages", nargs="*", metavar="PAGE", help="such as melvoxUiSolutionControl; all unless told")
    parser.add_argument("--changes", type=int, default=20, help="changes drawn of each page; 0: all")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="changes tried at the same time")
    options = parser.parse_intermixed_args()
    known = sorted(path.stem for path in (ROOT / "src" / "pages").glob("*.cpp"))
    unknown = [page for page in options.pages if page not in known]
    if unknown:
        parser.error(f"there is no page {unknown[0]}; the pages are: {', '.join(known)}")
    pages = options.pages or known
    shop = Workshop(options.build.resolve())
    shop.build_targets([COMMON_TEST, *(f"tst_{page}" for page in pages)])
    all_killed, all_survivors = 0, 0
    for page in pages:
        killed, survivors = check_page(shop, page, options.changes, options.jobs, random.Random(f"{options.seed} {page}"))
        print(f"{page}: {killed} of {killed + len(survivors)} noticed", flush=True)
        for survivor in survivors:
            print(f"    {survivor}", flush=True)
        all_killed += killed
        all_survivors += len(survivors)
    total = all_killed + all_survivors
    print(f"{all_killed} of {total} noticed, {100.0 * all_killed / max(total, 1):.1f} %")


main()
