"""Prints how large the library's objects are, as a Markdown table: families as rows, builds as columns.

usage: size.py TITLE=LIMIT=BUILD-DIRECTORY...

Counts code (.text), constants (.rodata) and relocated constants (.data.rel.ro). What several families have alike, as
instances of templates, is in the rows of all of them and counted once in the library's. Fails if code and constants of
the library exceed LIMIT KiB.
"""

import glob
import os
import re
import subprocess
import sys

SECTION = re.compile(r"^\s*\[\s*\d+\] (\.\S+)\s+(?:PROGBITS|NOBITS)\s+\S+ \S+ ([0-9a-f]+) \S+\s+([A-Zop]*) ", re.M)
KINDS = (".text", ".rodata", ".data.rel.ro")


def sections(path):
    """Kind, size and, of a section that is linked once only, the name."""
    listing = subprocess.run(["readelf", "-SW", path], capture_output=True, text=True, check=True).stdout
    for name, size, flags in SECTION.findall(listing):
        for kind in KINDS:
            if name == kind or name.startswith(kind + "."):
                yield kind, int(size, 16), name if "G" in flags else None


families, columns, status = {}, [], 0
for argument in sys.argv[1:]:
    title, limit, directory = argument.split("=")
    library, linked = dict.fromkeys(KINDS, 0), set()
    paths = sorted(glob.glob(f"{directory}/CMakeFiles/ravix_types.dir/src/*.o"))
    assert paths, f"{directory} has no objects of the library"
    for path in paths:
        family = dict.fromkeys(KINDS, 0)
        for kind, size, name in sections(path):
            family[kind] += size
            if name not in linked:
                library[kind] += size
            if name:
                linked.add(name)
        families.setdefault(os.path.basename(path).split(".")[0], []).append(family)
    families.setdefault("library", []).append(library)
    columns += [f"{title} `{kind}`" for kind in KINDS]
    if library[".text"] + library[".rodata"] > int(limit) * 1024:
        status = f"{title}: more than {limit} KiB of code and constants"

library = families.pop("library")
print("| | " + " | ".join(columns) + " |")
print("|---|" + "---:|" * len(columns))
for name, builds in families.items():
    print(f"| `{name}` | " + " | ".join(str(build[kind]) for build in builds for kind in KINDS) + " |")
print("| library | " + " | ".join(str(build[kind]) for build in library for kind in KINDS) + " |")
totals = [f"{(build['.text'] + build['.rodata']) / 1024:.1f}" for build in library]
print("| code and constants, KiB | " + " | | | ".join(totals) + " | | |")
sys.exit(status)
