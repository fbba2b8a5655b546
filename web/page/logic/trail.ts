import { pointAt } from "./tracks";

/** Trails: where objects were and will be around a frame, as pieces of lines that fade away. */

export interface TrailBuffers {
  /** Two points of three coordinates a piece. */
  points: Float32Array;
  /** How clearly it is seen, from 0 to 1, at each of these points. */
  strengths: Float32Array;
}

export const TRAIL_PIECES = 48;
export const MOST_TRAILS = 400;

export function trailBuffers(objects: number): TrailBuffers {
  const pieces = Math.min(objects, MOST_TRAILS) * TRAIL_PIECES;
  return { points: new Float32Array(pieces * 6), strengths: new Float32Array(pieces * 2) };
}

/** The frames that pieces of a trail end at: from `reach` frames before to as many after. */
export function trailFrames(frame: number, reach: number, frames: number): number[] {
  const found: number[] = [];
  for (let piece = 0; piece <= TRAIL_PIECES; ++piece) {
    const at = frame + Math.round((piece / TRAIL_PIECES) * 2 * reach) - reach;
    if (at >= 0 && at < frames && at !== found[found.length - 1]) found.push(at);
  }
  return found;
}

function strengthAt(at: number, frame: number, reach: number): number {
  const away = 1 - Math.abs(at - frame) / Math.max(reach, 1);
  return at <= frame ? away : away * 0.35;
}

/** Fills the buffers for some objects; answers how many points there are. No piece crosses a gap's ends. */
export function fillTrails(
  track: Float32Array,
  objects: number,
  chosen: readonly number[],
  frames: readonly number[],
  frame: number,
  reach: number,
  buffers: TrailBuffers,
): number {
  let count = 0;
  for (const object of chosen.slice(0, MOST_TRAILS)) {
    let before = frames.length > 0 ? pointAt(track, objects, frames[0], object) : null;
    for (let index = 1; index < frames.length; ++index) {
      const point = pointAt(track, objects, frames[index], object);
      if (before && point) {
        buffers.points.set(before, count * 3);
        buffers.points.set(point, count * 3 + 3);
        buffers.strengths[count] = strengthAt(frames[index - 1], frame, reach);
        buffers.strengths[count + 1] = strengthAt(frames[index], frame, reach);
        count += 2;
      }
      before = point;
    }
  }
  return count;
}
