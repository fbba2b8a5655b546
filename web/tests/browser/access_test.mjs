// The page is for all: by keyboard alone, in dark and light, on small screens, without a serious fault
// that axe would find.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";
import { EXAMPLES, inWorkbench, ROOT, useBrowser } from "./workbench.mjs";

useBrowser();

const AXE = readFileSync(path.join(ROOT, "node_modules/axe-core/axe.min.js"), "utf8");

async function seriousFaults(workbench) {
  await workbench.page.evaluate(AXE);
  const { violations } = await workbench.page.evaluate(() => window.axe.run());
  return violations
    .filter(({ impact }) => impact === "serious" || impact === "critical")
    .map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html.slice(0, 200)).join(" | ")}`);
}

test("the empty page has no serious fault", () =>
  inWorkbench(async (workbench) => {
    await workbench.button("Open files…").waitFor();
    assert.deepEqual(await seriousFaults(workbench), []);
  }));

for (const look of ["dark", "light"]) {
  test(`a page with takes has no serious fault, ${look}`, () =>
    inWorkbench(async (workbench) => {
      await workbench.open([path.join(EXAMPLES, "walk.htr"), path.join(EXAMPLES, "walk.trc")]);
      await workbench.waitForTakes(2);
      await workbench.drawn();
      if (look === "light") await workbench.button("Dark / light").click();
      await workbench.objects.first().click();
      assert.deepEqual(await seriousFaults(workbench), []);
      await workbench.button("Curves").click();
      await workbench.page.keyboard.press("?");
      assert.deepEqual(await seriousFaults(workbench), []);
    }));
}

test("an example is opened and played by keys alone", () =>
  inWorkbench(async (workbench) => {
    const { keyboard } = workbench.page;
    await workbench.example("walk.htr").waitFor();
    for (let count = 0; count < 20; ++count) {
      await keyboard.press("Tab");
      const focused = await workbench.page.evaluate(() => document.activeElement.textContent);
      if (focused.startsWith("walk.htr")) break;
    }
    await keyboard.press("Enter");
    await workbench.waitForTakes(1);
    await keyboard.press("l");
    await workbench.page.waitForFunction(
      () => Number(document.querySelector("[data-view]").dataset.frame) > 3,
    );
  }));

for (const size of [
  { width: 1280, height: 720 },
  { width: 1024, height: 768 },
  { width: 820, height: 1180 },
]) {
  test(`all is in the window at ${size.width} by ${size.height}`, () =>
    inWorkbench(
      async (workbench) => {
        await workbench.open(path.join(EXAMPLES, "walk.trc"));
        await workbench.waitForTakes(1);
        const box = await workbench.view.boundingBox();
        assert.ok(box.width > 200 && box.height > 150, `${box.width} by ${box.height}`);
        for (const name of ["Play", "Fit"]) await workbench.button(name).click();
        assert.ok(await workbench.page.evaluate(
          () => document.documentElement.scrollWidth <= innerWidth));
      },
      { size },
    ));
}
