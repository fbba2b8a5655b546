// The plug-in's dialogs in the page: what they refuse, and that nothing but the plug-in closes them.

import assert from "node:assert/strict";
import path from "node:path";
import { test } from "node:test";
import { asFile, WALK_HTR, WALK_TRC } from "./takes.mjs";
import { atWork, Work } from "./desk.mjs";
import { EXAMPLES, inWorkbench, useBrowser } from "./workbench.mjs";

useBrowser();

const HTR = path.join(EXAMPLES, "walk.htr");
const TRC = path.join(EXAMPLES, "walk.trc");

test("the page opens for looking, and goes back to that", () =>
  inWorkbench(async (workbench) => {
    await workbench.open(TRC);
    await workbench.waitForTakes(1);
    assert.equal(await workbench.page.getByRole("complementary", { name: "Work" }).count(), 0);
    await workbench.button("Work").click();
    await workbench.page.getByRole("region", { name: "Files" }).waitFor();
    await workbench.button("Work").click();
    await workbench.takes.waitFor();
    await workbench.drawn(1);
  }));

test("ImportTRC refuses in its own words, stays, and imports what is right", () =>
  atWork(TRC, async (desk) => {
    await desk.importFile("walk.trc");
    const dialog = desk.dialog("ImportTRC");
    await desk.waitUntil(dialog, "From", ":disabled");
    const losses = desk.page.getByRole("region", { name: "What becomes of walk.trc" });
    await losses.locator('[data-finding="trc-marker-gaps"]').waitFor();
    await dialog.getByLabel("Range").click();
    await dialog.getByLabel("From", { exact: true }).fill("0");
    await dialog.getByLabel("From", { exact: true }).press("Enter");
    await desk.answer(
      "ImportTRC Error", "Please choose a start frame equal to or greater than 1.");
    assert.equal(await dialog.getByLabel("From", { exact: true }).inputValue(), "1");
    await dialog.getByLabel("Size", { exact: true }).fill("0");
    await dialog.getByRole("button", { name: "OK", exact: true }).press("Enter");
    await desk.message("ImportTRC Error").waitFor();
    await desk.page.keyboard.press("Escape");
    await desk.message("ImportTRC Error").waitFor({ state: "hidden" });
    await dialog.getByRole("button", { name: "OK", exact: true }).and(desk.page.locator(":focus")).waitFor();
    await dialog.getByLabel("Size", { exact: true }).fill("2");
    await desk.page.keyboard.press("Enter");
    await desk.waitForNodes(41);
  }));

/** Where the first node is in the frame that is shown. */
async function placeOfFirst(desk) {
  await desk.page.mouse.move(0, 0);
  await desk.page.locator("[data-object]").first().hover();
  const text = await desk.page.locator(".object-readout .numbers").textContent();
  return text.split(/\s+/).slice(0, 3).map(Number);
}

test("motion is applied to what is selected", () =>
  atWork(TRC, async (desk) => {
    await desk.importAsItComes("walk.trc", "ImportTRC", 41);
    await desk.goTo(35);
    await desk.page.getByTitle("Select all that are found").click();
    const before = await placeOfFirst(desk);
    await desk.importFile("walk.trc");
    const dialog = desk.dialog("ImportTRC");
    await dialog.getByLabel("Apply").click();
    await desk.waitUntil(dialog, "Apply", ":checked");
    await dialog.getByLabel("Global", { exact: true }).fill("2");
    await dialog.getByRole("button", { name: "OK", exact: true }).click();
    await dialog.waitFor({ state: "hidden" });
    await desk.waitForRest();
    await desk.page.getByText("41 nodes").waitFor();
    const after = await placeOfFirst(desk);
    const farthest = before.findIndex((part) => Math.abs(part) === Math.max(...before.map(Math.abs)));
    assert.ok(Math.abs(after[farthest] / before[farthest] - 2) < 0.05, `${before} ${after}`);
  }));

test("ImportHTR refuses a scale factor that is no number, and can be canceled", () =>
  atWork(HTR, async (desk) => {
    await desk.importFile("walk.htr");
    const dialog = desk.dialog("ImportHTR");
    await dialog.getByLabel("Apply").click();
    await desk.waitUntil(dialog, "Segment Size", ":disabled");
    await dialog.getByLabel("Create").click();
    await dialog.getByLabel("Animation").click();
    await desk.waitUntil(dialog, "Range", ":disabled");
    await dialog.getByLabel("Global").fill("abc");
    await desk.page.keyboard.press("Alt+o");
    await desk.answer("ImportHTR Error", "Please choose a non-zero scale factor.");
    await dialog.getByRole("button", { name: "Cancel" }).click();
    await dialog.waitFor({ state: "hidden" });
    await desk.waitForRest();
  }));

