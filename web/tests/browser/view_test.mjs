// What is seen of takes: where they are, how they are looked at, and what the rows of the timeline say.

import assert from "node:assert/strict";
import { test } from "node:test";
import { colorStretches, decodePng } from "./png.mjs";
import { asFile, markerFile } from "./takes.mjs";
import { COLORS, inWorkbench, useBrowser } from "./workbench.mjs";

useBrowser();

const FRAMES = 120;
const NAMES = ["head", "neck", "hip", "knee", "foot"];

// A post of markers, 1600 high, that goes 3 m along x.
const post = (frame, marker) => [25 * frame, 1600 - 400 * marker, 20 * marker];

async function opened(workbench, ...texts) {
  await workbench.open(texts.map((text, at) => asFile(`take${at + 1}.trc`, text)));
  await workbench.waitForTakes(texts.length);
  await workbench.drawn();
  await workbench.page.keyboard.press("n"); // without names
}

const BESIDE_AXES = 90;

async function seen(workbench, take = 0) {
  const picture = await workbench.picture();
  const { columns, rows } = colorStretches(picture, COLORS[take], { left: BESIDE_AXES });
  if (columns.length === 0) return { inner: 0, width: 0, height: 0, middle: NaN };
  const [left, right] = [columns[0][0], columns[columns.length - 1][1]];
  const edge = 0.08 * (right - left);
  return {
    inner: columns.filter(([begin, end]) => begin > left + edge && end < right - edge).length,
    width: right - left,
    height: rows[rows.length - 1][1] - rows[0][0],
    middle: (left + right) / 2 / picture.width,
  };
}

const NOTHING = ["", "", ""];

for (const [what, pointOf] of [
  ["one value that is far off", (frame, marker) => (frame === 50 && marker === 2 ? [1e9, 0, 0] : post(frame, marker))],
  ["a first frame of one marker", (frame, marker) => (frame < 10 && marker > 0 ? NOTHING : post(frame, marker))],
  ["a first frame of zeros", (frame, marker) => (frame === 0 ? [0, 0, 0] : post(frame, marker))],
]) {
  test(`with ${what} the take is seen`, () =>
    inWorkbench(async (workbench) => {
      await opened(workbench, markerFile(NAMES, FRAMES, pointOf));
      await workbench.page.keyboard.press("End");
      await workbench.waitForFrame(FRAMES - 1);
      assert.ok((await seen(workbench)).height > 60);
      await workbench.page.keyboard.press("f");
      assert.ok((await seen(workbench)).height > 60);
    }));
}

test("a marker alone is a ball that is seen", () =>
  inWorkbench(async (workbench) => {
    await opened(workbench, markerFile(["one"], FRAMES, (frame) => [20 * frame, 1000, 0]));
    assert.ok((await seen(workbench)).height >= 5);
    await workbench.page.keyboard.press("End");
    await workbench.waitForFrame(FRAMES - 1);
    assert.ok((await seen(workbench)).height >= 5);
  }));

test("a take that begins later is seen later", () =>
  inWorkbench(async (workbench) => {
    const text = markerFile(NAMES, FRAMES, post);
    await opened(workbench, text, text);
    await workbench.drawn(2 * NAMES.length);
    await workbench.page.getByLabel("Frames that take2.trc begins later").fill("30");
    const isDrawn = (count) =>
      workbench.page.waitForFunction(
        (wanted) => document.querySelector("[data-view]").dataset.drawn === String(wanted),
        count,
      );
    await isDrawn(NAMES.length);
    assert.equal((await seen(workbench, 1)).width, 0);
    await workbench.page.getByLabel("Frames that take2.trc begins later").press("Escape");
    for (let frame = 0; frame < 30; frame += 10) await workbench.page.keyboard.press("Shift+ArrowRight");
    await workbench.waitForFrame(30);
    await isDrawn(2 * NAMES.length);
    assert.ok((await seen(workbench, 1)).height > 60);
    await workbench.page.keyboard.press("End");
    await workbench.waitForFrame(FRAMES + 29);
    await isDrawn(NAMES.length);
    assert.equal((await seen(workbench, 0)).width, 0);
    await workbench.takes.getByRole("button", { name: /^take2/ }).click();
    await workbench.waitForFrame(FRAMES - 1);
    await workbench.page.keyboard.press("Home");
    await workbench.waitForFrame(-30);
    await isDrawn(NAMES.length);
    assert.equal((await seen(workbench, 1)).width, 0);
  }));

