"""Prints how large the libraries' objects are, as a Markdown table: families as rows, builds as columns.

usage: size.py TITLE=LIMIT=JSON-LIMIT=BUILD-DIRECTORY...

Counts code (.text), constants (.rodata) and relocated constants (.data.rel.ro). What several families have alike, as
instances of templates, is in the rows of all of them and counted once in the library's. The library that writes JSON is
one row more. Fails if code and constants of the library exceed LIMIT KiB, or those of the other JSON-LIMIT.
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


def measure(pattern):
    """Sizes of each object, by what its source is called, and of all of them linked."""
    library, linked, objects = dict.fromkeys(KINDS, 0), set(), {}
    paths = sorted(glob.glob(pattern, recursive=True))
    assert paths, f"there is no {pattern}"
    for path in paths:
        family = objects[os.path.basename(path).split(".")[0]] = dict.fromkeys(KINDS, 0)
        for kind, size, name in sections(path):
            family[kind] += size
            if name not in linked:
                library[kind] += size
            if name:
                linked.add(name)
    return objects, library


def row(name, cells):
    print(f"| {name} | " + " | ".join(str(cell) for cell in cells) + " |")


def totals(builds):
    return [cell for build in builds for cell in (f"{(build['.text'] + build['.rodata']) / 1024:.1f}", "", "")]


families, library, json, columns, status = {}, [], [], [], 0
for argument in sys.argv[1:]:
    title, limit, json_limit, directory = argument.split("=")
    objects, whole = measure(f"{directory}/CMakeFiles/ravix_types.dir/src/*.o")
    for name, family in objects.items():
        families.setdefault(name, []).append(family)
    library.append(whole)
    json.append(measure(f"{directory}/json/CMakeFiles/ravix_types_json.dir/**/*.o")[1])
    columns += [f"{title} `{kind}`" for kind in KINDS]
    for build, most, name in ((library[-1], limit, ""), (json[-1], json_limit, " for JSON")):
        if build[".text"] + build[".rodata"] > int(most) * 1024:
            status = f"{title}: more than {most} KiB of code and constants{name}"

row("", columns)
print("|---|" + "---:|" * len(columns))
for name, builds in families.items():
    row(f"`{name}`", (build[kind] for build in builds for kind in KINDS))
row("library", (build[kind] for build in library for kind in KINDS))
row("code and constants, KiB", totals(library))
row("`libravix_types_json`", (build[kind] for build in json for kind in KINDS))
row("its code and constants, KiB", totals(json))
sys.exit(status)
