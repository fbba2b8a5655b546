// Names and files that want to be more: nothing of them runs, nothing breaks out.

import assert from "node:assert/strict";
import path from "node:path";
import { test } from "node:test";
import { atWork, chooseMapping } from "./desk.mjs";
import { asFile, markerFile } from "./takes.mjs";
import { EXAMPLES, inWorkbench, useBrowser } from "./workbench.mjs";

useBrowser();

const NAMES = [
  "<img src=x onerror=alert(1)>",
  "</script><script>alert(2)</script>",
  '"><svg onload=alert(3)>',
  "javascript:alert(4)",
  "https://elsewhere.example/collect",
  "{{constructor.constructor('alert(5)')()}}",
  "\u202Etxt.eniram\u202C",
  "\u2066over\u2069",
  "${alert(6)}",
  "__proto__",
  "constructor",
  "long".repeat(1900),
  "%00%2e%2e%2f",
];

const HOSTILE_FILE = "<img src=x onerror=alert(7)>.trc";
const MAPPING = path.join(EXAMPLES, "walk.mnm");

function hostileTake() {
  const markers = NAMES.map((name) => name.replace(/[\t\n\r]/g, " "));
  return markerFile(markers, 10, (frame, marker) => [marker * 100, 500 + frame, 0]);
}

// Clicks all that can be clicked, once, but what leaves the take.
async function clickEverything(workbench) {
  const buttons = workbench.page.locator("button:enabled:visible, summary:visible, [data-object]:visible");
  for (let at = 0; at < (await buttons.count()); ++at) {
    const button = buttons.nth(at);
    const name = `${await button.getAttribute("aria-label")} ${await button.textContent()}`;
    if (/Open|Close|Picture|GLB|HTR|BVK|TRC|C3D|CSV|BVH|Report|Work/.test(name) && name.length < 200) continue;
    await button.click();
    await workbench.page.keyboard.press("Escape");
  }
}

test("names of markers are names", () =>
  inWorkbench(async (workbench) => {
    await workbench.open([asFile("hostile.trc", hostileTake())]);
    await workbench.waitForTakes(1);
    assert.equal(Number(await workbench.view.getAttribute("data-objects")), NAMES.length);
    await clickEverything(workbench);
    await workbench.button("Curves").click();
    assert.equal(await workbench.page.locator("img, svg[onload], iframe, object, embed").count(), 0);
    const scripts = await workbench.page.locator("script").count();
    assert.equal(scripts, await workbench.page.evaluate(() => document.scripts.length));
  }));

for (const name of ["<img src=x onerror=alert(1)>.trc", '";alert(1);".trc', "\u202Ecrt.trc", `${"a".repeat(10_000)}.trc`]) {
  test(`the name of the file ${JSON.stringify(name.slice(0, 40))} is a name`, () =>
    inWorkbench(async (workbench) => {
      await workbench.drop([{ name, text: hostileTake() }]);
      await workbench.waitForTakes(1);
      await workbench.drop([{ name: `x${name}`, text: "no take" }]);
      await workbench.notice("was not opened").waitFor();
      assert.equal(await workbench.page.locator("img").count(), 0);
      assert.ok(await workbench.page.evaluate(
        () => document.documentElement.scrollWidth <= innerWidth), "nothing is pushed out of the window");
    }));
}

test("bytes that are no text are refused or shown, and nothing more", () =>
  inWorkbench(async (workbench) => {
    const noise = Buffer.from(Array.from({ length: 65_536 }, (_, at) => (at * 2_654_435_761) >>> 24));
    await workbench.open([
      { name: "noise.htr", mimeType: "", buffer: noise },
      { name: "noise.trc", mimeType: "", buffer: noise },
      asFile("good.trc", hostileTake()),
    ]);
    await workbench.waitForTakes(1);
    await workbench.takes.getByText("good.trc").waitFor();
  }));

test("what a page is let to do is nothing but to run itself", () =>
  inWorkbench(async (workbench) => {
    const tried = await workbench.page.evaluate(async () => {
      const answers = {};
      const refused = (work) => work.then(() => false, () => true);
      answers.fetch = await refused(fetch("https://elsewhere.example/"));
      answers.image = await refused(new Promise((done, fail) => {
        const image = new Image();
        image.onload = done;
        image.onerror = fail;
        image.src = "https://elsewhere.example/a.png";
      }));
      const script = document.createElement("script");
      script.textContent = "window.ran = true";
      document.body.append(script);
      answers.script = window.ran === undefined;
      try {
        answers.text = !new Function("return true")();
      } catch {
        answers.text = true;
      }
      return answers;
    });
    assert.deepEqual(tried, { fetch: true, image: true, script: true, text: true });
    // The browser says of each that it was refused; and nothing was asked for.
    assert.ok(workbench.faults.every((fault) => /Content Security Policy/.test(fault)), workbench.faults.join("\n"));
    workbench.faults.length = 0;
    workbench.requested.delete("https://elsewhere.example/a.png");
  }));

test("names of nodes, and of files that are chosen, are names", () =>
  atWork([asFile(HOSTILE_FILE, hostileTake())], async (desk) => {
    await desk.page.getByRole("button", { name: /^Import <img/ }).click();
    await desk.dialog("ImportTRC").getByRole("button", { name: "OK", exact: true }).click();
    await desk.waitForNodes(NAMES.length);
    await desk.openPanel();
    await desk.beginMapping();
    await desk.page.getByRole("listbox", { name: "Nodes" }).focus();
    for (const standard of ["LBHD", "RBHD", "RFHD"]) {
      await desk.page.keyboard.press("ArrowDown");
      await desk.page.keyboard.press("Enter");
      await desk.waitForAsked(standard);
    }
    assert.equal((await desk.mapping()).LFHD, NAMES[0]);
    await desk.creator.getByRole("button", { name: "Abort" }).click();
    await desk.creator.waitFor({ state: "hidden" });
    await desk.waitForRest();
    await chooseMapping(desk, MAPPING);
    await desk.panel.getByRole("button", { name: "Convert TRC to BVK" }).click();
    await desk.dialog("Select Source TRC Files...").getByLabel(HOSTILE_FILE, { exact: true }).check();
    assert.equal(await desk.page.locator("img, svg[onload], iframe, object, embed").count(), 0);
  }));
