// What a person sees of takes: objects in the view, rows, gaps, time.

import assert from "node:assert/strict";
import path from "node:path";
import { test } from "node:test";
import { WALK_TRC } from "./takes.mjs";
import { EXAMPLES, inWorkbench, useBrowser } from "./workbench.mjs";

useBrowser();

const MOTION = path.join(EXAMPLES, "walk.htr");
const MARKERS = path.join(EXAMPLES, "walk.trc");

test("the empty page says what to do", () =>
  inWorkbench(async (workbench) => {
    await workbench.page.getByText("Drop motion-capture files here").waitFor();
    await workbench.button("Open files…").waitFor();
  }));

for (const [name, objects, kind] of [
  ["walk.htr", 21, "segments"],
  ["walk.trc", 41, "markers"],
]) {
  test(`the example ${name} is seen`, () =>
    inWorkbench(async (workbench) => {
      await workbench.example(name).click();
      await workbench.waitForTakes(1);
      await workbench.takes.getByText(`${objects} ${kind}, 120 frames, 60 fps, mm`).waitFor();
      assert.equal(Number(await workbench.view.getAttribute("data-objects")), objects);
      assert.ok((await workbench.pixelsOf(0)) > 150);
      await workbench.objects.first().waitFor();
      assert.ok((await workbench.objects.count()) > 5);
    }));
}

test("two takes lie over each other in two colors, apart in time on asking", () =>
  inWorkbench(async (workbench) => {
    await workbench.open([MOTION, MARKERS]);
    await workbench.waitForTakes(2);
    await workbench.page.keyboard.press("n"); // without names
    const both = await workbench.pixelsOf(0);
    assert.ok(both > 150);
    assert.ok((await workbench.pixelsOf(1)) > 150);
    await workbench.page.getByLabel("Show walk.htr").uncheck();
    await workbench.drawn();
    assert.ok((await workbench.pixelsOf(0)) < both / 3);
    const offset = workbench.page.getByLabel("Frames that walk.trc begins later");
    await offset.fill("30");
    assert.equal(await offset.inputValue(), "30");
  }));

test("two takes of one name are told apart wherever one is told of", () =>
  inWorkbench(async (workbench) => {
    const { page, takes } = workbench;
    await workbench.drop([{ name: "walk.trc", text: WALK_TRC }, { name: "walk.trc", text: WALK_TRC }]);
    await workbench.waitForTakes(2);
    await takes.getByRole("button", { name: /^walk\.trc \(2\)/ }).click();
    for (const name of ["Markers", "Findings"]) {
      await page.getByRole("region", { name, exact: true }).getByText("walk.trc (2)", { exact: true }).waitFor();
    }
    await page.getByLabel("Show walk.trc (2)", { exact: true }).uncheck();
    await page.getByRole("img", { name: "of walk.trc (2)" }).waitFor();
    await workbench.objects.first().click();
    await page.locator(".object-readout").getByText("walk.trc (2)").waitFor();
    await page.getByRole("button", { name: "Close walk.trc", exact: true }).click();
    await workbench.waitForTakes(1);
    await takes.getByText("walk.trc (2)").waitFor();
  }));

test("files are opened by dropping them", () =>
  inWorkbench(async (workbench) => {
    await workbench.drop([{ name: "dropped.trc", text: WALK_TRC }]);
    await workbench.waitForTakes(1);
    await workbench.takes.getByText("dropped.trc").waitFor();
  }));

test("a gap is a hole in the row, and no object in the view", () =>
  inWorkbench(async (workbench) => {
    await workbench.open(MARKERS);
    await workbench.waitForTakes(1);
    await workbench.drawn();
    const all = Number(await workbench.view.getAttribute("data-objects"));
    await workbench.search("walker:LFWT");
    await workbench.objects.first().click();
    await workbench.page.keyboard.press("]");
    await workbench.page.waitForFunction(
      (count) => {
        const { frame, drawn } = document.querySelector("[data-view]").dataset;
        return Number(frame) > 0 && Number(drawn) < count;
      },
      all,
    );
  }));

test("what is selected in the list is selected in the view, and told", () =>
  inWorkbench(async (workbench) => {
    await workbench.open(MOTION);
    await workbench.waitForTakes(1);
    await workbench.drawn();
    await workbench.search("RightHand");
    const row = workbench.objects.filter({ hasText: /^RightHand/ });
    await row.click();
    assert.equal(await row.getAttribute("aria-selected"), "true");
    await workbench.page.locator(".object-readout").getByText("RightHand").waitFor();
  }));

test("a click in the view selects what lies there", () =>
  inWorkbench(async (workbench) => {
    await workbench.open(MARKERS);
    await workbench.waitForTakes(1);
    await workbench.drawn();
    const box = await workbench.view.boundingBox();
    // Somewhere on the way over the middle of the view there is a marker.
    for (let y = box.y + 10; y < box.y + box.height; y += 6) {
      for (let x = box.x + box.width * 0.4; x < box.x + box.width * 0.6; x += 6) {
        await workbench.page.mouse.move(x, y);
        const over = await workbench.page.locator("canvas.view-scene.over").count();
        if (over === 0) continue;
        await workbench.page.mouse.click(x, y);
        await workbench.page.locator('[data-object][aria-selected="true"]').waitFor();
        return;
      }
    }
    assert.fail("no marker lies under the pointer");
  }));

test("curves of what is selected are drawn", () =>
  inWorkbench(async (workbench) => {
    await workbench.open(MOTION);
    await workbench.waitForTakes(1);
    await workbench.objects.first().click();
    await workbench.button("Curves").click();
    await workbench.page.getByRole("img", { name: /^Curves of the position of / }).waitFor();
    await workbench.page.locator(".plot canvas").waitFor();
  }));
