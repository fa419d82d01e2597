"""Finds messages that lie in the way of success, in what `objdump -dr` tells about the library's objects.

usage: objdump -dr OBJECT... | failure_paths.py KNOWN

Fails if there are more than KNOWN of them.

A message is out of the way if it stands in cold code, behind its function's last return, or if it is reached by jumps
alone: going back from the call of the log function, one comes to a return or an unconditional jump before any test.
"""

import re
import sys

SECTION = re.compile(r"^Disassembly of section (\S+):", re.M)
FUNCTION = re.compile(r"^[0-9a-f]+ <(.+)>:$")
LOG_CALL = re.compile(r"R_\S+\s+_ZN3zel5ravix4line\d+log_(?:error|invalid_pointer|assertion)E")
RETURN = re.compile(r"\tret\b")
JUMP = re.compile(r"\t(?:notrack )?jmp\b")
TEST = re.compile(r"\tj(?!mp)")

text = re.sub(r"\n\t+[0-9a-f]+: (R_)", r" \1", sys.stdin.read())  # relocations to the instructions that they belong to
messages, in_the_way, cold, name = 0, [], False, ""
suspects, behind_test = [], False
for line in text.splitlines():
    if match := SECTION.match(line):
        cold = match[1].startswith(".text.unlikely")
    elif match := FUNCTION.match(line):
        name, suspects, behind_test = match[1], [], False
    elif LOG_CALL.search(line):
        messages += 1
        if behind_test and not cold:
            suspects.append(name)
    elif RETURN.search(line):
        in_the_way += suspects
        suspects, behind_test = [], False
    elif JUMP.search(line):
        behind_test = False
    elif TEST.search(line):
        behind_test = True

for each in in_the_way:
    print(f"in the way of success: a message of {each}")
print(f"{messages - len(in_the_way)} of {messages} messages are out of the way")
sys.exit(not messages or len(in_the_way) > int(sys.argv[1]))
