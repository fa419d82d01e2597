"""Puts standard input into docs/performance.md, in place of what stands between <!-- NAME --> and <!-- end of NAME -->.

usage: paste.py NAME
"""

import re
import sys

PAGE = "docs/performance.md"
page, name = open(PAGE, encoding="utf-8").read(), re.escape(sys.argv[1])
between = re.compile(rf"(<!-- {name} -->\n).*?(<!-- end of {name} -->\n)", re.S)
assert between.search(page), f"{PAGE} has no place for {sys.argv[1]}"
content = sys.stdin.read()
with open(PAGE, "w", encoding="utf-8") as file:
    file.write(between.sub(lambda match: match[1] + "\n" + content + "\n" + match[2], page))
