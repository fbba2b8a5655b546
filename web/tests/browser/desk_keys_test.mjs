// The plug-in's dialogs by the keyboard: where the focus goes, and what keys reach wherever it is.

import assert from "node:assert/strict";
import path from "node:path";
import { test } from "node:test";
import { atWork } from "./desk.mjs";
import { EXAMPLES, useBrowser } from "./workbench.mjs";

useBrowser();

const TRC = path.join(EXAMPLES, "walk.trc");

/** Opens the dialog of an import, and does `work` when all of it is there. */
function atImport(work) {
  return atWork(TRC, async (desk) => {
    await desk.importFile("walk.trc");
    const dialog = desk.dialog("ImportTRC");
    const losses = desk.page.getByRole("region", { name: "What becomes of walk.trc" });
    await losses.locator('[data-finding="trc-marker-gaps"]').waitFor();
    await work(desk, dialog, losses);
  });
}

const focused = (desk) => desk.page.locator(":focus");

test("Enter is OK and letters are mnemonics wherever in the dialog was clicked", () =>
  atImport(async (desk, dialog, losses) => {
    await dialog.getByLabel("Size", { exact: true }).fill("0");
    await dialog.getByRole("heading", { name: "ImportTRC" }).click();
    await desk.page.keyboard.press("Enter");
    await desk.answer("ImportTRC Error", "Please choose a non-zero size.");
    await losses.click({ position: { x: 8, y: 8 } });
    await desk.page.keyboard.press("Alt+o");
    await desk.message("ImportTRC Error").waitFor();
    await desk.page.keyboard.press("Enter");
    await desk.message("ImportTRC Error").waitFor({ state: "hidden" });
    await dialog.getByText("Global", { exact: true }).click();
    await dialog.getByLabel("Size", { exact: true }).fill("2");
    await desk.page.keyboard.press("Enter");
    await desk.waitForNodes(41);
  }));

test("Tab goes around in the dialog and what is told beside it, both ways", () =>
  atImport(async (desk, dialog, losses) => {
    await dialog.getByLabel("Apply").click();
    await desk.waitUntil(dialog, "Apply", ":checked");
    await dialog.getByLabel("Apply").focus();
    const stops = [];
    for (let count = 0; count < 60; ++count) {
      await desk.page.keyboard.press("Tab");
      stops.push(await focused(desk).evaluate((element) => element.dataset.control ?? element.className));
      if (stops.at(-1) === "1086") break;
    }
    assert.equal(stops.at(-2), "losses");
    assert.ok(stops.includes("1097") && !stops.includes("1085"), stops.join());
    const back = [];
    for (let count = 0; count < stops.length; ++count) {
      await desk.page.keyboard.press("Shift+Tab");
      back.push(await focused(desk).evaluate((element) => element.dataset.control ?? element.className));
    }
    assert.deepEqual(back.slice(0, -1), stops.slice(0, -1).reverse());
    assert.equal(back.at(-1), "1086");
    await losses.waitFor();
  }));

test("a button that cannot be used any more hands the focus on", () =>
  atWork(TRC, async (desk) => {
    await desk.importAsItComes("walk.trc", "ImportTRC", 41);
    await desk.openPanel();
    await desk.beginMapping();
    await desk.page.keyboard.press("/");
    await desk.page.keyboard.type("RTOE");
    await desk.page.keyboard.press("Escape");
    await desk.page.getByRole("listbox", { name: "Nodes" }).focus();
    await desk.page.keyboard.press("ArrowDown");
    await desk.page.keyboard.press("Enter");
    await desk.waitForAsked("LBHD");
    await desk.creator.getByRole("button", { name: "Back" }).focus();
    await desk.page.keyboard.press("Enter");
    await desk.waitForAsked("LFHD");
    await desk.creator.getByRole("button", { name: "Abort" }).and(focused(desk)).waitFor();
  }));

test("a field that cannot be typed into any more hands the focus on", () =>
  atImport(async (desk, dialog) => {
    const from = dialog.getByLabel("From", { exact: true });
    await dialog.getByLabel("Range").click();
    await from.fill("2");
    await dialog.getByText("All", { exact: true }).click();
    await desk.waitUntil(dialog, "From", ":disabled");
    await dialog.locator(":focus:enabled").waitFor();
    await desk.page.keyboard.press("Enter");
    await desk.waitForNodes(41);
  }));

test("the list of keys makes room for what the plug-in asks", () =>
  atWork(TRC, async (desk) => {
    const keys = desk.dialog("Keys");
    await desk.page.keyboard.press("?");
    await keys.waitFor();
    await desk.page.getByRole("button", { name: "Import walk.trc" }).dispatchEvent("click");
    const dialog = desk.dialog("ImportTRC");
    await dialog.getByRole("button", { name: "Cancel" }).click();
    await desk.waitForRest();
    await keys.waitFor({ state: "hidden" });
  }));
