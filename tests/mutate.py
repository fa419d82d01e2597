"""Plants small faults in the library's sources, one at a time, and tells which of them no test notices.

A mutant is one change of one token or statement. It is applied in a copy of the project, the library alone is rebuilt
there, and the tests run against it until one of them fails. A mutant that compiles to the same code as the original is
no fault and does not count, nor does one that does not compile.
"""

import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
KNOWN = ROOT / "tests" / "mutants.txt"

SWAPS = {
    " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == ",
    " && ": " || ", " || ": " && ", " + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " % ": " / ",
    " << ": " >> ", " >> ": " << ", " & ": " | ", " | ": " & ", " += ": " -= ", " -= ": " += ",
    " |= ": " &= ", " &= ": " |= ", "++": "--", "--": "++",
}  # fmt: skip
TOKEN = re.compile("|".join(re.escape(t) for t in sorted(SWAPS, key=len, reverse=True)))
NUMBER = re.compile(r"(?<![\w.])(0x[0-9a-fA-F]+|\d+)(?=[uU]?\b)(?![\w.])")
BOOLEAN = re.compile(r"\b(true|false)\b")
ARGUMENTS = re.compile(r"(?<=\w\()([\w.*&>-]+), ([\w.*&>-]+)(?=\))")
CONDITION = re.compile(r"\bif \((?!constexpr)(.+)\) (?:\[\[\w+\]\] )?\{$")
NEGATION = re.compile(r"(?<=[( ])!(?=[\w(])")
STATEMENT = re.compile(r"^\s+(?!return\b|case\b|default\b|using\b|static\b|const\b|constexpr\b|auto\b|break\b)"
                       r"[\w*(+\[-][^{}]*\)?;$|^\s+(?:break|[\w.>*()-]+ [|&+-]?= [^{}]*);$")  # fmt: skip
DECLARATION = re.compile(r"^\s*(?:[\w:<>]+ )+[*&]?[\w]+(?: = .*|\{.*\})?;$")
# Lines that state something for the compiler alone, and the bounds of loops whose mutants only run for ever.
PASSED_OVER = re.compile(
    r"^\s*(?:#|//|template|static_assert|using|requires|concept|namespace|friend|public:|private:|RAVIX_)|\boperator\b"
    r"|\[\[gnu|noexcept|= delete|= default|__builtin|std::enable_if"
)


class Mutant:
    def __init__(self, path, line, column, old, new, text):
        self.path, self.line, self.column, self.old, self.new, self.text = path, line, column, old, new, text

    def mutated(self):
        return self.text[: self.column] + self.new + self.text[self.column + len(self.old) :]

    def key(self):
        """Names the mutant without its line number, which changes with every edit above it."""
        return f"{self.path}: {self.text.strip()} => {self.mutated().strip() or '(removed)'}"

    def __str__(self):
        return f"{self.path}:{self.line}: {self.text.strip()}\n    => {self.mutated().strip() or '(removed)'}"


def code_of(line):
    """The line with its texts, characters and comments blanked, so that nothing in them is taken for code."""
    line = re.sub(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'', lambda m: "\0" * len(m.group()), line)
    return re.sub(r"//.*|/\*.*?\*/", lambda m: "\0" * len(m.group()), line)


