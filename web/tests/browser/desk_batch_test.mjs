// The plug-in's panel in the page: files are converted, and handed out.

import assert from "node:assert/strict";
import path from "node:path";
import { test } from "node:test";
import { unzipSync } from "fflate";
import { atWork, chooseMapping } from "./desk.mjs";
import { asFile, WALK_TRC } from "./takes.mjs";
import { EXAMPLES, useBrowser } from "./workbench.mjs";

useBrowser();

const MAPPING = path.join(EXAMPLES, "walk.mnm");
const TAKES = ["a", "b", "c"].map((name) => asFile(`${name}.trc`, WALK_TRC));

const text = (bytes) => Buffer.from(bytes).toString("latin1");

async function chooseFolder(desk, name) {
  await desk.panel.getByRole("button", { name: "Browse... BVK Output Folder" }).click();
  const choice = desk.dialog("Choose BVK Files Destination Folder...");
  await choice.getByLabel("Name of the folder").fill(name);
  await choice.getByRole("button", { name: "OK" }).click();
  await choice.waitFor({ state: "hidden" });
}

async function chooseTakes(desk, choose) {
  await desk.panel.getByRole("button", { name: "Convert TRC to BVK" }).click();
  const choice = desk.dialog("Select Source TRC Files...");
  await choose(choice);
  await choice.getByRole("button", { name: "Choose" }).click();
}

test("many takes are converted, and handed out as one archive with the log", () =>
  atWork(TAKES, async (desk) => {
    await desk.openPanel();
    await chooseMapping(desk, MAPPING);
    await chooseFolder(desk, "monday");
    await desk.panel.getByLabel("Batch File Conversion").click();
    await desk.waitUntil(desk.panel, "Use TRC Filename", ":disabled");
    const { name, bytes } = await desk.download(() =>
      chooseTakes(desk, (choice) => choice.getByRole("button", { name: "All" }).click()));
    assert.equal(name, "monday.zip");
    const files = unzipSync(bytes);
    assert.deepEqual(Object.keys(files).sort(), ["ConvertBVKLog.txt", "a.bvk", "b.bvk", "c.bvk"]);
    const log = text(files["ConvertBVKLog.txt"]);
    assert.match(log, /Processing 3 files\.\.\./);
    for (const take of ["a", "b", "c"]) {
      assert.match(log, new RegExp(`${take}\\.trc done\\.`));
      assert.match(text(files[`${take}.bvk`]), /LFHD/);
      assert.doesNotMatch(text(files[`${take}.bvk`]), /walker:/);
    }
  }));

test("of two takes of one name both are converted, each to a file of its own", () => {
  const shorter = WALK_TRC.split("\n").slice(0, -20).join("\n") + "\n";
  return atWork([asFile("walk.trc", WALK_TRC), asFile("walk.trc", shorter)], async (desk) => {
    await desk.openPanel();
    await chooseMapping(desk, MAPPING);
    await chooseFolder(desk, "both");
    await desk.panel.getByLabel("Batch File Conversion").click();
    await desk.waitUntil(desk.panel, "Use TRC Filename", ":disabled");
    const { bytes } = await desk.download(() =>
      chooseTakes(desk, (choice) => choice.getByRole("button", { name: "All" }).click()));
    const files = unzipSync(bytes);
    assert.deepEqual(Object.keys(files).sort(), ["ConvertBVKLog.txt", "walk-2.bvk", "walk.bvk"]);
    assert.match(text(files["ConvertBVKLog.txt"]), /walk\.trc done\.[^]*walk-2\.trc done\./);
    assert.ok(files["walk-2.bvk"].length < files["walk.bvk"].length);
  });
});

test("one take is converted as itself, and what is none is refused by the plug-in", () =>
  atWork(TAKES[0], async (desk) => {
    await desk.openPanel();
    await chooseMapping(desk, MAPPING);
    await chooseTakes(desk, async (choice) => {
      const chosen = desk.page.waitForEvent("filechooser");
      await choice.getByRole("button", { name: "From this machine…" }).click();
      await (await chosen).setFiles(asFile("none.trc", "no take"));
      await choice.getByLabel("none.trc").and(choice.locator(":checked")).waitFor();
    });
    const refusal = desk.message("ConvertBVK Error");
    await refusal.getByText("none.trc").waitFor();
    await refusal.getByRole("button", { name: "OK" }).click();
    await desk.waitForRest();
    const { name, bytes } = await desk.download(() =>
      chooseTakes(desk, async (choice) => {
        await choice.getByLabel("a.trc", { exact: true }).click();
        await choice.getByRole("region", { name: "What becomes of a.trc" }).getByText("trc-marker-gaps").waitFor();
      }));
    assert.equal(name, "a.bvk");
    assert.match(text(bytes), /LFHD/);
  }));

test("a choice that is left changes nothing", () =>
  atWork(TAKES[0], async (desk) => {
    await desk.openPanel();
    const file = desk.panel.getByLabel("MNM Mapping File", { exact: true });
    const before = await file.inputValue();
    await desk.panel.getByRole("button", { name: "Browse... MNM Mapping File" }).click();
    await desk.dialog("Select Mapping File...").waitFor();
    await desk.page.keyboard.press("Escape");
    await desk.dialog("Select Mapping File...").waitFor({ state: "hidden" });
    assert.equal(await file.inputValue(), before);
    await desk.button("Utility panel").click();
    await desk.panel.waitFor({ state: "hidden" });
  }));

test("what a batch lacks, and which files its mapping does not fit, is told before they are chosen", () =>
  atWork(asFile("other.trc", WALK_TRC.replaceAll("walker:", "runner:")), async (desk) => {
    await desk.openPanel();
    await chooseMapping(desk, MAPPING);
    await desk.panel.getByLabel("Batch File Conversion").click();
    const need = "A batch needs a BVK output folder";
    await desk.panel.getByText(need).waitFor();
    await desk.panel.getByRole("button", { name: "Convert TRC to BVK" }).click();
    const choice = desk.dialog("Select Source TRC Files...");
    await choice.getByText(need).waitFor();
    await choice.getByLabel("other.trc").click();
    await choice.locator('[data-finding="mnm-fits-nothing"]').waitFor();
    await choice.getByRole("button", { name: "Cancel" }).click();
    await chooseFolder(desk, "monday");
    await desk.panel.getByText(need).waitFor({ state: "hidden" });
  }));
