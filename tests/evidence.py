"""Runs the slow checks and keeps what they gave in the documents: command, result, date and commit.

usage: evidence.py [--list | --judge | NAME...]

Run by scripts/check-all, whose help says what it does. --judge, for scripts/test, fails if a row names a commit that is
not among those that led to what is checked out, and prints which rows are not of the code as it is.

A check's result is the last line of its standard output. What it prints before is put into a document as well where one
has a place for it, between <!-- NAME --> and <!-- end of NAME -->.
"""

import dataclasses
import datetime
import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LOGS = ROOT / "build-check-all"
PAGES = [ROOT / "docs" / "reliability.md", ROOT / "docs" / "performance.md"]
PICTURE = ROOT / "docs" / "performance.svg"
LIBRARY = ["include", "src", "json", "platform"]
FAILED, TO_BE_RUN = "FAILED", "to be run"


@dataclasses.dataclass
class Check:
    name: str
    minutes: int  # the first time, on two processors
    command: str
    picture: str = ""  # that it draws


CHECKS = [
    Check("faults", 1, "scripts/check-faults 3"),
    Check("asan", 4, "scripts/check-sanitizers asan"),
    Check("ubsan", 4, "scripts/check-sanitizers ubsan"),
    Check("tsan", 4, "scripts/check-sanitizers tsan"),
    Check("memcheck", 5, "scripts/check-sanitizers memcheck"),
    Check("threads", 3, "scripts/check-threads"),
    Check("arm-musl", 5, "scripts/check-arm-musl"),
    Check("big-endian", 8, "scripts/check-big-endian"),
    Check("abi", 1, "scripts/check-abi"),
    Check("reproducible", 3, "scripts/check-reproducible"),
    Check("package", 1, "scripts/package"),
    Check("packages", 15, "scripts/check-packages"),
    Check("docs", 1, "scripts/docs"),
    Check("tidy", 12, "scripts/check-tidy"),
    Check("coverage", 4, "scripts/coverage"),
    Check("mutate", 40, "scripts/mutate --count 300"),
    Check("fuzz", 30, "scripts/fuzz 600"),
    Check("size", 7, "scripts/size"),
    Check("bench", 5, "scripts/bench", picture="build-bench/performance.svg"),
]

# A row of the table, or the line above what a check printed.
ROW = re.compile(r"`(scripts/[^`]+)`(.*) \d{4}-\d\d-\d\d(?: \||, commit) `([0-9a-f]{7,40})`")


def git(*arguments):
    """What git answers; None if it fails."""
    try:
        run = subprocess.run(["git", *arguments], cwd=ROOT, capture_output=True, text=True, check=False)
    except FileNotFoundError:
        return None
    return run.stdout.strip() if run.returncode == 0 else None


def clean_commit():
    """The commit that is checked out; None if something else than the documents written here differs from it."""
    written = [f":!{path.relative_to(ROOT)}" for path in [*PAGES, PICTURE]]
    return git("rev-parse", "--short", "HEAD") if git("status", "--porcelain", "--", ".", *written) == "" else None


def between(name):
    return re.compile(rf"(<!-- {name} -->\n).*?(<!-- end of {name} -->\n)", re.S)


def put(name, content):
    """Replaces what a document has in the place of that name, if one has it."""
    for page in PAGES:
        text = page.read_text(encoding="utf-8")
        page.write_text(between(name).sub(lambda match: f"{match[1]}\n{content}\n\n{match[2]}", text), encoding="utf-8")


def rows(page):
    """The lines of a document that tell of a run, each with command, result and commit."""
    for line in page.read_text(encoding="utf-8").splitlines():
        if match := ROW.search(line):
            yield line, *match.groups()


