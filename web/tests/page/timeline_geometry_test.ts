import assert from "node:assert/strict";
import { test } from "node:test";
import {
  frameOfX,
  frameTicks,
  panned,
  revealing,
  scrollToRow,
  secondTicks,
  visibleRows,
  within,
  xOfFrame,
  zoomed,
} from "../../page/logic/timeline_geometry";

const all = (end: number) => ({ first: 0, end });

const AREA = { left: 100, width: 600 };

test("frames and places on the timeline lead to each other", () => {
  const view = { first: 20, end: 50 };
  assert.equal(xOfFrame(20, view, AREA), 100);
  assert.equal(xOfFrame(50, view, AREA), 700);
  for (const frame of [20, 31.5, 49]) {
    assert.ok(Math.abs(frameOfX(xOfFrame(frame, view, AREA), view, AREA) - frame) < 1e-9);
  }
});

test("zooming keeps the frame under the pointer, and ends at the frames that there are", () => {
  const view = zoomed(all(1000), 4, 400, all(1000));
  assert.deepEqual(view, { first: 300, end: 550 });
  assert.deepEqual(zoomed(view, 1 / 100, 400, all(1000)), { first: 0, end: 1000 });
  const closest = zoomed(view, 1e9, 400, all(1000));
  assert.equal(closest.end - closest.first, 4);
  assert.ok(closest.first <= 400 && closest.end >= 400);
  assert.deepEqual(zoomed(all(2), 10, 1, all(2)), { first: 0, end: 2 });
});

test("a view stays within the frames", () => {
  assert.deepEqual(panned({ first: 10, end: 30 }, -50, all(100)), { first: 0, end: 20 });
  assert.deepEqual(panned({ first: 10, end: 30 }, 500, all(100)), { first: 80, end: 100 });
  assert.deepEqual(within({ first: -5, end: 900 }, all(100)), { first: 0, end: 100 });
  assert.deepEqual(within({ first: -25, end: -5 }, { first: -20, end: 100 }), { first: -20, end: 0 });
});

test("a view moves only for a frame that it does not show", () => {
  const view = { first: 10, end: 30 };
  assert.equal(revealing(view, 10, all(100)), view);
  assert.equal(revealing(view, 29, all(100)), view);
  assert.deepEqual(revealing(view, 60, all(100)), { first: 50, end: 70 });
  assert.deepEqual(revealing(view, 99, all(100)), { first: 80, end: 100 });
});

test("the ruler counts as the file does", () => {
  const ticks = frameTicks({ first: 0, end: 120 }, AREA, 74, { firstFrame: 1 });
  assert.deepEqual(
    ticks.map(({ at, text }) => [at, text]),
    [19, 39, 59, 79, 99, 119].map((at) => [at, String(at + 1)]),
  );
});

test("the ruler tells seconds by the true rate, as exactly as they lie apart", () => {
  const ticks = secondTicks({ first: 0, end: 59.94 }, AREA, 74, 29.97);
  assert.deepEqual(
    ticks.map(({ text }) => text),
    ["0.0 s", "0.5 s", "1.0 s", "1.5 s"],
  );
  assert.ok(Math.abs(ticks[2].at - 29.97) < 1e-9);
  assert.deepEqual(secondTicks({ first: 0, end: 10 }, AREA, 74, 0), []);
});

test("of many rows those in sight are drawn", () => {
  assert.deepEqual(visibleRows(0, 100, 20, 10_000), { first: 0, end: 5 });
  assert.deepEqual(visibleRows(30, 100, 20, 10_000), { first: 1, end: 7 });
  assert.deepEqual(visibleRows(199_990, 100, 20, 10_000), { first: 9999, end: 10_000 });
  assert.deepEqual(visibleRows(500, 100, 20, 3), { first: 3, end: 3 });
});

test("a row comes into sight by the least scrolling", () => {
  assert.equal(scrollToRow(2, 0, 100, 20), 0);
  assert.equal(scrollToRow(5, 0, 100, 20), 20);
  assert.equal(scrollToRow(1, 60, 100, 20), 20);
});
