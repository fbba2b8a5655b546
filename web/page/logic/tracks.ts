/** Reading tracks: float32 values [frame][object][axis], a gap being no number. */

export type Point = [number, number, number];

export interface Box {
  min: Point;
  max: Point;
}

export function emptyBox(): Box {
  return {
    min: [Infinity, Infinity, Infinity],
    max: [-Infinity, -Infinity, -Infinity],
  };
}

export function isEmpty(box: Box): boolean {
  return !(box.min[0] <= box.max[0]);
}

export function diagonal(box: Box): number {
  if (isEmpty(box)) return 0;
  return Math.hypot(box.max[0] - box.min[0], box.max[1] - box.min[1], box.max[2] - box.min[2]);
}

export function enclose(box: Box, x: number, y: number, z: number): void {
  if (!Number.isFinite(x + y + z)) return;
  const point = [x, y, z];
  for (let axis = 0; axis < 3; ++axis) {
    const value = point[axis];
    if (value < box.min[axis]) box.min[axis] = value;
    if (value > box.max[axis]) box.max[axis] = value;
  }
}

/** Whether a box holds a point, which is nowhere where a number is missing. */
export function isWithin({ min, max }: Box, [x, y, z]: Point): boolean {
  return (
    min[0] <= x && x <= max[0] && min[1] <= y && y <= max[1] && min[2] <= z && z <= max[2]
  );
}

/** The values of all objects in one frame, without a copy. */
export function frameValues(track: Float32Array, objects: number, frame: number): Float32Array {
  return track.subarray(frame * objects * 3, (frame + 1) * objects * 3);
}

/** The point of an object in a frame, or nothing where it has none. */
export function pointAt(
  track: Float32Array,
  objects: number,
  frame: number,
  object: number,
): Point | null {
  const at = (frame * objects + object) * 3;
  const x = track[at];
  const y = track[at + 1];
  const z = track[at + 2];
  if (x === undefined || y === undefined || z === undefined) return null;
  return Number.isNaN(x + y + z) ? null : [x, y, z];
}

const EVERYWHERE: Box = {
  min: [-Infinity, -Infinity, -Infinity],
  max: [Infinity, Infinity, Infinity],
};

/** The box around the points of one frame, but for those that are not `within` another. */
export function frameBox(
  track: Float32Array,
  objects: number,
  frame: number,
  within = EVERYWHERE,
): Box {
  const box = emptyBox();
  const values = frameValues(track, objects, frame);
  for (let at = 0; at + 2 < values.length; at += 3) {
    const point: Point = [values[at], values[at + 1], values[at + 2]];
    if (isWithin(within, point)) enclose(box, ...point);
  }
  return box;
}

/**
 * How large the data is in a moment: the largest diagonal of the boxes of a few frames spread over the take, of what is
 * `within` a box.
 */
export function momentExtent(
  track: Float32Array,
  objects: number,
  frames: number,
  within = EVERYWHERE,
): number {
  const samples = Math.min(frames, 8);
  let extent = 0;
  for (let sample = 0; sample < samples; ++sample) {
    const frame = Math.floor(((sample + 0.5) / samples) * frames);
    extent = Math.max(extent, diagonal(frameBox(track, objects, frame, within)));
  }
  return extent;
}

/** What a take is taken to be large that has no extent: one marker that stands still. */
const MILLIMETRES_OF_NOTHING = 1000;

/** The radius of balls that are seen and do not hide each other, in the unit of the extent. */
export function ballRadius(extent: number, objects: number, millimetresPerUnit: number): number {
  const share = Math.min(0.011, 0.3 / Math.sqrt(Math.max(objects, 1)));
  return (extent > 0 ? extent : MILLIMETRES_OF_NOTHING / millimetresPerUnit) * share;
}

/** Copies the values of a frame, and puts where there are none, or no finite ones, what is drawn nowhere. */
export function copyFrame(
  track: Float32Array,
  objects: number,
  frame: number,
  out: Float32Array,
): void {
  const values = frameValues(track, objects, frame);
  out.set(values);
  for (let at = 0; at < values.length; ++at) {
    if (!Number.isFinite(out[at])) out[at] = NOWHERE;
  }
}

/** A coordinate that stands for "no place": the graphics leave such points out. */
export const NOWHERE = 3e38;
