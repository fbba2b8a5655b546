import { NOWHERE } from "./tracks";

/** Where points of the scene come to lie on the screen. */

/** Three numbers a point: x and y in pixels from the top left, and its depth; behind the eye: no numbers. */
export type ScreenPlaces = Float32Array;

export interface Screen {
  width: number;
  height: number;
}

/**
 * Projects `count` points by a matrix of 16 numbers, column by column, that leads to clip space.
 * What is NOWHERE, behind the eye or far off the screen becomes no numbers.
 */
export function projectAll(
  points: Float32Array,
  count: number,
  matrix: ArrayLike<number>,
  screen: Screen,
  places: ScreenPlaces,
): void {
  const m = matrix;
  for (let at = 0; at < count * 3; at += 3) {
    const x = points[at];
    const y = points[at + 1];
    const z = points[at + 2];
    const w = m[3] * x + m[7] * y + m[11] * z + m[15];
    const unseen = x === Math.fround(NOWHERE) || !(w > 0);
    places[at] = unseen
      ? NaN
      : ((m[0] * x + m[4] * y + m[8] * z + m[12]) / w / 2 + 0.5) * screen.width;
    places[at + 1] = (0.5 - (m[1] * x + m[5] * y + m[9] * z + m[13]) / w / 2) * screen.height;
    places[at + 2] = (m[2] * x + m[6] * y + m[10] * z + m[14]) / w;
  }
}

export function isOnScreen(places: ScreenPlaces, index: number, screen: Screen): boolean {
  const x = places[index * 3];
  const y = places[index * 3 + 1];
  const depth = places[index * 3 + 2];
  return x >= 0 && y >= 0 && x <= screen.width && y <= screen.height && depth >= -1 && depth <= 1;
}