def mutants_of(path):
    lines = (ROOT / path).read_text().split("\n")
    found, directive = [], False
    for number, line in enumerate(lines, 1):
        code = code_of(line)
        continued, directive = directive, code.rstrip().endswith("\\")
        if continued or directive or PASSED_OVER.search(code):
            continue

        def add(start, old, new):
            found.append(Mutant(path, number, start, old, new, line))

        for match in TOKEN.finditer(code):
            add(match.start(), match.group(), SWAPS[match.group()])
        for match in NUMBER.finditer(code):
            value, show = int(match.group(), 0), hex if match.group().startswith("0x") else str
            add(match.start(), match.group(), show(value + 1))
            if value > 0:
                add(match.start(), match.group(), show(value - 1))
        for match in BOOLEAN.finditer(code):
            add(match.start(), match.group(), "false" if match.group() == "true" else "true")
        for match in ARGUMENTS.finditer(code):
            if match.group(1) != match.group(2):
                add(match.start(), match.group(), f"{match.group(2)}, {match.group(1)}")
        for match in NEGATION.finditer(code):
            add(match.start(), "!", "")
        match = CONDITION.search(code)
        if match:
            original = line[match.start(1) : match.end(1)]
            add(match.start(1), original, f"!({original})")
        before = next((l for l in reversed([code_of(l).rstrip() for l in lines[: number - 1]]) if l.strip("\0 ")), "{")
        if STATEMENT.match(code) and not DECLARATION.match(code) and before[-1] in "{};:":
            add(len(line) - len(line.lstrip()), line.strip(), "")
    return found


