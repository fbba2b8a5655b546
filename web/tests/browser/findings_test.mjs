// What is odd in a take, and what comes of it: told for what is to be done, and gone to.

import assert from "node:assert/strict";
import { test } from "node:test";
import { asFile, markerFile, WALK_HTR, WALK_TRC } from "./takes.mjs";
import { inWorkbench, useBrowser } from "./workbench.mjs";

useBrowser();

test("a finding is gone to, and its line is shown with the place in it", () =>
  inWorkbench(async (workbench) => {
    const lines = WALK_TRC.split("\n");
    const frame = lines.findIndex((line) => line.startsWith("30\t"));
    lines[frame] = lines[frame].replace(/\t(-?[\d.]+)/, "\tx$1").replace(/\t(-?[\d.]+)/, "\tbad");
    await workbench.open([asFile("damaged.trc", lines.join("\n"))]);
    await workbench.waitForTakes(1);
    const finding = workbench.page.locator("[data-code]:not([data-code=trc-marker-gaps])").first();
    await finding.getByRole("button", { name: new RegExp(`^line ${frame + 1}, column`) }).first().click();
    const line = workbench.page.getByRole("group", { name: `Line ${frame + 1} of the file` });
    assert.match(await line.locator("mark").textContent(), /x|bad/);
  }));

test("a place leads to its marker and frame, whatever number the frame has", () =>
  inWorkbench(async (workbench) => {
    const text = markerFile(["A", "B"], 10, (frame, marker) => [frame, marker, frame === 7 && marker === 1 ? "bad" : 0]);
    await workbench.open([asFile("repeated.trc", text.replace("\n6\t", "\n5\t").replace("\n8\t", "\n4\t"))]);
    await workbench.waitForTakes(1);
    const finding = workbench.finding("trc-number-unreadable");
    await finding.getByRole("button", { name: / · B · frame 8$/ }).click();
    await workbench.waitForFrame(7);
    assert.match(await workbench.page.locator('[data-object][aria-selected="true"]').textContent(), /^B/);
  }));

test("what a finding means depends on what is to be done", () =>
  inWorkbench(async (workbench) => {
    await workbench.open([asFile("walk.trc", WALK_TRC)]);
    await workbench.waitForTakes(1);
    const gaps = workbench.finding("trc-marker-gaps");
    const imported = await gaps.textContent();
    await workbench.page.getByRole("combobox", { name: "For" }).selectOption("convert");
    await workbench.page.waitForFunction(
      (before) => {
        const now = document.querySelector('[data-code="trc-marker-gaps"]')?.textContent;
        return now !== undefined && now !== before;
      },
      imported,
    );
  }));

test("a file without anything odd is told to be so", () =>
  inWorkbench(async (workbench) => {
    await workbench.open([asFile("walk.htr", WALK_HTR)]);
    await workbench.waitForTakes(1);
    await workbench.page.getByText("Nothing is odd in this file.").waitFor();
  }));

for (const [what, name, text] of [
  ["a letter", "letter.htr", "Dear client,\n"],
  ["an empty file", "empty.trc", ""],
  ["half a header", "half.htr", WALK_HTR.slice(0, 60)],
]) {
  test(`${what} is refused with the reason, and the page goes on`, () =>
    inWorkbench(async (workbench) => {
      await workbench.open([asFile(name, text), asFile("walk.htr", WALK_HTR)]);
      await workbench.waitForTakes(1);
      const notice = workbench.notice(`${name} was not opened`);
      await notice.waitFor();
      assert.ok((await notice.locator(".words").textContent()).length > 10);
      await workbench.takes.getByText("walk.htr").waitFor();
    }));
}

test("a damaged file is shown as far as it is read", () =>
  inWorkbench(async (workbench) => {
    await workbench.open([asFile("cut.trc", WALK_TRC.slice(0, WALK_TRC.length / 2))]);
    await workbench.waitForTakes(1);
    assert.ok((await workbench.pixelsOf(0)) > 150);
    await workbench.finding("trc-frame-count").waitFor();
  }));
