"""Random changes of the sources, and whether the suite notices them; see scripts/mutate.

The same seed makes the same changes of the same commit. What is tried is the last commit, in a copy
below build/mutants: an interrupted run leaves the tree as it was. A change that does not compile is
no change, and another is drawn. A change that no test notices is not always a gap: some change
nothing that can be seen. Each is for a reader to judge.
"""

import pathlib
import random
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COPY = ROOT / "build" / "mutants" / "tree"
BUILD = COPY / "build" / "debug"
TEST_SECONDS = 100  # of one program of tests: a change may make a loop endless

# What one kind of change finds in a line, and what it puts in its place.
COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
SIGNS = {"+": "-", "-": "+", "*": "/", "/": "*"}

TEXT = re.compile(r'"(?:[^"\\]|\\.)*"')
NUMBER = re.compile(r"(?<![\w.])(\d+\.\d+|\d+)(?![\w.xX])")
OPERATOR = re.compile(r"(?<= )(<=|>=|==|!=|<|>)(?= )")
SIGN = re.compile(r"(?<=[\w)\]] )[-+*/](?= )")
STATEMENT = re.compile(r"^\s+(?!return\b|else\b|case\b|throw\b|delete\b)"
                       r"[A-Za-z_][\w.:>\[\]-]*(?:\(.*\)|\s[-+*/]?=\s[^=].*|\+\+|--);$")
ROW = re.compile(r"^\s+\{.*\},(\s*//.*)?$")

# How all forms are laid out is held by one program of tests.
FORMS = "desktop/"
LAYOUT_TEST = "layout_test"
LAYOUT_FOLDER = "desktop/app"

# Whose tests try a room that has none of its own.
TRIED_BY = {"commandline": "export"}


def blanked(line):
    """The line with its texts and its comment blanked, its length unchanged."""
    line = TEXT.sub(lambda m: '"' + " " * (len(m.group()) - 2) + '"', line)
    comment = line.find("//")
    return line if comment < 0 else line[:comment] + " " * (len(line) - comment)


def with_span(line, match, new):
    return line[:match.start()] + new + line[match.end():]


def other_number(text):
    return str(float(text) * 1.25 + 0.125) if "." in text else str(int(text) + 1)


def constants(lines, n):
    for match in NUMBER.finditer(blanked(lines[n])):
        yield [with_span(lines[n], match, other_number(match.group(1)))]


def comparisons(lines, n):
    for match in OPERATOR.finditer(blanked(lines[n])):
        yield [with_span(lines[n], match, COMPARISONS[match.group()])]


def signs(lines, n):
    for match in SIGN.finditer(blanked(lines[n])):
        yield [with_span(lines[n], match, SIGNS[match.group()])]


def dropped(lines, n):
    begins = lines[n - 1].rstrip().endswith((";", "{", "}")) if n else False
    if begins and STATEMENT.match(lines[n]):
        yield [""]


def swapped(lines, n):
    if n + 1 < len(lines) and ROW.match(lines[n]) and ROW.match(lines[n + 1]):
        yield [lines[n + 1], lines[n]]


def texts(lines, n):
    for match in TEXT.finditer(lines[n]):
        inner = match.group()[1:-1]
        if len(inner) > 1 and "\\" not in inner:
            yield [with_span(lines[n], match, '"' + inner[:-1] + ("x" if inner[-1] != "x" else "y")
                             + '"')]


KINDS = {"constant": constants, "comparison": comparisons, "sign": signs, "dropped": dropped,
         "swapped rows": swapped, "text": texts}


def candidates(kind):
    """All changes of a kind: (file, line number from 0, the lines that stand there instead)."""
    found = []
    for path in sorted((COPY / "src").rglob("*")):
        if path.suffix not in (".cpp", ".h"):
            continue
        lines = path.read_text().split("\n")
        for n, line in enumerate(lines):
            stripped = line.lstrip()
            if not stripped.startswith(("#", "//", "static_assert")):
                found += [(path, n, new) for new in KINDS[kind](lines, n)]
    return found


def run(command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          **options)


def check(command):
    done = run(command)
    if done.returncode != 0:
        sys.exit(done.stdout[-4000:] + "\n" + " ".join(map(str, command)) + ": failed")


def make_copy():
    if not COPY.exists():
        check(["git", "clone", "--quiet", "--shared", ROOT, COPY])
    head = run(["git", "-C", ROOT, "rev-parse", "HEAD"]).stdout.strip()
    check(["git", "-C", COPY, "fetch", "--quiet", "origin", "HEAD"])
    check(["git", "-C", COPY, "checkout", "--quiet", "--force", "--detach", head])
    check(["cmake", "-S", COPY, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
           "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DVERNACLE_TESTS=ON"])


def builds(folder):
    targets = [f"tests/{folder}/all"] + ([LAYOUT_TEST] if folder.startswith(FORMS) else [])
    return run(["cmake", "--build", BUILD, "--target", *targets]).returncode == 0


def noticed_by(folder):
    """The first program of tests that fails; None if none does."""
    wanted = [(folder, [])]
    if folder.startswith(FORMS):
        wanted.append((LAYOUT_FOLDER, ["-R", LAYOUT_TEST]))
    for place, which in wanted:
        done = run(["ctest", "--test-dir", BUILD / "tests" / place, "--stop-on-failure",
                    "--timeout", str(TEST_SECONDS), "-j", "2", *which])
        if done.returncode != 0:
            failed = re.search(r"- (\S+) \(", done.stdout)
            return failed.group(1) if failed else place
    return None


def folder_of(path):
    folder = path.parent.relative_to(COPY / "src").as_posix()
    return TRIED_BY.get(folder, folder)


def check_unchanged(folder, checked):
    """Once for each folder: what fails by itself notices nothing."""
    if folder not in checked:
        if not builds(folder):
            sys.exit(f"the unchanged tree does not build the tests of {folder}")
        if (failed := noticed_by(folder)) is not None:
            sys.exit(f"{failed} fails on the unchanged tree")
        checked.add(folder)


def tried(path, n, new):
    """Whether the change compiles, and what noticed it. The source is as it was afterwards."""
    original = path.read_text()
    lines = original.split("\n")
    lines[n:n + len(new)] = new
    path.write_text("\n".join(lines))
    try:
        compiled = builds(folder_of(path))
        return compiled, noticed_by(folder_of(path)) if compiled else None
    finally:
        path.write_text(original)


def main():
    if len(sys.argv) != 3 or not all(argument.isdigit() for argument in sys.argv[1:]):
        sys.exit("Usage: scripts/mutate SEED COUNT")
    seed, count = map(int, sys.argv[1:])
    make_copy()
    choice = random.Random(seed)
    pools = {kind: candidates(kind) for kind in KINDS}
    checked = set()
    noticed = made = 0
    while made < count:
        kind = choice.choice(list(KINDS))
        path, n, new = choice.choice(pools[kind])
        check_unchanged(folder_of(path), checked)
        compiled, by = tried(path, n, new)
        if not compiled:
            continue
        made += 1
        noticed += by is not None
        place = f"{path.relative_to(COPY)}:{n + 1}"
        print(f"{'noticed by ' + by if by else 'NOT NOTICED'}: {place}: {kind}: "
              f"{' / '.join(line.strip() for line in new) or '(nothing)'}", flush=True)
    print(f"{noticed} of {made} changes noticed (seed {seed})")


main()
