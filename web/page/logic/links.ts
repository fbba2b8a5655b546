import { NOWHERE } from "./tracks";

/** Lines from joints to those that they hang from. */

export function linkedObjects(parents: readonly number[]): number[] {
  return parents.flatMap((parent, object) => (parent >= 0 && parent !== object ? [object] : []));
}

/** Writes two points for each linked object; the same one twice where one of its joints is nowhere. */
export function fillLinks(
  places: Float32Array,
  parents: readonly number[],
  linked: readonly number[],
  points: Float32Array,
): void {
  const nowhere = Math.fround(NOWHERE);
  linked.forEach((object, index) => {
    const parent = parents[object];
    const isWhole = places[object * 3] !== nowhere && places[parent * 3] !== nowhere;
    for (let axis = 0; axis < 3; ++axis) {
      points[index * 6 + axis] = isWhole ? places[parent * 3 + axis] : 0;
      points[index * 6 + 3 + axis] = isWhole ? places[object * 3 + axis] : 0;
    }
  });
}
