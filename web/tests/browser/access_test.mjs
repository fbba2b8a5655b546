// The page is for all: by keyboard alone, in dark and light, on small screens, without a serious fault
// that axe would find.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";
import { atWork, chooseMapping } from "./desk.mjs";
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

for (const look of ["dark", "light"]) {
  test(`dialogs, panel and mapping have no serious fault, ${look}`, () =>
    atWork([path.join(EXAMPLES, "walk.htr"), path.join(EXAMPLES, "walk.trc")], async (desk) => {
      const { workbench } = desk;
      if (look === "light") await workbench.button("Dark / light").click();
      assert.deepEqual(await seriousFaults(workbench), []);
      for (const [name, title] of [["walk.htr", "ImportHTR"], ["walk.trc", "ImportTRC"]]) {
        await desk.importFile(name);
        await desk.dialog(title).waitFor();
        assert.deepEqual(await seriousFaults(workbench), [], title);
        await desk.dialog(title).getByRole("button", { name: "OK", exact: true }).click();
        await desk.waitForRest();
      }
      await desk.button("Settings…").click();
      assert.deepEqual(await seriousFaults(workbench), [], "settings");
      await workbench.page.keyboard.press("Escape");
      await desk.openPanel();
      await desk.panel.getByRole("button", { name: "Create", exact: true }).click();
      await desk.message("Pick optional markers?").waitFor();
      assert.deepEqual(await seriousFaults(workbench), [], "a question");
      for (const side of ["left", "right"]) {
        await desk.answer("Pick optional markers?", `Are you using a ${side} wrist stick?`, "No");
      }
      await desk.waitForAsked("LFHD");
      await workbench.page.keyboard.press("Enter");
      await desk.waitForAsked("LBHD");
      assert.deepEqual(await seriousFaults(workbench), [], "a mapping");
    }));
}

for (const look of ["dark", "light"]) {
  test(`an export, what the plug-in is, and choices of files have no serious fault, ${look}`, () =>
    atWork([path.join(EXAMPLES, "walk.htr"), path.join(EXAMPLES, "walk.trc")], async (desk) => {
      const { workbench, page } = desk;
      const requireNone = async (what) => assert.deepEqual(await seriousFaults(workbench), [], what);
      if (look === "light") await workbench.button("Dark / light").click();
      await desk.button("About…").click();
      await desk.dialog("About...").waitFor();
      await requireNone("About");
      await page.keyboard.press("Escape");
      await desk.dialog("About...").waitFor({ state: "hidden" });
      await desk.importAsItComes("walk.htr", "ImportHTR", 22);
      await desk.button("Export HTR…").click();
      await requireNone("the name of a file");
      await desk.dialog("Export the selected skeleton").getByRole("button", { name: "OK" }).click();
      await desk.dialog("ExportHTR").waitFor();
      await requireNone("ExportHTR");
      await desk.dialog("ExportHTR").getByRole("button", { name: "OK", exact: true }).click();
      await desk.message("Export Error").waitFor();
      await requireNone("a message");
      await desk.message("Export Error").getByRole("button", { name: "OK" }).click();
      await desk.waitForRest();
      await desk.openPanel();
      await requireNone("the panel");
      await desk.panel.getByRole("button", { name: "Browse... BVK Output Folder" }).click();
      await desk.dialog("Choose BVK Files Destination Folder...").waitFor();
      await requireNone("a choice of a folder");
      await page.keyboard.press("Escape");
      await desk.panel.getByRole("button", { name: "Browse... MNM Mapping File" }).click();
      await desk.dialog("Select Mapping File...").waitFor();
      await requireNone("a choice without files");
      await page.keyboard.press("Escape");
      await chooseMapping(desk, path.join(EXAMPLES, "walk.mnm"));
      await desk.panel.getByRole("button", { name: "Convert TRC to BVK" }).click();
      const choice = desk.dialog("Select Source TRC Files...");
      await choice.getByLabel("walk.trc", { exact: true }).click();
      await choice.getByRole("region", { name: "What becomes of walk.trc" }).getByText("trc-marker-gaps").waitFor();
      await requireNone("a choice of files");
    }));
}

test("the view is there beside the work on a small screen", () =>
  atWork(path.join(EXAMPLES, "walk.trc"), async (desk) => {
    await desk.openPanel();
    const box = await desk.workbench.view.boundingBox();
    assert.ok(box.width > 180 && box.height > 150, `${box.width} by ${box.height}`);
    assert.ok(await desk.page.evaluate(() => document.documentElement.scrollWidth <= innerWidth));
    await desk.importFile("walk.trc");
    const dialog = await desk.dialog("ImportTRC").boundingBox();
    assert.ok(dialog.x >= 0 && dialog.x + dialog.width <= 820, `${dialog.x} ${dialog.width}`);
  }, { size: { width: 820, height: 1180 } }));

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
