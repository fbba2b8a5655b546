import assert from "node:assert/strict";
import { test } from "node:test";
import { curveColumns, scaledColumns, valuesAt } from "../../page/logic/curve_columns";
import { eachGap, gapCount, indexGaps, neighborGap } from "../../page/logic/gaps";
import {
  ballRadius,
  copyFrame,
  diagonal,
  frameBox,
  isEmpty,
  momentExtent,
  NOWHERE,
  pointAt,
} from "../../page/logic/tracks";
import { isTelling, usualBox } from "../../page/logic/usual_box";
import { fillLinks, linkedObjects } from "../../page/logic/links";
import { fillTrails, trailBuffers, trailFrames } from "../../page/logic/trail";

const HOLE = [NaN, NaN, NaN];
// Two objects over three frames; the second one is missing in the middle.
const TRACK = new Float32Array([
  ...[0, 0, 0, 3, 4, 0],
  ...[1, 0, 0, ...HOLE],
  ...[2, 0, 0, 3, 4, 12],
]);

test("points are read from tracks, gaps being nothing", () => {
  assert.deepEqual(pointAt(TRACK, 2, 2, 1), [3, 4, 12]);
  assert.equal(pointAt(TRACK, 2, 1, 1), null);
  assert.equal(pointAt(TRACK, 2, 7, 0), null);
  assert.equal(pointAt(TRACK, 2, -1, 0), null);
});

test("a frame is copied with what is missing put nowhere", () => {
  const out = new Float32Array(6);
  copyFrame(TRACK, 2, 1, out);
  const nowhere = Math.fround(NOWHERE);
  assert.deepEqual([...out], [1, 0, 0, nowhere, nowhere, nowhere]);
});

test("boxes and extents leave gaps out", () => {
  assert.equal(diagonal(frameBox(TRACK, 2, 0)), 5);
  assert.equal(diagonal(frameBox(TRACK, 2, 1)), 0);
  assert.ok(isEmpty(frameBox(new Float32Array([...HOLE]), 1, 0)));
  assert.ok(Math.abs(momentExtent(TRACK, 2, 3) - Math.hypot(1, 4, 12)) < 1e-9);
});

test("a value too large to be drawn is left out like a gap", () => {
  const track = new Float32Array([1, 2, 3, Infinity, 0, 0]);
  assert.deepEqual(frameBox(track, 2, 0), { min: [1, 2, 3], max: [1, 2, 3] });
  const out = new Float32Array(6);
  copyFrame(track, 2, 0, out);
  assert.equal(out[3], Math.fround(NOWHERE));
});

test("balls are smaller the more of them there are, and never without size", () => {
  assert.ok(ballRadius(2, 40, 1) > ballRadius(2, 10_000, 1));
});

test("the ball of a take without extent is as large in any unit", () => {
  for (const millimetresPerUnit of [1, 10, 25.4, 1000]) {
    const millimetres = ballRadius(0, 1, millimetresPerUnit) * millimetresPerUnit;
    assert.ok(millimetres > 5 && millimetres < 20, `${millimetres}`);
  }
});

// A body of five markers, 1600 by 400 by 200, that goes 3000 along x in so many frames.
function walk(frames: number): Float32Array {
  const body = [[0, 0, 0], [400, 0, 0], [0, 800, 100], [200, 1600, 200], [400, 800, 100]];
  const at = (frame: number): number[] =>
    body.flatMap(([x, y, z]) => [x + (3000 * frame) / Math.max(frames - 1, 1), y, z]);
  return Float32Array.from(Array.from({ length: frames }, (_, frame) => at(frame)).flat());
}

const wholeBox = (track: Float32Array) => frameBox(track, track.length / 3, 0);

test("where a take is usually seen, single values that are far off say nothing of", () => {
  for (const frames of [1, 2, 120, 3000]) {
    const sound = walk(frames);
    assert.deepEqual(usualBox(sound, 5, frames, wholeBox(sound)), wholeBox(sound));
    for (const wrong of [1e9, -3e5, 3e38, Infinity]) {
      const spike = sound.slice();
      spike[15 * Math.floor(frames / 2) + 6] = wrong;
      const { min, max } = usualBox(spike, 5, frames, wholeBox(spike));
      assert.deepEqual(min, wholeBox(sound).min, `${wrong} in ${frames}`);
      assert.deepEqual(max, wholeBox(sound).max, `${wrong} in ${frames}`);
    }
  }
});

