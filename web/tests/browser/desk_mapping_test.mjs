// A mapping made by clicking markers, as the plug-in's creator asks for them.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";
import { atWork } from "./desk.mjs";
import { asFile, WALK_TRC } from "./takes.mjs";
import { EXAMPLES, useBrowser } from "./workbench.mjs";

useBrowser();

const TRC = path.join(EXAMPLES, "walk.trc");
const NAMES = readFileSync(TRC, "latin1").split("\n")[3].split("\t").slice(2).filter((name) => name.trim());

// In the order in which the creator asks without sticks: what is for no body comes last.
const ASKED = (
  "LFHD LBHD RBHD RFHD C7 CLAV STRN LSHO LELB LILB LWRA LWRB LFIN RSHO RELB RILB RWRA RWRB RFIN T10 SACR " +
  "LFWT LBWT RBWT RFWT LKNE LKNI LANK LHEL LMT5 LMTI LTOE RKNE RKNI RANK RHEL RMT5 RMTI RTOE"
).split(" ");
const PROPS = "LPRPB LPRPM LPRPT RPRPB RPRPM RPRPT".split(" ");

const OWN_COLOR = "rgb(204, 51, 51)";

const node = (standard) => NAMES.indexOf(`walker:${standard}`);

/** The capture with names that say nothing: the markers by their numbers. */
const NAMELESS = asFile(
  "nameless.trc",
  WALK_TRC.replace(/walker:\w+/g, (name) => `m${NAMES.indexOf(name) + 1}`),
);

/** A frame that has all markers. */
const IN_NO_GAP = 35;

const fileOf = (standards) =>
  standards.map((standard) => `${standard}\twalker:${standard}\t\n`).join("");

function atMapping(work, file = TRC) {
  return atWork(file, async (desk) => {
    await desk.importAsItComes(file.name ?? "walk.trc", "ImportTRC", 41);
    await desk.goTo(IN_NO_GAP);
    await desk.openPanel();
    await desk.beginMapping();
    await work(desk);
  }, { size: { width: 1600, height: 1000 } });
}

async function pick(desk, standard) {
  await desk.waitForAsked(standard);
  await desk.click(node(standard));
}

async function skipProps(desk) {
  for (const prop of PROPS) {
    await desk.waitForAsked(prop);
    await desk.creator.getByRole("button", { name: "Skip" }).click();
  }
}

async function save(desk) {
  const choice = desk.dialog("Select Mapping File...");
  await choice.getByLabel("Name of the file").fill("walk");
  const { name, bytes } = await desk.download(async () => {
    await choice.getByRole("button", { name: "OK" }).click();
    await desk.answer("MNM File Creation Status", "MNM File Creation Successful");
  });
  return { name, text: bytes.toString("latin1") };
}

test("39 markers are mapped by clicking, with a wrong pick, Back and Skip", () =>
  atMapping(async (desk) => {
    const back = desk.creator.getByRole("button", { name: "Back" });
    assert.ok(await back.isDisabled());
    for (const standard of ASKED) {
      await desk.waitForAsked(standard);
      assert.equal(
        await desk.page.locator(".body-picture .asked").getAttribute("data-place"), standard);
      if (standard === "RFHD") {
        await desk.click(node("C7"));
        await desk.waitForAsked("C7");
        assert.equal((await desk.mapping()).RFHD, "walker:C7");
        await back.click();
        await desk.waitForAsked("RFHD");
        assert.equal((await desk.mapping()).RFHD, undefined);
      }
      await desk.click(node(standard));
    }
    await skipProps(desk);
    const { name, text } = await save(desk);
    assert.equal(name, "walk.mnm");
    assert.equal(text, fileOf(ASKED));
  }));

test("a step is skipped where that may be", () =>
  atMapping(async (desk) => {
    const skip = desk.creator.getByRole("button", { name: "Skip" });
    assert.ok(await skip.isDisabled());
    await desk.clickNowhere();
    for (const standard of ASKED) {
      await desk.waitForAsked(standard);
      if (standard !== "LILB") {
        await desk.page.keyboard.press("Enter");
        continue;
      }
      await skip.click();
    }
    assert.equal(await desk.page.locator(".notice").count(), 0);
    await skipProps(desk);
    assert.equal((await save(desk)).text, fileOf(ASKED.filter((standard) => standard !== "LILB")));
  }));

test("a right click at the second marker of a step asks for both again", () =>
  atMapping(async (desk) => {
    const before = ASKED.slice(0, ASKED.indexOf("LWRB"));
    for (const standard of before) {
      await desk.waitForAsked(standard);
      await desk.page.keyboard.press("Enter");
    }
    await desk.waitForAsked("LWRB");
    await desk.click(node("LWRB"), "right");
    await desk.waitForAsked("LWRA");
    assert.deepEqual(Object.keys(await desk.mapping()), before);
  }));

const colors = async (desk) => (await desk.workbench.view.getAttribute("data-colors")).split(";");

test("Abort leaves the scene as it was, at any step, and nothing is saved", () =>
  atMapping(async (desk) => {
    for (const picked of [0, 1, 10, 11, 25, 39]) {
      if (picked > 0) await desk.beginMapping();
      for (const standard of ASKED.slice(0, picked)) {
        await desk.waitForAsked(standard);
        await desk.page.keyboard.press("Enter");
      }
      await desk.waitForAsked([...ASKED, ...PROPS][picked]);
      assert.equal((await colors(desk)).filter((color) => color !== OWN_COLOR).length, picked);
      await desk.creator.getByRole("button", { name: "Abort" }).click();
      await desk.creator.waitFor({ state: "hidden" });
      assert.ok((await colors(desk)).every((color) => color === OWN_COLOR), `after ${picked}`);
      assert.equal(await desk.asked(), null);
    }
  }));