def record(check, result, output, date, commit):
    known = {command: line for line, command, _, _ in rows(PAGES[0]) if line.startswith("|")}
    known[check.command] = f"| `{check.command}` | {result.replace('|', '/')} | {date} | `{commit}` |"
    lines = [known.get(each.command, f"| `{each.command}` | {TO_BE_RUN} | | |") for each in CHECKS]
    put("checks", "\n".join(["| Command | Result | Date | Commit |", "|---|---|---|---|", *lines]))
    if output:
        fence = [] if output[0].startswith("|") else ["```"]
        put(check.name, "\n".join([f"`{check.command}` on {date}, commit `{commit}`: {result}", "", *fence, *output, *fence]))
        if check.picture:
            shutil.copy(ROOT / check.picture, PICTURE)


def run(check):
    """Whether the check passed, and was of one commit from beginning to end."""

    def told(what):
        print(f"check-all: {check.name} {what}", file=sys.stderr, flush=True)
        return False

    commit, date = clean_commit(), datetime.date.today().isoformat()
    if commit is None:
        return told("NOT RUN: files differ from the last commit, so that no row could name what was judged")
    log, out = LOGS / f"{check.name}.log", LOGS / f"{check.name}.out"
    print(f"==> {check.command} (about {check.minutes} min); see {log.relative_to(ROOT)}", file=sys.stderr, flush=True)
    with open(log, "w", encoding="utf-8") as errors, open(out, "w", encoding="utf-8") as output:
        process = subprocess.run(check.command.split(), cwd=ROOT, stdin=subprocess.DEVNULL, stdout=output,
                                 stderr=errors, check=False)  # fmt: skip
    lines = out.read_text(encoding="utf-8", errors="replace").rstrip().splitlines()
    if clean_commit() != commit:
        return told("NOT RECORDED: files or the last commit changed while it ran")
    if process.returncode != 0 or not lines:
        record(check, f"{FAILED}, status {process.returncode}", [], date, commit)
        progress = log.read_text(encoding="utf-8", errors="replace").splitlines()
        print("\n".join([*progress[-20:], *lines[-20:]]), file=sys.stderr)
        return told(f"{FAILED} with status {process.returncode}")
    record(check, lines[-1], lines[:-1], date, commit)
    print(f"{check.name}: {lines[-1]}", flush=True)
    return True


def judge():
    """0, or 1 if a row is not of what is checked out."""
    if git("rev-parse", "--show-toplevel") != str(ROOT):
        print("Evidence: its commits cannot be judged, for git has no history of this directory")
        return 0
    is_shallow = git("rev-parse", "--is-shallow-repository") == "true"
    told, status = {}, 0
    for _, command, result, commit in (row for page in PAGES for row in rows(page)):
        if FAILED in result:
            told.setdefault(FAILED, []).append(command)
        if git("merge-base", "--is-ancestor", commit, "HEAD") is not None:
            if git("log", "-1", "--format=%h", f"{commit}..HEAD", "--", *LIBRARY):
                told.setdefault(f"older than the last change to {'/, '.join(LIBRARY)}/", []).append(command)
        elif is_shallow:
            told.setdefault("that cannot be judged in a clone without the history", []).append(command)
        else:
            told.setdefault("NOT OF A COMMIT THAT LED HERE", []).append(f"{command} at {commit}")
            status = 1
    table = PAGES[0].read_text(encoding="utf-8")
    told[TO_BE_RUN] = [each.command for each in CHECKS if f"| `{each.command}` | {TO_BE_RUN} |" in table]
    for what, commands in told.items():
        if commands:
            print(f"Evidence {what}: {', '.join(dict.fromkeys(commands))}")
    return status


def main(arguments):
    if arguments == ["--judge"]:
        return judge()
    if arguments == ["--list"]:
        for check in CHECKS:
            print(f"{check.name:<13} {check.minutes:3} min  {check.command}")
        return 0
    known = {check.name: check for check in CHECKS}
    unknown = [name for name in arguments if name not in known]
    if unknown:
        print(f"check-all: unknown check: {' '.join(unknown)}; there are {' '.join(known)}", file=sys.stderr)
        return 2
    LOGS.mkdir(exist_ok=True)
    failed = [name for name in arguments or known if not run(known[name])]
    if failed:
        print(f"check-all: {len(failed)} did not pass: {' '.join(failed)}", file=sys.stderr)
    return 1 if failed else 0


sys.exit(main(sys.argv[1:]))