test("Esc is the dialog's to answer, and no browser closes it", () =>
  atWork(TRC, async (desk) => {
    await desk.importFile("walk.trc");
    const dialog = desk.dialog("ImportTRC");
    await dialog.waitFor();
    assert.equal(await dialog.getByRole("button", { name: "Close", exact: true }).count(), 0);
    for (let count = 0; count < 3; ++count) await desk.page.keyboard.press("Escape");
    await dialog.getByLabel("Root Node").click();
    await desk.waitUntil(dialog, "Root Node", ":checked");
    await dialog.getByRole("button", { name: "OK", exact: true }).click();
    await desk.waitForNodes(42);
  }));

const LEAVINGS = {
  "its cross": (about) => about.getByRole("button", { name: "Close", exact: true }).click(),
  Esc: (about) => about.press("Escape"),
};
for (const [how, leave] of Object.entries(LEAVINGS)) {
  test(`About is left by ${how}, which it answers itself`, () =>
    atWork(TRC, async (desk) => {
      const about = desk.dialog("About...");
      await desk.button("About…").click();
      await about.getByText("OrvaneFileIO for Skelder").waitFor();
      await leave(about);
      await about.waitFor({ state: "hidden" });
      await desk.waitForRest();
    }));
}

test("a file that is dropped while a dialog is open is opened, and the dialog stays", () =>
  atWork(TRC, async (desk) => {
    await desk.importFile("walk.trc");
    const dialog = desk.dialog("ImportTRC");
    await dialog.getByLabel("Size", { exact: true }).fill("3");
    await desk.workbench.drop([{ name: "other.htr", text: WALK_HTR }]);
    await desk.page.getByText("other.htr").waitFor();
    assert.equal(await dialog.getByLabel("Size", { exact: true }).inputValue(), "3");
    await dialog.getByRole("button", { name: "OK", exact: true }).click();
    await desk.waitForNodes(41);
    await desk.importFile("other.htr");
    await desk.dialog("ImportHTR").waitFor();
  }));

test("in and out points become the range", () =>
  inWorkbench(async (workbench) => {
    await workbench.open(TRC);
    await workbench.waitForTakes(1);
    const field = workbench.page.getByLabel("Frame", { exact: true });
    for (const [frame, key] of [["11", "i"], ["20", "o"]]) {
      await field.fill(frame);
      await field.press("Enter");
      await field.blur();
      await workbench.page.keyboard.press(key);
    }
    await workbench.button("Work").click();
    await workbench.page.getByRole("button", { name: "Import walk.trc" }).click();
    const desk = new Work(workbench);
    const dialog = desk.dialog("ImportTRC");
    await workbench.page.waitForFunction(
      () => document.querySelector('[data-control="1065"]')?.value === "11");
    await desk.waitUntil(dialog, "Range", ":checked");
    assert.equal(await dialog.getByLabel("To", { exact: true }).inputValue(), "20");
  }));

/** The dialog ExportHTR, for the skeleton of the hips, and what it says is lost. */
async function askExport(desk) {
  await desk.page.locator("[data-object]").filter({ hasText: "Hips" }).first().click();
  await desk.button("Export HTR…").click();
  await desk.page.getByRole("dialog").getByRole("button", { name: "OK" }).click();
  const losses = desk.page.getByRole("region", { name: "What the motion file will not hold" });
  return { dialog: desk.dialog("ExportHTR"), losses };
}