const LEAVINGS = {
  "its cross": (creator) => creator.getByRole("button", { name: "Close the mapping" }).click(),
  Esc: (creator) => creator.getByRole("button", { name: "Skip" }).press("Escape"),
};
for (const [how, leave] of Object.entries(LEAVINGS)) {
  test(`the creator is left by ${how}, as by Abort`, () =>
    atMapping(async (desk) => {
      for (const standard of ASKED.slice(0, 9)) {
        await desk.waitForAsked(standard);
        await desk.page.keyboard.press("Enter");
      }
      await desk.waitForAsked("LILB");
      await leave(desk.creator);
      await desk.creator.waitFor({ state: "hidden" });
      assert.ok((await colors(desk)).every((color) => color === OWN_COLOR));
      assert.equal(await desk.asked(), null);
      await desk.waitForRest();
      await desk.beginMapping();
    }));
}

test("what is odd in the mapping is told while it is made", () =>
  atMapping(async (desk) => {
    await desk.click(node("LFHD"));
    await desk.waitForAsked("LBHD");
    await desk.creator.getByText("Nothing is odd in it.").waitFor();
    await desk.click(node("LFHD"));
    await desk.waitForAsked("RBHD");
    await desk.creator.locator("[data-finding]").first().waitFor();
    await desk.creator.getByRole("button", { name: "Back" }).click();
    await desk.waitForAsked("LBHD");
    await desk.creator.getByText("Nothing is odd in it.").waitFor();
  }));

test("where names say nothing a marker is suggested by its position, and it is said so", () =>
  atMapping(async (desk) => {
    const suggestion = desk.creator.locator('[data-reason="geometry"]');
    await suggestion.getByText("by its position alone: front left of the four markers of the head").waitFor();
    assert.equal(await suggestion.getAttribute("data-suggested"), "m1");
    await desk.page.keyboard.press("Enter");
    await desk.waitForAsked("LBHD");
    assert.deepEqual(await desk.mapping(), { LFHD: "m1" });
  }, NAMELESS));

test("a marker is picked by keys alone", () =>
  atMapping(async (desk) => {
    const { keyboard } = desk.page;
    await keyboard.press("/");
    await keyboard.type("RTOE");
    await keyboard.press("Escape");
    await desk.page.getByRole("listbox", { name: "Nodes" }).focus();
    await keyboard.press("ArrowDown");
    await keyboard.press("Enter");
    await desk.waitForAsked("LBHD");
    assert.deepEqual(await desk.mapping(), { LFHD: "walker:RTOE" });
  }));

test("no task can be given while a marker is asked for", () =>
  atMapping(async (desk) => {
    for (const name of ["Open scene…", "Save scene…", "New scene", "Export HTR…", "About…"]) {
      assert.ok(await desk.button(name).isDisabled(), name);
    }
    assert.ok(await desk.page.getByRole("button", { name: "Import walk.trc" }).isDisabled());
    await desk.creator.getByRole("button", { name: "Abort" }).click();
    await desk.waitForRest();
  }));

test("a held key picks once", () =>
  atMapping(async (desk) => {
    const { keyboard } = desk.page;
    for (let repeats = 0; repeats < 5; ++repeats) await keyboard.down("Enter");
    await keyboard.up("Enter");
    await desk.waitForAsked("LBHD");
    await keyboard.press("Enter");
    await desk.waitForAsked("RBHD");
    assert.deepEqual(Object.keys(await desk.mapping()), ["LFHD", "LBHD"]);
  }));

test("takes that are looked at meanwhile are not picked", () =>
  atMapping(async (desk) => {
    const { keyboard } = desk.page;
    const inFirstRow = async (list) => {
      await desk.page.getByRole("listbox", { name: list }).focus();
      await keyboard.press("ArrowDown");
      await keyboard.press("Enter");
    };
    await desk.workbench.button("Work").click();
    await inFirstRow("Markers");
    await desk.click(3);
    assert.equal(await desk.asked(), null);
    await desk.workbench.button("Work").click();
    await desk.waitForAsked("LFHD");
    await inFirstRow("Nodes");
    await desk.waitForAsked("LBHD");
    assert.deepEqual(Object.keys(await desk.mapping()), ["LFHD"]);
  }));

test("the panel is closed while a marker is asked for", () =>
  atMapping(async (desk) => {
    for (const standard of ASKED.slice(0, 3)) await pick(desk, standard);
    await desk.waitForAsked(ASKED[3]);
    await desk.page.getByRole("button", { name: "Close the panel" }).click();
    await desk.creator.waitFor({ state: "hidden" });
    await desk.panel.waitFor({ state: "hidden" });
    await desk.waitForRest();
    await desk.importFile("walk.trc");
    await desk.dialog("ImportTRC").getByRole("button", { name: "Cancel" }).click();
    await desk.openPanel();
    await desk.beginMapping();
  }));

test("the pointer over a marker says its name", () =>
  atMapping(async (desk) => {
    const places = await desk.places();
    await desk.page.mouse.move(...places.get(node("RTOE")));
    await desk.page.locator(".object-readout").getByText("walker:RTOE").waitFor();
    const cursor = await desk.page.locator("canvas.view-scene").evaluate(
      (canvas) => getComputedStyle(canvas).cursor);
    assert.equal(cursor, "cell");
    await desk.page.mouse.move(0, 0);
  }));
