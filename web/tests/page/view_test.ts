import assert from "node:assert/strict";
import { test } from "node:test";
import { fittingDistance } from "../../page/logic/fitting";
import { floorLines } from "../../page/logic/floor_lines";
import { placeLabels } from "../../page/logic/label_layout";
import { Nearest } from "../../page/logic/picking";
import { isOnScreen, projectAll } from "../../page/logic/projection";
import { NOWHERE } from "../../page/logic/tracks";
import { gridStep, lengthText, roundStep, stepText } from "../../page/logic/units";

const SCREEN = { width: 200, height: 100 };

test("labels that would cover a more important one are left out", () => {
  const label = (key: number, x: number, y: number) => ({ key, x, y, width: 50, height: 12 });
  const placed = placeLabels(
    [label(1, 0, 0), label(2, 49, 11), label(3, 50, 0), label(4, 0, 12), label(5, 500, 0)],
    4,
  );
  assert.deepEqual(
    placed.map(({ key }) => key),
    [1, 3, 4, 5],
  );
});

test("of ten thousand labels no two cover each other, and no more are shown than wanted", () => {
  const labels = Array.from({ length: 10_000 }, (_, key) => {
    return { key, x: (key * 7919) % 1600, y: (key * 104_729) % 900, width: 60, height: 14 };
  });
  const placed = placeLabels(labels, 150);
  assert.equal(placed.length, 150);
  for (const one of placed) {
    for (const other of placed) {
      if (one === other) continue;
      const apart = Math.abs(one.x - other.x) >= 60 || Math.abs(one.y - other.y) >= 14;
      assert.ok(apart, `${one.key} and ${other.key}`);
    }
  }
});

test("points come to lie on the screen, from its top left", () => {
  const identity = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];
  const points = new Float32Array([0, 0, 0, -1, 1, 0.5, NOWHERE, NOWHERE, NOWHERE, 3, 0, 0]);
  const places = new Float32Array(12);
  projectAll(points, 4, identity, SCREEN, places);
  assert.deepEqual([...places.slice(0, 6)], [100, 50, 0, 0, 0, 0.5]);
  assert.deepEqual(
    [0, 1, 2, 3].map((index) => isOnScreen(places, index, SCREEN)),
    [true, true, false, false],
  );
});

test("what lies behind the eye is not on the screen", () => {
  const matrix = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, -1, 0, 0, 0, 0];
  const places = new Float32Array(3);
  projectAll(new Float32Array([0, 0, 5]), 1, matrix, SCREEN, places);
  assert.equal(isOnScreen(places, 0, SCREEN), false);
});

test("a click means what lies under it in front, else what is nearest in reach", () => {
  const dot = (x: number, depth: number) => ({ x, y: 0, endX: x, endY: 0, depth });
  const pick = (x: number): string | null => {
    const nearest = new Nearest<string>(x, 0, 12);
    nearest.offer("behind", dot(100, 0.9), 5);
    nearest.offer("front", dot(103, 0.2), 5);
    nearest.offer("bone", { x: 200, y: -50, endX: 200, endY: 50, depth: 0.5 }, 5);
    return nearest.key;
  };
  assert.equal(pick(101), "front");
  assert.equal(pick(90), "behind");
  assert.equal(pick(195), "bone");
  assert.equal(pick(150), null);
});

test("a box fits as closely as its corners let it", () => {
  const box = { min: [-1, -1, -1], max: [1, 1, 1] } as const;
  const distance = fittingDistance(
    { min: [...box.min], max: [...box.max] },
    { x: 0, y: 0, z: 1 },
    90,
    1,
  );
  assert.ok(Math.abs(distance - 2) < 1e-9);
  const wide = { min: [-8, -1, 0], max: [8, 1, 0] };
  const far = fittingDistance(wide as never, { x: 0, y: 0, z: 1 }, 90, 2);
  assert.ok(Math.abs(far - 4) < 1e-9);
});

test("grids have round steps in the unit that is shown", () => {
  const cases: [number, number][] = [
    [0.7, 1],
    [1, 1],
    [1.2, 2],
    [3, 5],
    [7, 10],
    [0.03, 0.05],
    [0, 1],
    [Infinity, 1],
  ];
  for (const [value, expected] of cases) {
    assert.ok(Math.abs(roundStep(value) - expected) < 1e-12, `${value}`);
  }
  assert.equal(stepText(gridStep(10, "m")), "0.5");
  assert.equal(stepText(gridStep(10, "cm")), "50");
  assert.equal(stepText(gridStep(10, "ft")), "2");
});

test("lines of the floor lie on whole steps, each fifth being thick", () => {
  const { thin, thick } = floorLines(0.13, 2.49, 0.5);
  assert.equal((thin.length + thick.length) / 6, 82);
  assert.ok([...thin, ...thick].every((value) => Number.isInteger(value / 0.5)));
  const across = thick.filter((_, index) => index % 6 === 0 && thick[index] === thick[index + 3]);
  assert.ok(across.length > 0 && across.every((x) => Number.isInteger(x / 2.5)));
});

test("lengths are told in the unit that is shown", () => {
  assert.equal(lengthText(1.2345, "mm"), "1234.5");
  assert.equal(lengthText(1.2345, "m"), "1.2345");
  assert.equal(lengthText(0.3048, "ft"), "1.0000");
  assert.equal(lengthText(NaN, "m"), "–");
});
