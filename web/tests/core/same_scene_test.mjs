import assert from "node:assert/strict";
import { test } from "node:test";
import { areNear } from "./same_scene.mjs";

test("doubles are near within four steps", () => {
  assert.ok(areNear(1, 1 + 4 * Number.EPSILON));
  assert.ok(!areNear(1, 1 + 5 * Number.EPSILON));
  assert.ok(areNear(0, -5e-324));
  assert.ok(!areNear(1, -1));
  assert.ok(!areNear(0, 1e-300));
});
