// Makes the pictures of the documents: node web/tests/browser/pictures.mjs [NAME...]
//
// All of docs/images/workbench-*.png, or those of the names that are given. The same page makes the same
// pictures, with the letters of Debian's fonts-dejavu-core, but for a few pixels that are one step lighter or darker.

import { writeFileSync } from "node:fs";
import path from "node:path";
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

const PICTURES = {
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
      await PICTURES[name](workbench);
      await workbench.page.mouse.move(640, 20); // over nothing
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
