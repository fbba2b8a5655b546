/** Which names can be shown without one covering another: greedily, the more important first. */

export interface Label {
  key: number;
  x: number;
  y: number;
  width: number;
  height: number;
}

const CELL = 64;

/** Boxes that are taken, found again by the cells of a coarse grid that they touch. */
class TakenBoxes {
  private readonly cells = new Map<number, Label[]>();

  private static eachCell(label: Label, visit: (cell: number) => boolean): boolean {
    const right = Math.floor((label.x + label.width) / CELL);
    const bottom = Math.floor((label.y + label.height) / CELL);
    for (let row = Math.floor(label.y / CELL); row <= bottom; ++row) {
      for (let column = Math.floor(label.x / CELL); column <= right; ++column) {
        if (visit(row * 4096 + column)) return true;
      }
    }
    return false;
  }

  overlaps(label: Label): boolean {
    return TakenBoxes.eachCell(
      label,
      (cell) => this.cells.get(cell)?.some((other) => overlap(label, other)) ?? false,
    );
  }

  add(label: Label): void {
    TakenBoxes.eachCell(label, (cell) => {
      const there = this.cells.get(cell);
      if (there) there.push(label);
      else this.cells.set(cell, [label]);
      return false;
    });
  }
}

function overlap(one: Label, other: Label): boolean {
  return (
    one.x < other.x + other.width &&
    other.x < one.x + one.width &&
    one.y < other.y + other.height &&
    other.y < one.y + one.height
  );
}

/** Those of the labels, given by falling importance, that are shown; at most `most`. */
export function placeLabels(candidates: Iterable<Label>, most: number): Label[] {
  const taken = new TakenBoxes();
  const placed: Label[] = [];
  for (const label of candidates) {
    if (placed.length >= most) break;
    if (taken.overlaps(label)) continue;
    taken.add(label);
    placed.push(label);
  }
  return placed;
}
