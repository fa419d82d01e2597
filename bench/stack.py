"""The deepest stack of each exported function, from the call graphs that g++ -fcallgraph-info=su writes.

usage: stack.py EXPORTED-NAMES LIMIT CALL-GRAPH...

A call through a pointer counts as the deepest formatter where a printer makes it, and nothing elsewhere: there it is the
log stream's or the caller's own function. A recursion counts once.
"""

import re
import sys

NODE_SIZE = re.compile(r'node: \{ title: "([^"]+)" label: "[^"]*\\n(\d+) bytes \(([a-z,]+)\)')
EDGE = re.compile(r'edge: \{ sourcename: "([^"]+)" targetname: "([^"]+)"')

exported = {line.strip() for line in open(sys.argv[1], encoding="utf-8")}
limit = int(sys.argv[2])
own, calls = {}, {}
for path in sys.argv[3:]:
    for line in open(path, encoding="utf-8"):
        if match := NODE_SIZE.search(line):
            own[match[1]] = max(own.get(match[1], 0), int(match[2]))
        elif (match := EDGE.search(line)):
            calls.setdefault(match[1], set()).add(match[2])

formatters = {name for name in exported if name.startswith("ravix_str_")}
calls = {
    name: called - {"__indirect_call"} | (formatters if "__indirect_call" in called and "printer" in name else set())
    for name, called in calls.items()
}
depths = {}


def depth(name, path=()):
    """Bytes below and including a function, and the way to the deepest."""
    if name in path:
        return 0, ()
    if name not in depths:
        below = max((depth(each, path + (name,)) for each in calls.get(name, ())), default=(0, ()))
        depths[name] = (own.get(name, 0) + below[0], (name,) + below[1])
    return depths[name]


assert exported & own.keys(), "the call graphs know none of the exported functions"
deepest = sorted(((depth(name)[0], name) for name in exported if name in own), reverse=True)
for size, name in deepest[:5]:
    print(f"{size:6} bytes  {name}")
size, name = deepest[0]
print("deepest: " + " > ".join(f"{each} ({own.get(each, 0)})" for each in depth(name)[1]))
print(f"{len(deepest)} exported functions, the deepest stack is {size} bytes, at most {limit - 1} are allowed")
sys.exit(size >= limit)