class Tree:
    """A copy of the project that is built and mutated, with the tests as they are."""

    def __init__(self, folder, cache):
        self.root, self.build = folder, folder / "build"
        files = subprocess.check_output(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, text=True).split()
        for name in files:
            source, target = ROOT / name, folder / name
            if not source.is_file() or (target.exists() and target.read_bytes() == source.read_bytes()):
                continue
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)
        environment = dict(os.environ, CCACHE_DIR=str(cache), CCACHE_BASEDIR=str(folder), CCACHE_NOHASHDIR="1")
        self.environment = environment
        subprocess.run(
            ["cmake", "-S", folder, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None", "-DRAVIX_WERROR=OFF",
             "-DCMAKE_C_FLAGS=-O1", "-DCMAKE_CXX_FLAGS=-O1 -w", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache",
             "-DCMAKE_C_COMPILER=gcc", "-DCMAKE_CXX_COMPILER=g++"],
            check=True, stdout=subprocess.DEVNULL, env=environment)  # fmt: skip
        self.library = self.build / "lib" / "libravix_types.so"
        if self.make("all", jobs=os.cpu_count()) != 0:
            sys.exit(f"mutate: the tests do not build in {folder}")
        self.original = self.digest()

    def make(self, *targets, jobs=1):
        return subprocess.run(["ninja", "-C", self.build, "-j", str(jobs), *targets], env=self.environment,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode  # fmt: skip

    def digest(self):
        return hashlib.sha256(self.library.read_bytes()).hexdigest()

    def tests(self):
        listing = subprocess.check_output(["ctest", "--show-only=json-v1"], cwd=self.build, text=True)
        for test in json.loads(listing)["tests"]:
            properties = {p["name"]: p["value"] for p in test.get("properties", [])}
            if "slow" in properties.get("LABELS", []) or not test["command"][0].startswith(str(self.build / "bin")):
                continue
            extra = dict(v.split("=", 1) for v in properties.get("ENVIRONMENT", []))
            yield test["name"], test["command"], dict(os.environ, GTEST_FAIL_FAST="1", **extra)

    def passes(self, test, limit):
        _, command, environment = test
        process = subprocess.Popen(command, env=environment, cwd=self.build, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, start_new_session=True)  # fmt: skip
        try:
            return process.wait(timeout=limit) == 0
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            return False


class Hunt:
    """Tries mutants on several trees at once, the tests that caught most in a file first."""

    def __init__(self, trees):
        self.free, self.lock = list(trees), threading.Lock()
        self.caught_by, self.seconds = {}, {}
        for test in trees[0].tests():
            begin = time.monotonic()
            if not trees[0].passes(test, 600):
                sys.exit(f"mutate: {test[0]} fails without any fault planted")
            self.seconds[test[0]] = time.monotonic() - begin

    def try_one(self, mutant):
        with self.lock:
            tree = self.free.pop()
        source = tree.root / mutant.path
        text = source.read_text()
        lines = text.split("\n")
        lines[mutant.line - 1] = mutant.mutated()
        try:
            source.write_text("\n".join(lines))
            # A test that has these sources of the library in it.
            has_source = re.search(r"ring_buffer|(str_convert|log)\.cpp", mutant.path)
            if tree.make("ravix_types", *(["test_ring_buffer"] if has_source else [])) != 0:
                return "does not compile"
            if tree.digest() == tree.original:
                return "same code"

            def order(test):
                return -self.caught_by.get((mutant.path, test[0]), 0), self.seconds[test[0]]

            for test in sorted(tree.tests(), key=order):
                if not tree.passes(test, 5 + 10 * self.seconds[test[0]]):
                    with self.lock:
                        self.caught_by[mutant.path, test[0]] = self.caught_by.get((mutant.path, test[0]), 0) + 1
                    return "caught"
            return "survived"
        finally:
            source.write_text(text)
            with self.lock:
                self.free.append(tree)


def known_survivors():
    """Survivors that are no faults, each with the reason why, from tests/mutants.txt."""
    known, reason = {}, ""
    for line in KNOWN.read_text().splitlines() if KNOWN.exists() else []:
        if line.startswith("# "):
            reason = line[2:]
        elif line:
            known[line] = reason
    return known


def main():
    parser = argparse.ArgumentParser(prog="scripts/mutate", add_help=False)
    parser.add_argument("--count", type=int, default=300)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--file", default="")
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--list", action="store_true")
    parser.add_argument("--work", type=pathlib.Path, default=ROOT / "build-mutate")
    options = parser.parse_args()

    sources = sorted(str(p.relative_to(ROOT)) for p in (ROOT / "src").glob("*.[ch]pp"))
    mutants = [m for path in sources if options.file in path for m in mutants_of(path)]
    if not options.all and len(mutants) > options.count:
        mutants = random.Random(options.seed).sample(mutants, options.count)
    if options.list:
        print("\n".join(str(m) for m in sorted(mutants, key=lambda m: (m.path, m.line))))
        return 0
    if not mutants:
        sys.exit(f"mutate: nothing to mutate in files named like '{options.file}'")

    jobs = os.cpu_count() or 1
    print(f"==> Building {jobs} copies of the project", file=sys.stderr)
    hunt = Hunt([Tree(options.work / f"tree-{n}", options.work / "cache") for n in range(jobs)])
    print(f"==> Trying {len(mutants)} mutants", file=sys.stderr)
    results, known = {}, known_survivors()
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        futures = {pool.submit(hunt.try_one, m): m for m in mutants}
        for done, future in enumerate(concurrent.futures.as_completed(futures), 1):
            mutant, result = futures[future], future.result()
            results.setdefault(result, []).append(mutant)
            if result == "survived" and mutant.key() not in known:
                print(f"survived: {mutant}", flush=True)
            if done % 25 == 0:
                print(f"==> {done} of {len(mutants)}", file=sys.stderr)

    caught, survived = len(results.get("caught", [])), results.get("survived", [])
    accepted = [m for m in survived if m.key() in known]
    print("\nfile: caught of those that count")
    for path in sources:
        of_file = {r: sum(m.path == path for m in ms) for r, ms in results.items()}
        counted = of_file.get("caught", 0) + of_file.get("survived", 0)
        if counted:
            print(f"  {path}: {of_file.get('caught', 0)} of {counted}")
    for mutant in accepted:
        print(f"known to survive: {mutant}\n    {known[mutant.key()]}")
    score = 100 * caught / max(1, caught + len(survived))
    print(
        f"{len(mutants)} mutants: {len(results.get('does not compile', []))} do not compile, "
        f"{len(results.get('same code', []))} are the same code; of the other {caught + len(survived)}, "
        f"{caught} caught, {len(survived)} survived ({len(accepted)} of them known to be no faults): {score:.1f} %"
    )
    return 0 if score >= 90 else 1


sys.exit(main())
