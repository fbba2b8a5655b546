"""What the makers of damaged files share: edits, and writing the files with a list of them."""

import pathlib
import sys

# An edit takes the lines of a file, without their ends, changes them, and returns the index of
# the line in which the damage shows.


def find(lines, start):
    return next(index for index, line in enumerate(lines) if line.startswith(start))


def change(start, line):
    """The line that starts with `start` becomes `line`."""

    def edit(lines):
        index = find(lines, start)
        lines[index] = line
        return index

    return edit


def insert_before(start, *new):
    def edit(lines):
        index = find(lines, start)
        lines[index:index] = new
        return index

    return edit


def remove(start, shows_at, count=1):
    """Takes out `count` lines; what is missing shows at the line that starts with `shows_at`."""

    def edit(lines):
        index = find(lines, start)
        del lines[index:index + count]
        return find(lines, shows_at)

    return edit


def add_at_end(*new):
    def edit(lines):
        lines.extend(new)
        return len(lines) - 1

    return edit


def both(first, second):
    """Two edits that make one damage, which shows where the second does."""

    def edit(lines):
        first(lines)
        return second(lines)

    return edit


def of_bytes(changed):
    """The bytes of the whole file become what `changed` makes of them."""

    def edit(lines):
        return 0

    edit.of_bytes = changed
    return edit


empty = of_bytes(lambda text: b"")
end_lines_with_returns = of_bytes(lambda text: text.replace(b"\r\n", b"\r"))


def encode(encoding):
    return of_bytes(lambda text: text.decode("ascii").encode(encoding))


def cut_last_line_end(lines):
    """Where `write` leaves the line end out."""
    return len(lines) - 1


def write(folder, source, extension, damages, list_name):
    """Writes every damage of the lines of `source` as a file of its own, and a list of them."""
    folder.mkdir(parents=True, exist_ok=True)
    source_lines = source.read_bytes().split(b"\r\n")[:-1]
    listed = []
    for name, code, edit in damages:
        lines = list(source_lines)
        index = edit(lines)
        end = b"" if edit is cut_last_line_end else b"\r\n"
        text = b"\r\n".join(lines) + end
        if hasattr(edit, "of_bytes"):
            text = edit.of_bytes(text)
        (folder / (name + extension)).write_bytes(text)
        listed.append(f"{name}{extension}\t{index + 1}\t{code}\n")
    (folder / list_name).write_text("".join(listed))


def folder_argument(usage):
    if len(sys.argv) != 2:
        sys.exit(usage)
    return pathlib.Path(sys.argv[1])
