/** The columns of a plot: where frames lie, and a curve for each of three axes, nothing where there is a gap. */
export type CurveColumns = [number[], ...(number | null)[][]];

/** @param values frames by three numbers, no number in gaps */
export function curveColumns(values: Float64Array): CurveColumns {
  const frames = Math.floor(values.length / 3);
  const columns: CurveColumns = [new Array<number>(frames), [], [], []];
  for (let frame = 0; frame < frames; ++frame) {
    columns[0][frame] = frame + 0.5;
    for (let axis = 0; axis < 3; ++axis) {
      const value = values[frame * 3 + axis];
      columns[axis + 1][frame] = Number.isFinite(value) ? value : null;
    }
  }
  return columns;
}

/** The same, with places and values in other units. */
export function scaledColumns(
  [places, ...values]: CurveColumns,
  placeOf: (place: number) => number,
  factor: number,
): CurveColumns {
  const scaled = values.map((column) =>
    factor === 1 ? column : column.map((value) => (value === null ? null : value * factor)),
  );
  return [places.map(placeOf), ...scaled];
}

/** What the three curves are at a frame. */
export function valuesAt(columns: CurveColumns, frame: number): (number | null)[] {
  return [1, 2, 3].map((column) => columns[column][frame] ?? null);
}
