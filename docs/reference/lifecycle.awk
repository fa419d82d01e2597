# Doxygen's input filter: gives the operations that every record has their documentation, which the headers say once for
# all of them and not above each prototype. A prototype with a comment of its own keeps it.
#
# Lines keep their numbers, so that warnings point into the headers.

BEGIN {
  # The tables that there are to link to.
  while ((getline line < "build-docs/pages/enumerations.md") > 0)
    if (match(line, /\{#RAVIX_[A-Z0-9_]+\}/))
      tables[substr(line, RSTART + 2, RLENGTH - 3)]
  more = " @see @ref lifecycle"
  note["_create"] = "Creates a record in its empty state. @return The record, to be released with its free function; null when memory is exhausted."
  note["_create_table"] = "Creates a table of empty elements, which count. @param COUNT Number of elements. @return The table, to be released with its free function; null when memory is exhausted."
  note["_clone"] = "Creates a deep copy. @param old_obj What to copy. @return The copy, to be released with its free function; null when `old_obj` is null or cannot be copied, or when memory is exhausted."
  note["_copy"] = "Makes a record a deep copy of another. @param src What to copy. @param[in,out] dest An initialised record; what it owns is released. Empty after a failure, but as it was after -22 for a null argument. @return 0; -22 for an invalid argument; -12 when memory is exhausted; or the result of the nested copy that failed."
  note["_clear"] = "Releases what a record or table owns and gives it its empty state. @param[in,out] OBJECT May be null."
  note["_free"] = "Clears and releases what a create or clone function returned. @param OBJECT May be null."
  note["_compare"] = "Orders two records by their fields, or two tables by their counts and elements. @param a Null sorts before any record. @param b As `a`. @return Negative, 0 or positive; only the sign counts."
  note["_init"] = "Gives a table a number of empty elements in place of those that it has. @param[in,out] OBJECT An initialised table. @param COUNT Number of elements; 0 empties it. @return 0; -22 when it is null; -12 when memory is exhausted: the table is empty then."
  note["_add_entry"] = "Appends a deep copy of an entry. @param[in,out] table The table; unchanged after a failure. @param entry What to append; may be an element of the table. @return 0; -22 for a null argument or when the count is at its end; -12 when memory is exhausted; or the result of the entry's copy."
  note["_contains_entry"] = "Tells whether a table has an element that equals an entry. @param table The table. @param entry What to look for. @return True if so; false also for a null argument, which is logged."
}

function documentation(prototype,    name, operation, parameter, parameters, count, k, text) {
  if (prototype ~ /^RAVIX_API void print_diff\(/)
    return "Prints a value, or what differs in it from a reference. @param os Where to. @param value What to print. @param reference What to compare with; null: everything is printed. @param name Label; null: none. @param indent Blanks before each line. @param newline Whether the last line ends with a line break."
  if (prototype ~ /operator<</) {
    parameter = prototype
    sub(/\).*/, "", parameter)
    sub(/.*&/, "", parameter)
    return "Prints without a line break at the end. @param os Where to. @param " parameter " What to print. @return `os`."
  }
  match(prototype, /[a-z0-9_]+\(/)
  name = substr(prototype, RSTART, RLENGTH - 1)
  if (!match(name, /_(create|clone|copy|clear|free|compare|init|add_entry|contains_entry)$/))
    return ""
  operation = substr(name, RSTART)
  count = split(prototype, parameters, ",")
  for (k = 1; k <= count; ++k) {
    sub(/\);.*/, "", parameters[k])
    sub(/.*[*( ]/, "", parameters[k])
  }
  if (operation == "_create" && parameters[1] != "void")
    operation = "_create_table"
  text = explained(note[operation]) more
  gsub(/OBJECT/, parameters[1], text)
  gsub(/COUNT/, parameters[count], text)
  return text
}

# What the line of a formatter or parser leaves out, as it is the same for all of them.
function addition(prototype, comment,    parameter) {
  if (comment ~ /@param|@copydoc/)
    return ""
  if (prototype ~ /const char \*ravix_str_/) {
    parameter = prototype
    sub(/\);.*/, "", parameter)
    sub(/.*[* ]/, "", parameter)
    return "@param " parameter " The value. @return Its text. Not to be released. @see @ref formatters"
  }
  if (prototype ~ /_from_str\(/)
    return "@param str_param The text. @param[out] output Receives the value. @return True if it has been set. @see @ref parsers"
  return ""
}

# The errno's name of a result, and links from `RAVIX_WLAN_MODE_...` and its like to the table of the values.
function explained(text,    before, number, name) {
  before = ""
  while (match(text, /(^|[ (])-(2|12|22)[,;:.) ]/)) {
    number = substr(text, RSTART, RLENGTH - 1)
    sub(/^[ (]/, "", number)
    name = number == "-2" ? "ENOENT" : number == "-12" ? "ENOMEM" : "EINVAL"
    name = substr(text, RSTART, 1) == "(" ? ", " name : " (" name ")"
    before = before substr(text, 1, RSTART + RLENGTH - 2)
    text = substr(text, RSTART + RLENGTH - 1)
    before = before (text ~ /^ \(-E/ ? "" : name)
  }
  text = before text
  while (match(text, /`RAVIX_[A-Z0-9_]+_\.\.\.`/)) {
    name = substr(text, RSTART + 1, RLENGTH - 6)
    before = name in tables ? "[" name "_...](@ref " name ")" : "<code>" name "_...</code>"
    text = substr(text, 1, RSTART - 1) before substr(text, RSTART + RLENGTH)
  }
  return text
}

{
  lines[NR] = $0
}

END {
  comment = ""
  for (i = 1; i <= NR; ++i) {
    if (lines[i] ~ /^RAVIX_API/) {
      prototype = ""
      for (j = i; j <= NR; ++j) {
        prototype = prototype lines[j]
        if (lines[j] ~ /;/)
          break
      }
      text = comment == "" ? documentation(prototype) : addition(prototype, comment)
      if (text != "")
        printf "/** %s */ ", text
      for (; i < j; ++i)
        print lines[i]
      print lines[j]
      comment = ""
      continue
    }
    if (match(lines[i], /\/\*\*.*/))
      lines[i] = substr(lines[i], 1, RSTART - 1) explained(substr(lines[i], RSTART))
    else if (lines[i] ~ /^ *\*/)
      lines[i] = explained(lines[i])
    # A constant becomes a link.
    gsub(/empty: RAVIX_/, "empty: #RAVIX_", lines[i])
    # Names of parameters say all that is known of them here.
    sub(/^ +RAVIX_PARAM_ID_[A-Z0-9_]+ = [0-9]+,?$/, "& /**< The parameter of this name. */", lines[i])
    print lines[i]
    if (lines[i] ~ /^\/\*\*/)
      comment = ""
    if (lines[i] ~ /@\{/ || lines[i] ~ /^$/)
      comment = ""
    else
      comment = comment lines[i]
    if (lines[i] !~ /^\/\*\*|^ \*/)
      comment = ""
  }
}
