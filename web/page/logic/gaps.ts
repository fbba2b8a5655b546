import type { Direction } from "./take_time";

/** Gaps of many objects: triples (object, first, last frame), rising by object and then by frame. */

export interface GapIndex {
  triples: Int32Array;
  /** Where the triples of each object begin; one entry more than there are objects. */
  starts: Int32Array;
}

export function indexGaps(triples: Int32Array, objects: number): GapIndex {
  const starts = new Int32Array(objects + 1);
  for (let at = 0; at + 2 < triples.length; at += 3) {
    const object = triples[at];
    if (object >= 0 && object < objects) starts[object + 1] += 1;
  }
  for (let object = 0; object < objects; ++object) starts[object + 1] += starts[object];
  return { triples, starts };
}

/** Calls with the first and last frame of each gap of an object that reaches into first..last. */
export function eachGap(
  index: GapIndex,
  object: number,
  first: number,
  last: number,
  visit: (first: number, last: number) => void,
): void {
  const { triples, starts } = index;
  const end = starts[object + 1] ?? 0;
  let at = firstEndingAtOrAfter(index, object, first);
  for (; at < end && triples[at * 3 + 1] <= last; ++at) {
    visit(triples[at * 3 + 1], triples[at * 3 + 2]);
  }
}

function firstEndingAtOrAfter(index: GapIndex, object: number, frame: number): number {
  let low = index.starts[object] ?? 0;
  let high = index.starts[object + 1] ?? 0;
  while (low < high) {
    const middle = (low + high) >> 1;
    if (index.triples[middle * 3 + 2] < frame) low = middle + 1;
    else high = middle;
  }
  return low;
}

/** The nearest frame before (-1) or after (1) at which a gap of the object begins, or nothing. */
export function neighborGap(
  index: GapIndex,
  object: number,
  frame: number,
  direction: Direction,
): number | null {
  let found: number | null = null;
  const end = index.starts[object + 1] ?? 0;
  for (let at = index.starts[object] ?? 0; at < end; ++at) {
    const first = index.triples[at * 3 + 1];
    if (direction > 0 && first > frame) return first;
    if (direction < 0 && first < frame) found = first;
  }
  return found;
}

export function gapCount(index: GapIndex, object: number): number {
  return (index.starts[object + 1] ?? 0) - (index.starts[object] ?? 0);
}