test("things of one size are as large far away where the view is orthogonal", () =>
  inWorkbench(async (workbench) => {
    const corners = [[-500, 1000], [500, 1000], [-500, -1000], [500, -1000]];
    await opened(workbench, markerFile(["a", "b", "c", "d"], 2, (_, marker) => [corners[marker][0], 500, corners[marker][1]]));
    await workbench.page.keyboard.press("1"); // from the front
    assert.ok((await seen(workbench)).inner > 0);
    await workbench.button("Orthogonal").click();
    assert.equal((await seen(workbench)).inner, 0);
  }));

test("what stands along one axis lies when another points up", () =>
  inWorkbench(async (workbench) => {
    await opened(workbench, markerFile(NAMES, 2, (_, marker) => post(0, marker)));
    await workbench.page.keyboard.press("1");
    const standing = (await seen(workbench)).height;
    await workbench.page.getByRole("combobox", { name: "Up" }).selectOption("z");
    assert.ok((await seen(workbench)).height < standing / 2);
  }));

test("what is followed stays in the middle", () =>
  inWorkbench(async (workbench) => {
    await opened(workbench, markerFile(NAMES, FRAMES, post));
    await workbench.page.keyboard.press("1");
    const begin = (await seen(workbench)).middle;
    await workbench.page.keyboard.press("End");
    await workbench.waitForFrame(FRAMES - 1);
    assert.ok(Math.abs((await seen(workbench)).middle - begin) > 0.2);
    await workbench.button("Follow").click();
    assert.ok(Math.abs((await seen(workbench)).middle - 0.5) < 0.1);
    await workbench.page.keyboard.press("Home");
    await workbench.waitForFrame(0);
    assert.ok(Math.abs((await seen(workbench)).middle - 0.5) < 0.1);
  }));

test("trails show where markers go", () =>
  inWorkbench(async (workbench) => {
    await opened(workbench, markerFile(NAMES, FRAMES, post));
    await workbench.page.keyboard.press("1");
    for (let frame = 0; frame < 60; frame += 10) await workbench.page.keyboard.press("Shift+ArrowRight");
    await workbench.waitForFrame(60);
    const without = await workbench.picture();
    await workbench.page.getByRole("combobox", { name: "Trails" }).selectOption("all");
    const { pixels } = await workbench.picture();
    const changed = pixels.filter((value, at) => Math.abs(value - without.pixels[at]) > 20).length;
    assert.ok(changed > 1000, `${changed}`);
  }));

// Of a row of the timeline: where its widest hole begins and ends, as a share of its length.
async function widestHole(workbench, row) {
  const picture = decodePng(await workbench.page.locator(".rows-canvas").screenshot());
  const [top, bottom] = colorStretches(picture, COLORS[0]).rows[row];
  const middle = Math.round((top + bottom) / 2);
  const { columns } = colorStretches(picture, COLORS[0], { top: middle, bottom: middle });
  const [left, right] = [columns[0][0], columns[columns.length - 1][1]];
  const holes = columns.slice(1).map(([begin], at) => [columns[at][1], begin]);
  const [begin, end] = holes.reduce((one, other) => (other[1] - other[0] > one[1] - one[0] ? other : one));
  return [begin, end].map((at) => (at - left) / (right - left));
}

test("a row has a hole where its marker is missing, and a mark where something is odd", () =>
  inWorkbench(async (workbench) => {
    const text = markerFile(["gap", "odd"], FRAMES, (frame, marker) => {
      if (marker === 0 && frame >= 30 && frame < 60) return NOTHING;
      return marker === 1 && frame === 90 ? ["bad", 1, 0] : post(frame, marker);
    });
    await opened(workbench, text);
    await workbench.finding("trc-number-unreadable").waitFor();
    await workbench.drawn();
    const [begin, end] = await widestHole(workbench, 0);
    assert.ok(Math.abs(begin - 0.25) < 0.02 && Math.abs(end - 0.5) < 0.02, `${begin} to ${end}`);
    const mark = await widestHole(workbench, 1);
    assert.ok(Math.abs((mark[0] + mark[1]) / 2 - 90.5 / FRAMES) < 0.01 && mark[1] - mark[0] < 0.05, `${mark}`);
  }));
