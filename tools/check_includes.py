#!/usr/bin/env python3
"""Checks the includes of source files against the tables of who may use whom.

Usage: check_includes.py PAGE < LIST_OF_FILES

Reads file names, relative to the current directory, one a line. Prints every include that the
tables do not allow, and every row and name of theirs that none of the files fits; exits with 1 if
there is one, or if nothing was there to check.

The tables are those in PAGE, in Markdown, whose first column is "Folder" and whose last is "May
use". The first row whose folder a file is in is its row; a file in none is an error. Both columns
hold names between backticks, with commas between them:

  a/b        the files in that folder, and not those below it
  a/**       the files in that folder and in all below it; ** is all files
  a/b/c.h    that file: the last part has a full stop
  <c/d.h>    that header of another library

* stands for any text without a slash, ** for any text. The standard library and headers of the
file's own folder are always allowed: "the standard library" stands where nothing is added to that.
What follows "; not " is taken away again.

A source file with a header of the same name beside it has to include that first: so the header is
compiled without any other before it.
"""

import os
import re
import sys

# The headers of the C++20 standard library, C's in their C++ form alone.
STANDARD_HEADERS = frozenset("""
algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono
cinttypes climits clocale cmath codecvt compare complex concepts condition_variable coroutine
csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque
exception execution filesystem forward_list fstream functional future initializer_list iomanip
ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex
new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore
set shared_mutex span sstream stack stdexcept stop_token streambuf string string_view strstream
syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set
utility valarray variant vector version
""".split())

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.MULTILINE)


def glob_to_regex(pattern):
    """`*` stays within a folder, `**` does not."""
    parts = (".*" if part == "**" else "[^/]*" if part == "*" else re.escape(part)
             for part in re.split(r"(\*\*|\*)", pattern))
    return re.compile("".join(parts) + r"\Z")


def files_named(name):
    """What matches the files, or the headers of other libraries, that a table has this name for."""
    is_folder = not name.startswith("<") and not name.endswith("**")
    return glob_to_regex(name + "/*" if is_folder and "." not in name.rpartition("/")[2] else name)


class Rule:
    """One row of a table."""

    def __init__(self, place, folder, may_use):
        allowed, _, refused = may_use.partition("; not ")
        self.place = place
        self.files = names_of(place, folder)
        self.allowed = {} if allowed == "the standard library" else names_of(place, allowed)
        self.refused = names_of(place, refused) if refused else {}

    def holds_for(self, file):
        return matches(self.files, file)

    def allows(self, file, quote, header):
        if quote == "<":
            return header in STANDARD_HEADERS or matches(self.allowed, f"<{header}>")
        if matches(self.refused, header):
            return False
        return folder_of(header) == folder_of(file) or matches(self.allowed, header)


def names_of(place, cell):
    """The names in a cell, each as what it matches."""
    if not re.fullmatch("`[^`]+`(, `[^`]+`)*", cell):
        sys.exit(f"{place}: not a list of names between backticks: {cell}")
    return {name: files_named(name) for name in re.findall("`([^`]+)`", cell)}


def matches(names, text):
    return any(pattern.match(text) for pattern in names.values())


def folder_of(name):
    return name.rpartition("/")[0]


def read_rules(page_name, page):
    """The rows of the tables of who may use whom, in their order."""
    rules = []
    in_table = False
    for number, line in enumerate(page.splitlines(), 1):
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        if not line.startswith("|"):
            in_table = False
        elif (cells[0], cells[-1]) == ("Folder", "May use"):
            in_table = True
        elif in_table and set(cells[0]) != {"-"}:
            rules.append(Rule(f"{page_name}:{number}", cells[0], cells[-1]))
    return rules


def rule_of(file, rules):
    return next((rule for rule in rules if rule.holds_for(file)), None)


def findings(file, text, rules):
    """One message for each include of the file that its rule does not allow."""
    rule = rule_of(file, rules)
    if rule is None:
        return [f"{file}: no row says what this file may include"]
    return [f"{file}:{text.count(chr(10), 0, match.start(1)) + 1}: may not include {match[2]}"
            for match in INCLUDE.finditer(text)
            if not rule.allows(file, match[1], match[2])]


def stale_findings(files, rules):
    """One message for each row, and each name in one, that none of the files fits."""
    used = {rule_of(file, rules) for file in files}
    messages = [f"{rule.place}: no file has this row" for rule in rules if rule not in used]
    for rule in rules:
        names = {**rule.files, **rule.allowed, **rule.refused}
        messages += [f"{rule.place}: there is no file in {name}" for name, pattern in names.items()
                     if name[0] != "<" and not any(map(pattern.match, files))]
    return messages


def own_header_finding(file, text):
    """The message for a source file that does not include its own header first, in a list."""
    stem, dot, _ = file.rpartition(".cpp")
    header = stem + ".h"
    first = INCLUDE.search(text)
    if not dot or not os.path.exists(header) or (first and first[2] == header):
        return []
    line = text.count("\n", 0, first.start(1)) + 1 if first else 1
    return [f"{file}:{line}: has to include {header} first"]


def main(page_name):
    with open(page_name, encoding="utf-8") as page:
        rules = read_rules(page_name, page.read())
    files = sys.stdin.read().splitlines()
    includes_seen = 0
    messages = stale_findings(files, rules)
    for file in files:
        with open(file, encoding="utf-8") as source:
            text = source.read()
        includes_seen += len(INCLUDE.findall(text))
        messages += findings(file, text, rules) + own_header_finding(file, text)
    if includes_seen == 0:
        messages.append("check_includes: there was no include to check")
    print("\n".join(messages), end="\n" if messages else "")
    return 1 if messages else 0


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1]))
