// What is worked at in a browser comes out as the program makes it.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { after, test } from "node:test";
import { sceneDifference } from "../core/same_scene.mjs";
import { PROGRAM, WITH_PROGRAM } from "../program.mjs";
import { atWork, chooseMapping } from "./desk.mjs";
import { EXAMPLES, useBrowser } from "./workbench.mjs";

useBrowser();

const HTR = path.join(EXAMPLES, "walk.htr");
const TRC = path.join(EXAMPLES, "walk.trc");
const MAPPING = path.join(EXAMPLES, "walk.mnm");

const folder = mkdtempSync(path.join(tmpdir(), "orvane-desk-"));
after(() => rmSync(folder, { recursive: true }));

/** The bytes of what the program makes. */
function made(name, ...words) {
  const environment = { ...process.env, TZ: "UTC", XDG_CONFIG_HOME: folder };
  const file = path.join(folder, name);
  execFileSync(PROGRAM, [...words, "-o", file, "--force"], { env: environment, stdio: "ignore" });
  return readFileSync(file);
}

// The page has the host's time at the frame that it shows.
const AS_SHOWN = ["time"];

async function savedScene(desk) {
  const name = desk.dialog("Save the scene");
  await desk.button("Save scene…").click();
  const { bytes } = await desk.download(() => name.getByRole("button", { name: "OK" }).click());
  await desk.waitForRest();
  return bytes;
}

test("an import and an export give the files of the program", WITH_PROGRAM, () =>
  atWork(HTR, async (desk) => {
    await desk.importAsItComes("walk.htr", "ImportHTR", 22);
    const scene = await savedScene(desk);
    const expected = made("scene.glb", "import", HTR, "--frame-rate", "keep");
    assert.equal(sceneDifference(scene, expected, AS_SHOWN), "");
    await desk.page.locator("[data-object]").filter({ hasText: "Hips" }).first().click();
    await desk.button("Export HTR…").click();
    await desk.dialog("Export the selected skeleton").getByRole("button", { name: "OK" }).click();
    const { bytes } = await desk.download(() =>
      desk.dialog("ExportHTR").getByRole("button", { name: "OK", exact: true }).click());
    const kept = path.join(folder, "kept.glb");
    writeFileSync(kept, scene);
    assert.deepEqual(bytes, made("new.htr", "export", kept, "--select", "Hips"));
  }));

test("an import of markers gives the scene of the program", WITH_PROGRAM, () =>
  atWork(TRC, async (desk) => {
    await desk.importFile("walk.trc");
    const dialog = desk.dialog("ImportTRC");
    await dialog.getByLabel("Size", { exact: true }).fill("12");
    await dialog.getByRole("button", { name: "OK", exact: true }).click();
    await desk.waitForNodes(41);
    const expected = made("scene.glb", "import", TRC, "--size", "12", "--frame-rate", "keep");
    assert.equal(sceneDifference(await savedScene(desk), expected, AS_SHOWN), "");
  }));

// The one thing in it that no file says.
const withoutDate = (bytes) => bytes.toString("latin1").replace(/^\$DateTime .*$/m, "");

test("a conversion gives the file of the program", WITH_PROGRAM, () =>
  atWork(TRC, async (desk) => {
    await desk.openPanel();
    await chooseMapping(desk, MAPPING);
    await desk.panel.getByRole("button", { name: "Convert TRC to BVK" }).click();
    const choice = desk.dialog("Select Source TRC Files...");
    await choice.getByLabel("walk.trc", { exact: true }).click();
    const { bytes } = await desk.download(() => choice.getByRole("button", { name: "Choose" }).click());
    assert.equal(withoutDate(bytes), withoutDate(made("walk.bvk", "convert", TRC, "--mapping", MAPPING)));
  }));
