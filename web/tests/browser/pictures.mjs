// Makes the pictures of the documents: node web/tests/browser/pictures.mjs [NAME...]
//
// All of docs/images/workbench-*.png, or those of the names that are given. The same page makes the same
// pictures, with the letters of Debian's fonts-dejavu-core, but for a few pixels that are one step lighter or darker.

import { writeFileSync } from "node:fs";
import path from "node:path";
import { Work } from "./desk.mjs";
import { asFile, WALK_HTR, WALK_TRC } from "./takes.mjs";
import { closeBrowser, inWorkbench, launchBrowser, ROOT } from "./workbench.mjs";

const SIZE = { width: 1280, height: 800 };

const MOTION = asFile("walk.htr", WALK_HTR);
const MARKERS = asFile("walk.trc", WALK_TRC);

async function opened(workbench, files) {
  await workbench.open(files);
  await workbench.waitForTakes(files.length);
  await workbench.drawn();
}

async function goTo(workbench, frame) {
  const field = workbench.page.getByLabel("Frame", { exact: true });
  await field.fill(String(frame));
  await field.press("Enter");
  await field.blur();
}

async function press(workbench, ...keys) {
  for (const key of keys) await workbench.page.keyboard.press(key);
}

async function select(workbench, name) {
  await workbench.search(name);
  await workbench.objects.first().click();
  await press(workbench, "/");
  await workbench.page.keyboard.press("Control+A");
  await press(workbench, "Delete");
  await workbench.page.locator("input:focus").blur();
}

function damaged() {
  const lines = WALK_TRC.split("\n");
  const at = lines.findIndex((line) => line.startsWith("42\t"));
  const cells = lines[at].split("\t");
  cells[8] = "12o5.5";
  cells[14] = "";
  lines[at] = cells.join("\t");
  return asFile("damaged.trc", lines.join("\n"));
}

/** A mapping that is made by picking, as far as its panel. */
async function mappingBegun(workbench) {
  await opened(workbench, [MARKERS]);
  await workbench.button("Work").click();
  const desk = new Work(workbench);
  await desk.waitForRest();
  await desk.importAsItComes("walk.trc", "ImportTRC", 41);
  await press(workbench, "6", "6", "6");
  await desk.openPanel();
  return desk;
}

/** Takes what is suggested until the standard marker is asked for. */
async function pickedUntil(desk, standard) {
  for (let asked = await desk.asked(); asked !== standard; asked = await desk.asked()) {
    await desk.page.keyboard.press("Enter");
    await desk.page.waitForFunction(
      (before) => document.querySelector("[data-view]").dataset.picking !== before, asked);
  }
}

async function lastStep(desk) {
  await pickedUntil(desk, "LPRPB");
  for (const prop of ["LPRPB", "LPRPM", "LPRPT", "RPRPB", "RPRPM", "RPRPT"]) {
    await desk.waitForAsked(prop);
    await desk.creator.getByRole("button", { name: "Skip" }).click();
  }
}

const PICTURES = {
  async "mapping-1"(workbench) {
    await mappingBegun(workbench);
  },
  async "mapping-2"(workbench) {
    const desk = await mappingBegun(workbench);
    await desk.panel.getByRole("button", { name: "Create" }).click();
    await desk.message("Pick optional markers?").waitFor();
  },
  async "mapping-3"(workbench) {
    const desk = await mappingBegun(workbench);
    await desk.beginMapping();
    await desk.page.mouse.move(...(await desk.places()).get(0));
    return { pointerStays: true };
  },
  async "mapping-4"(workbench) {
    const desk = await mappingBegun(workbench);
    await desk.beginMapping();
    await pickedUntil(desk, "LSHO");
  },
  async "mapping-5"(workbench) {
    const desk = await mappingBegun(workbench);
    await desk.beginMapping();
    await pickedUntil(desk, "LHEL");
  },
  async "mapping-6"(workbench) {
    const desk = await mappingBegun(workbench);
    await desk.beginMapping();
    await lastStep(desk);
    await desk.dialog("Select Mapping File...").getByLabel("Name of the file").fill("walk");
  },
  async walk(workbench) {
    await opened(workbench, [MOTION, MARKERS]);
    await goTo(workbench, 45);
    await press(workbench, "t", "f", "PageUp", "PageUp", "n");
  },
  async gaps(workbench) {
    await opened(workbench, [MARKERS]);
    await select(workbench, "walker:LFWT");
    await press(workbench, "]", "ArrowRight", "t", "PageUp", "PageUp");
  },
  async finding(workbench) {
    await opened(workbench, [damaged()]);
    const place = workbench.page.locator(".findings-list").getByRole("button", { name: /^line 48/ });
    await place.first().click();
    await workbench.page.getByRole("group", { name: /^Line 48 / }).waitFor();
  },
  async curves(workbench) {
    await opened(workbench, [MOTION]);
    await select(workbench, "LeftForeArm");
    await workbench.button("Curves").click();
    await workbench.page.getByRole("combobox", { name: "Curves" }).selectOption("rotation");
    await goTo(workbench, 60);
    await press(workbench, "t", "PageUp", "PageUp");
    await workbench.page.locator(".plot canvas").waitFor();
  },
  async trails(workbench) {
    await opened(workbench, [MARKERS]);
    await workbench.button("Dark / light").click();
    await press(workbench, "n", "m", "m", "3", "p");
    await goTo(workbench, 70);
    await press(workbench, "f");
  },
  async empty(workbench) {
    await workbench.button("Open files…").waitFor();
    await workbench.page.waitForFunction(() => !document.querySelector(".empty button:disabled"));
  },
};

// What is seen when the view has come to rest.
async function pictureAtRest(page) {
  let last = Buffer.alloc(0);
  for (;;) {
    await page.waitForTimeout(300);
    const bytes = await page.screenshot();
    if (bytes.equals(last)) return bytes;
    last = bytes;
  }
}

async function makePicture(name) {
  await inWorkbench(
    async (workbench) => {
      const made = await PICTURES[name](workbench);
      if (!made?.pointerStays) await workbench.page.mouse.move(640, 20); // over nothing
      const file = path.join(ROOT, `docs/images/workbench-${name}.png`);
      const bytes = await pictureAtRest(workbench.page);
      writeFileSync(file, bytes);
      console.log(`${file} ${bytes.length} bytes`);
    },
    { size: SIZE },
  );
}

await launchBrowser();
try {
  const names = process.argv.slice(2);
  for (const name of names.length > 0 ? names : Object.keys(PICTURES)) await makePicture(name);
} finally {
  await closeBrowser();
}
