"""Edits of text files in lines and cells, for those who damage them. Line ends stay as they are."""


def lines_of(data):
    """The lines with their ends."""
    return data.splitlines(keepends=True) if b"\r\n" in data or b"\r" not in data else [data]


def end_of(line):
    return line[len(line.rstrip(b"\r\n")):]


def edited(data, index, change):
    """The file with line `index` as `change` makes it of its text; `change` may return None."""
    lines = lines_of(data)
    text = change(lines[index].rstrip(b"\r\n"))
    if text is None:
        return None
    lines[index] = text + end_of(lines[index])
    return b"".join(lines)


def cells_edited(data, index, change):
    """The same for the list of its cells, which `change` edits."""

    def change_text(text):
        cells = text.split(b"\t")
        return None if change(cells) is False else b"\t".join(cells)

    return edited(data, index, change_text)


def with_cell(column, text):
    def change(cells):
        if column >= len(cells):
            return False
        cells[column] = text(cells[column]) if callable(text) else text
        return None

    return change


def each_line(data, change, first=0):
    """The file with `change` done to the text of each line from `first` on."""
    lines = lines_of(data)
    for index in range(first, len(lines)):
        lines[index] = change(lines[index].rstrip(b"\r\n")) + end_of(lines[index])
    return b"".join(lines)


def swapped(frames):
    at = len(frames) // 2
    return frames[:at] + [frames[at + 1], frames[at]] + frames[at + 2:]


def doubled(frames):
    at = len(frames) // 2
    return frames[:at] + [frames[at]] + frames[at:]


def numbered_again(frames):
    at = len(frames) // 2
    number = int(frames[0].split(b"\t")[0])
    return frames[:at] + [b"%d\t%s" % (number + index, line.split(b"\t", 1)[1])
                          for index, line in enumerate(frames[at:])]


def sorted_as_text(frames):
    return sorted(frames, key=lambda line: line.split(b"\t")[0])


def plus(count):
    return lambda cell: b"%d" % (int(cell) + count)
