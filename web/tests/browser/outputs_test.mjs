// What is saved of a take is what the program makes of it.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";
import { countColor, decodePng } from "./png.mjs";
import { asFile, WALK_HTR, WALK_TRC } from "./takes.mjs";
import { COLORS, inWorkbench, useBrowser } from "./workbench.mjs";

useBrowser();

async function saved(workbench, what) {
  await workbench.page.getByText("Save…").click();
  const download = workbench.page.waitForEvent("download");
  await workbench.page.getByRole("button", { name: new RegExp(`^${what} `) }).click();
  const file = await download;
  return { name: file.suggestedFilename(), bytes: readFileSync(await file.path()) };
}

const OUTPUTS = [
  ["walk.htr", WALK_HTR, "GLB", "walk.glb", (bytes) => assert.equal(bytes.toString("latin1", 0, 4), "glTF")],
  ["walk.htr", WALK_HTR, "HTR", "walk-rewritten.htr", (bytes) => assert.match(bytes.toString("latin1"), /\[Header\]\r?\n/)],
  ["walk.trc", WALK_TRC, "BVK", "walk.bvk", (bytes) => assert.ok(bytes.length > 100_000)],
  ["walk.trc", WALK_TRC, "Report", "walk-import.json", (bytes) =>
    assert.equal(JSON.parse(bytes.toString()).files[0].findings[0].code, "trc-marker-gaps")],
  ["walk.htr", WALK_HTR, "Picture", "walk.png", (bytes) => {
    const picture = decodePng(bytes);
    assert.ok(picture.width > 400);
    assert.ok(countColor(picture, COLORS[0]) > 300);
  }],
];

for (const [take, text, what, name, check] of OUTPUTS) {
  test(`${what} of ${take}`, () =>
    inWorkbench(async (workbench) => {
      await workbench.open([asFile(take, text)]);
      await workbench.waitForTakes(1);
      await workbench.drawn();
      const file = await saved(workbench, what);
      assert.equal(file.name, name);
      check(file.bytes);
    }));
}
