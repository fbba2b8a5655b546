#!/usr/bin/env python3
"""Checks the includes of source files against a table of who may include whom.

Usage: check_includes.py RULES < LIST_OF_FILES

Reads file names, relative to the current directory, one a line. Prints every include that the
table does not allow and exits with 1 if there is one, or if nothing was there to check.
The form of the table is described at its top.

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


class Rule:
    """One line of the table."""

    def __init__(self, line):
        files, what = line.split(":", 1)
        self.files = glob_to_regex(files)
        self.allowed = [glob_to_regex(word) for word in what.split() if word[0] != "!"]
        self.refused = [glob_to_regex(word[1:]) for word in what.split() if word[0] == "!"]

    def allows(self, file, quote, header):
        if quote == "<":
            return header in STANDARD_HEADERS or matches(self.allowed, f"<{header}>")
        if matches(self.refused, header):
            return False
        return folder_of(header) == folder_of(file) or matches(self.allowed, header)


def matches(patterns, text):
    return any(pattern.match(text) for pattern in patterns)


def folder_of(name):
    return name.rpartition("/")[0]


def read_rules(text):
    lines = (line.split("#", 1)[0].strip() for line in text.splitlines())
    return [Rule(line) for line in lines if line]


def findings(file, text, rules):
    """One message for each include of the file that its rule does not allow."""
    rule = next((rule for rule in rules if rule.files.match(file)), None)
    if rule is None:
        return [f"{file}: no rule says what this file may include"]
    return [f"{file}:{text.count(chr(10), 0, match.start(1)) + 1}: may not include {match[2]}"
            for match in INCLUDE.finditer(text)
            if not rule.allows(file, match[1], match[2])]


def own_header_finding(file, text):
    """The message for a source file that does not include its own header first, in a list."""
    stem, dot, _ = file.rpartition(".cpp")
    header = stem + ".h"
    first = INCLUDE.search(text)
    if not dot or not os.path.exists(header) or (first and first[2] == header):
        return []
    line = text.count("\n", 0, first.start(1)) + 1 if first else 1
    return [f"{file}:{line}: has to include {header} first"]


def main(rules_name):
    with open(rules_name, encoding="utf-8") as rules_file:
        rules = read_rules(rules_file.read())
    includes_seen = 0
    messages = []
    for file in sys.stdin.read().splitlines():
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