test("ExportHTR refuses, and hands out what the program writes", () =>
  atWork(HTR, async (desk) => {
    await desk.importFile("walk.htr");
    await desk.dialog("ImportHTR").getByRole("button", { name: "OK", exact: true }).click();
    await desk.page.locator("[data-object]").first().waitFor();
    await desk.waitForRest();
    const { dialog, losses } = await askExport(desk);
    await losses.getByText("Nothing of the skeleton is lost.").waitFor();
    await dialog.getByLabel("Global").fill("0");
    await dialog.getByRole("button", { name: "OK", exact: true }).click();
    await desk.answer("ExportHTR Error", "Please choose a non-zero scale factor.");
    await dialog.getByLabel("Global").fill("1");
    const { name, bytes } = await desk.download(() =>
      dialog.getByRole("button", { name: "OK", exact: true }).click());
    assert.equal(name, "export.htr");
    assert.match(bytes.toString("latin1"), /\[SegmentNames&Hierarchy\][^[]*Hips/);
  }));

test("what an export loses stands beside its dialog, by what is chosen in it", () =>
  atWork(HTR, async (desk) => {
    await desk.importFile("walk.htr");
    const importing = desk.dialog("ImportHTR");
    await importing.getByLabel("End Effectors").click();
    await desk.waitUntil(importing, "End Effectors", ":checked");
    await importing.getByRole("button", { name: "OK", exact: true }).click();
    await desk.page.locator("[data-object]").filter({ hasText: "Effector" }).first().waitFor();
    await desk.waitForRest();
    const { dialog, losses } = await askExport(desk);
    const effectors = losses.locator('[data-finding="export-effector"]');
    await effectors.getByText("effectors end chains").waitFor();
    await dialog.getByLabel("Offset", { exact: true }).fill("2147483640");
    await losses.getByText("is the last that a file can have").waitFor();
    assert.equal(await effectors.count(), 0);
    await dialog.getByLabel("Offset", { exact: true }).fill("0");
    await effectors.waitFor();
    await dialog.getByRole("button", { name: "Cancel" }).click();
    await losses.waitFor({ state: "hidden" });
  }));

test("a scene is saved and opened again", () =>
  atWork(asFile("two.trc", WALK_TRC), async (desk) => {
    await desk.importAsItComes("two.trc", "ImportTRC", 41);
    const { name, bytes } = await desk.download(async () => {
      await desk.button("Save scene…").click();
      await desk.page.getByRole("dialog").getByRole("button", { name: "OK" }).click();
    });
    assert.equal(name, "scene.glb");
    await desk.waitForRest();
    await desk.button("New scene").click();
    await desk.waitForNodes(0);
    await desk.importAsItComes("two.trc", "ImportTRC", 41);
    const chosen = desk.page.waitForEvent("filechooser");
    await desk.button("Open scene…").click();
    const asked = desk.message("The scene is not saved");
    await asked.getByRole("button", { name: "Cancel" }).click();
    await desk.button("Open scene…").click();
    await asked.getByRole("button", { name: "Go on without it" }).click();
    await (await chosen).setFiles({ name, mimeType: "model/gltf-binary", buffer: bytes });
    await desk.waitForNodes(41);
  }));

test("what is opened as a scene and is none is refused", () =>
  atWork(TRC, async (desk) => {
    const chosen = desk.page.waitForEvent("filechooser");
    await desk.button("Open scene…").click();
    await (await chosen).setFiles(asFile("no.glb", "no scene"));
    await desk.page.getByRole("alert").first().waitFor();
    await desk.waitForRest();
  }));

test("settings are fresh at each visit unless they are kept, and are shown and cleared", () =>
  atWork(TRC, async (desk) => {
    const { page } = desk;
    const visitAgain = async () => {
      await page.reload();
      await desk.workbench.open(TRC);
      await desk.workbench.waitForTakes(1);
      await desk.workbench.button("Work").click();
      await desk.waitForRest();
    };
    const importWith = async (size) => {
      await desk.importFile("walk.trc");
      const field = desk.dialog("ImportTRC").getByLabel("Size", { exact: true });
      const before = await field.inputValue();
      await field.fill(size);
      await field.press("Enter");
      await desk.waitForRest();
      return before;
    };
    assert.equal(await importWith("5"), "1.000000");
    assert.equal(await importWith("5"), "5.000000");
    await visitAgain();
    assert.equal(desk.workbench.askedToLeave, 1);
    assert.equal(await importWith("7"), "1.000000");
    await desk.button("Settings…").click();
    const settings = desk.dialog("Settings");
    await settings.getByText("ImportTRC Size").waitFor();
    await settings.getByText("7", { exact: true }).waitFor();
    await settings.getByLabel("Keep the plug-in's settings in this browser").check();
    await settings.getByRole("button", { name: "Done" }).click();
    await visitAgain();
    assert.equal(await importWith("7"), "7.000000");
    const keys = await page.evaluate(() => Object.entries(localStorage));
    for (const [key, value] of keys) {
      assert.match(key, /^orvane-workbench\//);
      assert.doesNotMatch(key + value, /walk/);
    }
    await desk.button("Settings…").click();
    await settings.getByRole("button", { name: /^Clear all/ }).click();
    assert.deepEqual(await page.evaluate(() => Object.keys(localStorage)), []);
  }));
