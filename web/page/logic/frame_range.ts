import type { TakeInfo } from "../../worker/protocol";

/** Frames by the numbers that a file gives them, and the range between in and out points in these. */

export interface Points {
  readonly inPoint: number | null;
  readonly outPoint: number | null;
}

/** How the frames of a take are numbered. */
export type Numbering = Pick<TakeInfo, "firstFrame" | "frameStep">;

export function numberOf({ firstFrame, frameStep = 1 }: Numbering, frame: number): number {
  return firstFrame + frame * frameStep;
}

/** The frame of that number, or the nearest one. */
export function frameOf({ firstFrame, frameStep = 1 }: Numbering, number: number): number {
  return Math.round((number - firstFrame) / frameStep);
}

/** Nothing where there are no points, or none of the frames lies between them. */
export function rangeOf(
  { inPoint, outPoint }: Points,
  info: Numbering & Pick<TakeInfo, "frames">,
): [number, number] | undefined {
  if (info.frames < 1 || (inPoint === null && outPoint === null)) return undefined;
  const last = info.frames - 1;
  if ((inPoint ?? 0) > last || (outPoint ?? last) < 0) return undefined;
  const from = Math.max(inPoint ?? 0, 0);
  const to = Math.max(from, Math.min(outPoint ?? last, last));
  return [numberOf(info, from), numberOf(info, to)];
}
