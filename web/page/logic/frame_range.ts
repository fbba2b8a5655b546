/** The range between in and out points, in the numbers that a file gives its frames. */

export interface Points {
  readonly inPoint: number | null;
  readonly outPoint: number | null;
}

/** Nothing where there are no points, or none of the frames lies between them. */
export function rangeOf(
  { inPoint, outPoint }: Points,
  frames: number,
  firstFrame: number,
): [number, number] | undefined {
  if (frames < 1 || (inPoint === null && outPoint === null)) return undefined;
  const last = frames - 1;
  if ((inPoint ?? 0) > last || (outPoint ?? last) < 0) return undefined;
  const from = Math.max(inPoint ?? 0, 0);
  const to = Math.max(from, Math.min(outPoint ?? last, last));
  return [from + firstFrame, to + firstFrame];
}
