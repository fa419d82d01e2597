# Reads ravix_types_enums.h and writes a C program that prints the page of enumeration tables: the numbers as the
# compiler has them, the texts as the library prints them, the meanings as the header tells them.

function quoted(text) {
  gsub(/\\/, "\\\\", text)
  gsub(/"/, "\\\"", text)
  gsub(/%/, "%%", text)
  gsub(/\|/, "\\\\|", text)
  return text
}

# Begins a table, with the name of a set or an enumeration as its heading: then its comment's first sentence. Headings of
# whole enumerations are links' targets: RAVIX_WLAN_MODE is where `RAVIX_WLAN_MODE_...` leads. It is what the names of the
# rows have in common, so the table is written when it has ended.
function heading(text) {
  finish()
  formatter = match(comment, /ravix_str_[a-z0-9_]+/) ? substr(comment, RSTART, RLENGTH) : ""
  if (text ~ /^ravix_/) {
    text = comment
    sub(/^.*\/\*\* */, "", text)
    sub(/(\. |\.$| *\*\/).*/, "", text)
  }
  gsub(/ \* +/, " ", text)
  title_of_table = text
}

function finish() {
  if (rows != "") {
    sub(/_[^_]*$/, "", common)
    print "  printf(\"\\n## " quoted(title_of_table) " {#" common "}\\n\\n| Value | Text | Constant | Meaning |\\n|---|---|---|---|\\n\");"
    printf "%s", rows
  }
  rows = common = ""
}

function row(name, meaning,    number, value) {
  sub(/.*\/\*\*< */, "", meaning)
  sub(/ *\*\/.*/, "", meaning)
  number = flags ? "0x%llX" : "%lld"
  if (common == "")
    common = name
  while (index(name, common) != 1)
    common = substr(common, 1, length(common) - 1)
  value = formatter == "" ? "\"-\"" : formatter "(" name ")"
  rows = rows "  printf(\"| " number " | `%s` | @ref " name " | " quoted(meaning) " |\\n\", (long long)" name ", " value ");\n"
}

BEGIN {
  print "#include <ravix_types_enums.h>\n#include <ravix_types_str_convert.h>\n#include <stdio.h>\n\nint main(void) {"
  print "  printf(\"# Values and their texts {#enumerations}\\n\\n[TOC]\\n\\nAs this version of the library has them. Values without a text are only numbers in logs.\\n\");"
}
/^\/\*\*/ { comment = "" }
/^(\/\*\*| \*)/ {
  comment = comment " " $0
  if ($0 ~ /@name/) {
    title = $0
    sub(/.*@name */, "", title)
  }
  if ($0 ~ /@\{/ && title != "") {
    flags = 1
    heading(title)
    title = ""
  }
}
/^enum [a-z0-9_]+ \{/ {
  flags = 0
  heading($2)
}
pending != "" && /^ +RAVIX_[A-Z0-9_]+ = |^};/ { # told by its name alone
  row(pending, "")
  pending = ""
}
/^ +RAVIX_[A-Z0-9_]+ = / { pending = $1; text = $0 }
/^#define RAVIX_[A-Z0-9_]+ / { pending = $2; text = $0 }
pending != "" && !/^ +RAVIX_[A-Z0-9_]+ = / && !/^#define/ { text = text " " $0 }
pending != "" && /\*\// {
  row(pending, text)
  pending = ""
}
END {
  finish()
  print "  return 0;\n}"
}
