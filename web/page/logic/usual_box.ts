import { emptyBox, enclose, isWithin, type Box, type Point } from "./tracks";

/** Where a take is seen, but for the few places that are so far off that they are none: of a value that is wrong. */

const FRAMES = 64;
const OBJECTS = 64;
const LOW = 0.1;
const HIGH = 0.9;
/** How far from most places others may be, by the length that most places take up. */
const REACH = 8;

function sampled(count: number, most: number): number[] {
  const taken = Math.min(count, most);
  return Array.from({ length: taken }, (_, at) => Math.floor(((at + 0.5) / taken) * count));
}

function sortedAxis(track: Float32Array, objects: number, frames: number, axis: number): Float32Array {
  const chosen = sampled(objects, OBJECTS);
  const values = sampled(frames, FRAMES).flatMap((frame) =>
    chosen.map((object) => track[(frame * objects + object) * 3 + axis]),
  );
  return Float32Array.from(values.filter(Number.isFinite)).sort();
}

function reachable(track: Float32Array, objects: number, frames: number): Box {
  const most = [0, 1, 2].map((axis) => {
    const values = sortedAxis(track, objects, frames, axis);
    const last = values.length - 1;
    return [values[Math.ceil(LOW * last)] ?? 0, values[Math.floor(HIGH * last)] ?? 0];
  });
  const length = Math.max(...most.map(([low, high]) => high - low));
  const reach = length > 0 ? REACH * length : Infinity;
  return {
    min: most.map(([low]) => low - reach) as Point,
    max: most.map(([, high]) => high + reach) as Point,
  };
}

/** @param whole the box around all places of the take, which is the answer where none is far off */
export function usualBox(track: Float32Array, objects: number, frames: number, whole: Box): Box {
  const reach = reachable(track, objects, frames);
  if (isWithin(reach, whole.min) && isWithin(reach, whole.max)) return whole;
  const box = emptyBox();
  for (let at = 0; at + 2 < track.length; at += 3) {
    const point: Point = [track[at], track[at + 1], track[at + 2]];
    if (isWithin(reach, point)) enclose(box, ...point);
  }
  return box;
}

/** Whether a moment shows what the take is: most of its objects, and these not in a single place. */
export function isTelling(drawn: number, objects: number, extent: number, wholeExtent: number): boolean {
  return drawn * 2 >= objects && extent > wholeExtent / 1000;
}
