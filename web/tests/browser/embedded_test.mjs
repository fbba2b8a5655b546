// The pages that `orvane view` writes open with their takes.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { after, before, test } from "node:test";
import { markerFile } from "./takes.mjs";
import { PROGRAM, WITH_PROGRAM } from "../program.mjs";
import { EXAMPLES, inWorkbench, PAGE, useBrowser } from "./workbench.mjs";

useBrowser();

let folder;

before(() => {
  folder = mkdtempSync(path.join(tmpdir(), "orvane-embedded-"));
});

after(() => rmSync(folder, { recursive: true }));

function pageOf(...takes) {
  const page = path.join(folder, "page.html");
  execFileSync(PROGRAM, ["view", ...takes, "-o", page, "--no-open", "--force"], {
    env: { ...process.env, ORVANE_WORKBENCH: PAGE },
    stdio: ["ignore", "ignore", "ignore"],
  });
  return page;
}

test("takes in a page are open when it is", WITH_PROGRAM, () =>
  inWorkbench(
    async (workbench) => {
      await workbench.waitForTakes(2);
      await workbench.takes.getByText("walk.htr").waitFor();
      await workbench.takes.getByText("walk.trc").waitFor();
      assert.ok((await workbench.pixelsOf(0)) > 150);
    },
    { file: () => pageOf(path.join(EXAMPLES, "walk.htr"), path.join(EXAMPLES, "walk.trc")) },
  ));

test("the name of a take in a page stays a name", WITH_PROGRAM, () => {
  const take = path.join(folder, "<img src=x onerror=alert(1)><!--<script>.trc");
  writeFileSync(take, markerFile(["</script><script>alert(2)</script>"], 5, () => [1, 2, 3]));
  return inWorkbench(
    async (workbench) => {
      await workbench.waitForTakes(1);
      await workbench.takes.getByText("<img src=x onerror=alert(1)><!--<script>.trc").waitFor();
      assert.equal(await workbench.page.locator("img").count(), 0);
    },
    { file: () => pageOf(take) },
  );
});
