// Time: playing, stepping and scrubbing, by keys and by the pointer.

import assert from "node:assert/strict";
import path from "node:path";
import { test } from "node:test";
import { asFile, markerFile } from "./takes.mjs";
import { EXAMPLES, inWorkbench, useBrowser } from "./workbench.mjs";

useBrowser();

function withWalk(work) {
  return inWorkbench(async (workbench) => {
    await workbench.open(path.join(EXAMPLES, "walk.htr"));
    await workbench.waitForTakes(1);
    await workbench.drawn();
    await work(workbench, (key) => workbench.page.keyboard.press(key));
  });
}

test("keys step by frames", () =>
  withWalk(async (workbench, press) => {
    for (const [key, frame] of [
      ["ArrowRight", 1],
      ["ArrowRight", 2],
      ["ArrowLeft", 1],
      ["Shift+ArrowRight", 11],
      ["End", 119],
      ["ArrowRight", 119],
      ["Home", 0],
      ["ArrowLeft", 0],
    ]) {
      await press(key);
      await workbench.waitForFrame(frame);
    }
  }));

test("space plays and stops", () =>
  withWalk(async (workbench, press) => {
    await press(" ");
    await workbench.page.waitForFunction(
      () => Number(document.querySelector("[data-view]").dataset.frame) > 5,
    );
    await press(" ");
    await workbench.button("Play").waitFor();
    const stopped = await workbench.frame();
    await workbench.drawn();
    assert.equal(await workbench.frame(), stopped);
  }));

test("J, K and L play backward, stop and play forward", () =>
  withWalk(async (workbench, press) => {
    await press("End");
    await press("j");
    await workbench.page.waitForFunction(
      () => Number(document.querySelector("[data-view]").dataset.frame) < 110,
    );
    await press("k");
    await workbench.button("Play").waitFor();
    const stopped = await workbench.frame();
    await press("l");
    await workbench.page.waitForFunction(
      (from) => Number(document.querySelector("[data-view]").dataset.frame) > from,
      stopped,
    );
    await press("k");
  }));

test("playing once stays between the in and the out point", () =>
  withWalk(async (workbench, press) => {
    await press("Shift+ArrowRight");
    await press("i");
    await press("Shift+ArrowRight");
    await press("o");
    await press("Home");
    await workbench.waitForFrame(10);
    await press("End");
    await workbench.waitForFrame(20);
    await press("x");
    await press("End");
    await workbench.waitForFrame(119);
  }));

test("a drag along the scale scrubs", () =>
  withWalk(async (workbench) => {
    const ruler = workbench.page.getByRole("slider", { name: "Time" });
    const box = await ruler.boundingBox();
    const middle = box.y + box.height / 2;
    await workbench.page.mouse.move(box.x + box.width * 0.5, middle);
    await workbench.page.mouse.down();
    const from = await workbench.frame();
    assert.ok(from > 20 && from < 100, `frame ${from}`);
    await workbench.page.mouse.move(box.x + box.width * 0.8, middle, { steps: 4 });
    await workbench.page.mouse.up();
    assert.ok((await workbench.frame()) > from + 10);
    assert.equal(Number(await ruler.getAttribute("aria-valuenow")), (await workbench.frame()) + 1);
  }));

test("a frame that is typed is gone to, and the picture is another one", () =>
  withWalk(async (workbench) => {
    const before = (await workbench.picture()).pixels;
    const field = workbench.page.getByLabel("Frame", { exact: true });
    await field.fill("60");
    await field.press("Enter");
    await workbench.waitForFrame(59);
    assert.notDeepEqual((await workbench.picture()).pixels, before);
  }));

test("all keys are shown on ?", () =>
  withWalk(async (workbench, press) => {
    await press("?");
    const dialog = workbench.page.getByRole("dialog", { name: "Keys" });
    await dialog.getByText("Play or stop").waitFor();
    await press("Escape");
    await dialog.waitFor({ state: "hidden" });
  }));

// Of 60 frames: `one` has gaps from 10 and 30 on, `two` from 20 on, and is unreadable in frame 40.
const GAPPY = markerFile(["one", "two", "three"], 60, (frame, marker) => {
  const isGap = marker === 0 ? frame % 20 === 10 : marker === 1 && frame === 20;
  if (isGap && frame < 40) return ["", "", ""];
  return marker === 1 && frame === 40 ? ["bad", 1, 0] : [frame, 100 * marker, 0];
});

test("buttons go to gaps and findings", () =>
  inWorkbench(async (workbench) => {
    await workbench.open(asFile("gappy.trc", GAPPY));
    await workbench.waitForTakes(1);
    await workbench.finding("trc-number-unreadable").waitFor();
    const next = workbench.button("To the next gap, of what is selected or of all");
    for (const frame of [10, 20, 30]) {
      await next.click();
      await workbench.waitForFrame(frame);
    }
    await workbench.objects.filter({ hasText: "two" }).click();
    await workbench.button("To the gap before, of what is selected or of all").click();
    await workbench.waitForFrame(20);
    await workbench.objects.filter({ hasText: "three" }).click();
    assert.ok(await next.isDisabled());
    await workbench.button("To the next finding").click();
    await workbench.waitForFrame(40);
    const marked = workbench.objects.filter({ hasText: "two" });
    assert.equal(await marked.getAttribute("aria-selected"), "true");
    await workbench.page.keyboard.press("End");
    await workbench.page.keyboard.press("q");
    await workbench.waitForFrame(40);
  }));

test("without a finding there is none to go to", () =>
  withWalk((workbench) => workbench.page.locator('[aria-label="To the next finding"]:disabled').waitFor()));

test("keys shift the view, and the timeline when that is closer", () =>
  withWalk(async (workbench, press) => {
    const pixels = async (element) => Buffer.from(await element.screenshot()).toString("base64");
    const begin = await pixels(workbench.view);
    await press("d");
    await workbench.drawn();
    assert.notEqual(await pixels(workbench.view), begin);
    await press("a");
    await workbench.drawn();
    const ruler = workbench.page.getByRole("slider", { name: "Time" });
    for (let times = 0; times < 4; ++times) await press("+");
    const closer = await pixels(ruler);
    await press("Control+ArrowRight");
    await workbench.drawn();
    const along = await pixels(ruler);
    assert.notEqual(along, closer);
    await press("Control+ArrowLeft");
    await workbench.drawn();
    assert.equal(await pixels(ruler), closer);
    assert.equal(await workbench.frame(), 0);
  }));
