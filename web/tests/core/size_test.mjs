import assert from "node:assert/strict";
import { statSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";
import { BUILD } from "./built_core.mjs";

// Each page that is mailed has it in itself.
const MOST_BYTES = 2_000_000;

test("the core has at most 2 MB", () => {
  const { size } = statSync(path.join(BUILD, "orvane-core.wasm"));
  assert.ok(size <= MOST_BYTES, `orvane-core.wasm has ${size} bytes`);
});