test("what moves after long standing, and what never has an extent, is seen whole", () => {
  const stands = walk(1000);
  for (let frame = 100; frame < 900; ++frame) stands.copyWithin(frame * 15, 0, 15);
  assert.deepEqual(usualBox(stands, 5, 1000, wholeBox(stands)), wholeBox(stands));
  const point = new Float32Array([7, 7, 7, 7, 7, 7]);
  assert.deepEqual(usualBox(point, 1, 2, wholeBox(point)), { min: [7, 7, 7], max: [7, 7, 7] });
  assert.ok(isEmpty(usualBox(new Float32Array([...HOLE]), 1, 1, wholeBox(new Float32Array([...HOLE])))));
});

test("a frame of a few markers, or of all in one place, does not tell where the take is seen", () => {
  assert.ok(isTelling(41, 41, 1.7, 20));
  assert.ok(!isTelling(1, 41, 0, 20));
  assert.ok(!isTelling(41, 41, 0, 20));
  assert.ok(!isTelling(20, 41, 1.7, 20));
});

test("balls take no part in a value that is far off", () => {
  const spike = walk(16);
  spike[15 * 3 + 6] = 1e9;
  const box = usualBox(spike, 5, 16, wholeBox(spike));
  assert.ok(momentExtent(spike, 5, 16, box) < 3000);
});

test("gaps are found by object, and those that reach into a part of the frames", () => {
  const index = indexGaps(new Int32Array([0, 5, 9, 0, 20, 29, 2, 0, 3, 2, 8, 8]), 3);
  const found = (object: number, first: number, last: number): number[][] => {
    const gaps: number[][] = [];
    eachGap(index, object, first, last, (begin, end) => gaps.push([begin, end]));
    return gaps;
  };
  assert.deepEqual(found(0, 0, 100), [
    [5, 9],
    [20, 29],
  ]);
  assert.deepEqual(found(0, 9, 19), [[5, 9]]);
  assert.deepEqual(found(0, 10, 19), []);
  assert.deepEqual(found(1, 0, 100), []);
  assert.deepEqual(found(2, 4, 100), [[8, 8]]);
  assert.deepEqual(
    [0, 1, 2].map((object) => gapCount(index, object)),
    [2, 0, 2],
  );
  assert.equal(neighborGap(index, 0, 5, 1), 20);
  assert.equal(neighborGap(index, 0, 20, -1), 5);
  assert.equal(neighborGap(index, 0, 20, 1), null);
  assert.equal(neighborGap(index, 1, 0, 1), null);
});

test("joints are linked to those that they hang from, but where one is missing", () => {
  const parents = [-1, 0, 1, 3];
  assert.deepEqual(linkedObjects(parents), [1, 2]);
  const points = new Float32Array(12);
  const places = new Float32Array([1, 2, 3, 4, 5, 6, NOWHERE, NOWHERE, NOWHERE, 0, 0, 0]);
  fillLinks(places, parents, [1, 2], points);
  assert.deepEqual([...points], [1, 2, 3, 4, 5, 6, 0, 0, 0, 0, 0, 0]);
});

test("trails go as far as there are frames, and no piece leads over a gap", () => {
  assert.deepEqual(trailFrames(1, 2, 3), [0, 1, 2]);
  const buffers = trailBuffers(2);
  const count = fillTrails(TRACK, 2, [0, 1], [0, 1, 2], 1, 2, buffers);
  assert.equal(count, 4);
  assert.deepEqual([...buffers.points.slice(0, 12)], [0, 0, 0, 1, 0, 0, 1, 0, 0, 2, 0, 0]);
  assert.equal(buffers.strengths[1], 1);
  assert.ok(buffers.strengths[3] < buffers.strengths[0]);
});

test("curves are told at other places and in other units, holes staying holes", () => {
  const columns = curveColumns(Float64Array.from([1, 2, 3, NaN, NaN, NaN]));
  assert.deepEqual(scaledColumns(columns, (place) => place + 60, 10), [
    [60.5, 61.5],
    [10, null],
    [20, null],
    [30, null],
  ]);
});

test("curves have a column an axis and holes where there are gaps", () => {
  const columns = curveColumns(new Float64Array([1, 2, 3, NaN, NaN, NaN, 4, 5, 6]));
  assert.deepEqual(columns, [
    [0.5, 1.5, 2.5],
    [1, null, 4],
    [2, null, 5],
    [3, null, 6],
  ]);
  assert.deepEqual(valuesAt(columns, 2), [4, 5, 6]);
  assert.deepEqual(valuesAt(columns, 9), [null, null, null]);
});
