/** The lines of a grid on the floor, around a middle, with a step in meters. */

export interface FloorLines {
  /** Two points of three coordinates a line: the thin ones, then each fifth. */
  thin: number[];
  thick: number[];
}

const HALF_LINES = 20;

function isFifth(index: number): boolean {
  return index % 5 === 0;
}

export function floorLines(middleX: number, middleZ: number, step: number): FloorLines {
  const lines: FloorLines = { thin: [], thick: [] };
  const columnIndex = Math.round(middleX / step);
  const rowIndex = Math.round(middleZ / step);
  const reach = HALF_LINES * step;
  const x = columnIndex * step;
  const z = rowIndex * step;
  for (let index = -HALF_LINES; index <= HALF_LINES; ++index) {
    const across = (columnIndex + index) * step;
    const along = (rowIndex + index) * step;
    const columns = isFifth(columnIndex + index) ? lines.thick : lines.thin;
    columns.push(across, 0, z - reach, across, 0, z + reach);
    const rows = isFifth(rowIndex + index) ? lines.thick : lines.thin;
    rows.push(x - reach, 0, along, x + reach, 0, along);
  }
  return lines;
}
