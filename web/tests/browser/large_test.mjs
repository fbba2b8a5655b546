// A file of 60 MB is shown, and can be got rid of on its way.

import assert from "node:assert/strict";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { after, before, test } from "node:test";
import { largeMarkerFile } from "./takes.mjs";
import { EXAMPLES, inWorkbench, useBrowser } from "./workbench.mjs";

useBrowser();

let folder;
let large;

before(() => {
  folder = mkdtempSync(path.join(tmpdir(), "orvane-large-"));
  large = path.join(folder, "large.trc");
  writeFileSync(large, largeMarkerFile(60e6));
});

after(() => rmSync(folder, { recursive: true }));

test("60 MB are seen, and their last frame", () =>
  inWorkbench(async (workbench) => {
    await workbench.open(large);
    await workbench.waitForTakes(1);
    assert.ok((await workbench.pixelsOf(0)) > 150);
    await workbench.page.keyboard.press("End");
    await workbench.page.waitForFunction(
      () => Number(document.querySelector("[data-view]").dataset.frame) > 20_000,
    );
    await workbench.drawn(60);
  }));

test("work on 60 MB is canceled, and the page goes on", () =>
  inWorkbench(async (workbench) => {
    await workbench.open(large);
    await workbench.button("Cancel").click();
    await workbench.page.locator(".busy").waitFor({ state: "detached" });
    // The file may have been read by then, and something else been on its way.
    await workbench.open(path.join(EXAMPLES, "walk.trc"));
    await workbench.takes.getByText("walk.trc").waitFor();
  }));
