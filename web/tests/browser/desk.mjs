// Working on a scene: the plug-in's dialogs, its panel and its creator of mappings, as a person uses them.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import { inWorkbench } from "./workbench.mjs";

const LONG = 60_000;

export class Work {
  constructor(workbench) {
    this.workbench = workbench;
    this.page = workbench.page;
  }

  /** The button of that name in the column at the right. */
  button(name) {
    return this.page.getByRole("complementary", { name: "Work" }).getByRole("button", { name, exact: true });
  }

  dialog(title) {
    return this.page.getByRole("dialog", { name: title, exact: true });
  }

  message(caption) {
    return this.page.getByRole("alertdialog", { name: caption, exact: true });
  }

  /** Closes a message box, which is to have this text. */
  async answer(caption, text, button = "OK") {
    const box = this.message(caption);
    const words = box.getByText(text, { exact: true });
    await words.waitFor();
    await box.getByRole("button", { name: button, exact: true }).click();
    await words.waitFor({ state: "hidden" });
  }

  /** Waits until the control of this label, in this part of the page, is so: ":disabled", ":checked". */
  async waitUntil(part, label, state) {
    await part.getByLabel(label, { exact: true }).and(this.page.locator(state)).waitFor();
  }

  async importFile(name) {
    await this.page.getByRole("button", { name: `Import ${name}`, exact: true }).click();
  }

  /** Imports with the options as they come. */
  async importAsItComes(name, title, nodes) {
    await this.importFile(name);
    await this.dialog(title).getByRole("button", { name: "OK", exact: true }).click();
    await this.waitForNodes(nodes);
  }

  async waitForNodes(count) {
    await this.page.waitForFunction(
      (wanted) => Number(document.querySelector("[data-view]").dataset.objects) === wanted,
      count,
      { timeout: LONG },
    );
    await this.waitForRest();
  }

  /** Waits until another task can be given. */
  async waitForRest() {
    await this.page.waitForFunction(
      () => [...document.querySelectorAll("aside button")].some(
        (button) => button.textContent === "About…" && !button.disabled),
      undefined,
      { timeout: LONG },
    );
  }

  async openPanel() {
    await this.button("Utility panel").click();
    await this.panel.waitFor();
  }

  get panel() {
    return this.page.getByRole("region", { name: "Convert TRC to BVK" });
  }

  get creator() {
    return this.page.getByRole("region", { name: "MNM Creator / Marker Selection" });
  }

  /** The standard marker that is asked for. */
  asked() {
    return this.workbench.view.getAttribute("data-picking");
  }

  async waitForAsked(standard) {
    await this.page.waitForFunction(
      (wanted) => document.querySelector("[data-view]").dataset.picking === wanted,
      standard,
      { timeout: LONG },
    );
  }

  /** Begins a mapping, without wrist sticks. */
  async beginMapping() {
    await this.panel.getByRole("button", { name: "Create", exact: true }).click();
    for (const side of ["left", "right"]) {
      await this.answer("Pick optional markers?", `Are you using a ${side} wrist stick?`, "No");
    }
    await this.waitForAsked("LFHD");
  }

  /** The names of the mapping so far, by the standard ones. */
  async mapping() {
    return Object.fromEntries(await this.creator.locator("tbody tr").evaluateAll((rows) =>
      rows.map((row) => [row.dataset.standard, row.cells[1].textContent])));
  }

  async goTo(frame) {
    const field = this.page.getByLabel("Frame", { exact: true });
    await field.fill(String(frame));
    await field.press("Enter");
    await field.blur();
  }

  /** Where each node is in the view, by the pointer that goes over all of it: [x, y] by its number. */
  async places() {
    await this.workbench.drawn();
    return new Map(await this.page.evaluate(() => {
      const canvas = document.querySelector("canvas.view-scene");
      const { left, top, width, height } = canvas.getBoundingClientRect();
      const seen = new Map();
      for (let y = top + 2; y < top + height; y += 3) {
        for (let x = left + 2; x < left + width; x += 3) {
          canvas.dispatchEvent(new PointerEvent("pointermove", { clientX: x, clientY: y, pointerType: "mouse" }));
          const { over } = canvas.dataset;
          if (over) seen.set(Number(over), [...(seen.get(Number(over)) ?? []), [x, y]]);
        }
      }
      const middle = (all) => all[Math.floor(all.length / 2)];
      return [...seen].map(([node, all]) => [node, middle(all)]);
    }));
  }

  /** Clicks the node of this number, turning the view until it is seen. */
  async click(node, button = "left") {
    for (let turns = 0; turns < 12; ++turns) {
      if (turns > 0) await this.turn();
      if (turns > 0 || !this.seen) this.seen = await this.places();
      const place = this.seen.get(node);
      if (!place) continue;
      await this.page.mouse.click(...place, { button });
      return;
    }
    assert.fail(`node ${node} is not seen from any side`);
  }

  /** Turns the view about what it shows, by the mouse, as it is turned by a hand that looks for something. */
  async turn() {
    const { x, y, height } = await this.workbench.view.boundingBox();
    await this.page.mouse.move(x + 20, y + height - 40);
    await this.page.mouse.down();
    await this.page.mouse.move(x + 90, y + height - 40, { steps: 4 });
    await this.page.mouse.up();
  }

  async clickNowhere() {
    const { x, y } = await this.workbench.view.boundingBox();
    await this.page.mouse.click(x + 20, y + 60);
  }

  async download(work) {
    const [download] = await Promise.all([this.page.waitForEvent("download"), work()]);
    return { name: download.suggestedFilename(), bytes: readFileSync(await download.path()) };
  }
}

/** Opens the files in the page, goes to work, and does `work`. */
export function atWork(files, work, options) {
  return inWorkbench(async (workbench) => {
    await workbench.open(files);
    await workbench.waitForTakes([files].flat().length);
    await workbench.button("Work").click();
    const desk = new Work(workbench);
    await desk.waitForRest();
    await work(desk);
  }, options);
}

/** Chooses the mapping of this path on the panel. */
export async function chooseMapping(desk, file) {
  await desk.panel.getByRole("button", { name: "Browse... MNM Mapping File" }).click();
  const choice = desk.dialog("Select Mapping File...");
  const chosen = desk.page.waitForEvent("filechooser");
  await choice.getByRole("button", { name: "From this machine…" }).click();
  await (await chosen).setFiles(file);
  await choice.getByRole("button", { name: "Choose" }).and(choice.locator(":enabled")).click();
  await desk.page.waitForFunction(
    (name) => document.querySelector('[data-control="1137"]')?.value.endsWith(name),
    path.basename(file),
  );
}
