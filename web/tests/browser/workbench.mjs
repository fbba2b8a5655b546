// The page in a browser, as a person opens it: from a file, and watched for everything that it must not do.

import assert from "node:assert/strict";
import path from "node:path";
import { after, before } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";
import { chromium } from "playwright-core";
import { countColor, decodePng } from "./png.mjs";

export const ROOT = path.resolve(path.dirname(fileURLToPath(import.meta.url)), "../../..");
export const PAGE = process.env.ORVANE_WORKBENCH ?? path.join(ROOT, "build-web/orvane-workbench.html");
export const EXAMPLES = path.join(ROOT, "examples");

/** The colors of the takes, by their order. */
export const COLORS = ["#58a6e8", "#f0a04b"];

const LONG = 60_000;

let browser;

/** The browser that pages are opened in from now on. */
export async function launchBrowser() {
  browser = await chromium.launch({
    executablePath: process.env.ORVANE_CHROMIUM ?? "/usr/bin/chromium",
    args: process.getuid() === 0 ? ["--no-sandbox"] : [],
  });
}

export async function closeBrowser() {
  await browser.close();
}

/** One browser for all tests of a file. */
export function useBrowser() {
  before(launchBrowser);
  after(closeBrowser);
}

// Whatever asks for a connection to another machine, or marks that a name has run, is told here.
function watch() {
  window.misdeeds = [];
  for (const name of ["RTCPeerConnection", "webkitRTCPeerConnection"]) {
    window[name] = class {
      constructor() {
        window.misdeeds.push(name);
        throw new Error(`${name} is not for this page`);
      }
    };
  }
  window.alert = (text) => window.misdeeds.push(`alert ${text}`);
}

export class Workbench {
  constructor(context, page, url) {
    this.context = context;
    this.page = page;
    this.url = url;
    this.requested = new Set();
    this.faults = [];
    context.on("request", (request) => this.requested.add(request.url()));
    context.on("page", () => this.faults.push("a window was opened"));
    page.on("pageerror", (error) => this.faults.push(`error: ${error}`));
    this.askedToLeave = 0;
    page.on("console", (message) => this.hear(message));
    page.on("framenavigated", (frame) => this.visit(frame.url()));
    page.on("dialog", (dialog) => this.leave(dialog));
  }

  /** The browser asks before a scene is lost; the page itself never does so. */
  leave(dialog) {
    if (dialog.type() === "beforeunload") this.askedToLeave += 1;
    else this.faults.push(`dialog: ${dialog.message()}`);
    void dialog.accept();
  }

  hear(message) {
    if (message.type() === "error") this.faults.push(`console: ${message.text()}`);
  }

  visit(url) {
    if (url.replace(/#.*/, "") !== this.url) this.faults.push(`went to ${url}`);
  }

  /** Fails when the page has done what it must not. */
  async requireGoodConduct() {
    const others = [...this.requested].filter((url) => url !== this.url && !url.startsWith("blob:"));
    assert.deepEqual(others, [], "something else than the page was requested");
    assert.deepEqual(await this.page.evaluate(() => window.misdeeds), []);
    assert.deepEqual(this.faults, []);
  }

  get view() {
    return this.page.locator("[data-view]");
  }

  button(name) {
    return this.page.getByRole("button", { name, exact: true });
  }

  example(name) {
    return this.page.getByRole("button", { name: new RegExp(`^${name}`) });
  }

  get takes() {
    return this.page.getByRole("region", { name: "Takes" });
  }

  get objects() {
    return this.page.locator("[data-object]");
  }

  finding(code) {
    return this.page.locator(`[data-code="${code}"]`);
  }

  notice(text) {
    return this.page.getByRole("alert").filter({ hasText: text });
  }

  /** Opens files by the button, as {name, mimeType, buffer} or paths. */
  async open(files) {
    const chosen = this.page.waitForEvent("filechooser");
    await this.page.getByRole("button", { name: /^Open…/ }).click();
    await (await chosen).setFiles(files);
  }

  /** Drops texts, {name, text} each, on the page. */
  async drop(files) {
    await this.page.waitForFunction(
      () => document.querySelector("header") && !document.querySelector(".empty button:disabled"),
    );
    await this.page.evaluate((given) => {
      const transfer = new DataTransfer();
      for (const { name, text } of given) transfer.items.add(new File([text], name));
      for (const type of ["dragenter", "dragover", "drop"]) {
        document.body.dispatchEvent(
          new DragEvent(type, { dataTransfer: transfer, bubbles: true, cancelable: true }),
        );
      }
    }, files);
  }

  /** Types what the list of objects is searched for. */
  async search(text) {
    await this.page.keyboard.press("/");
    await this.page.keyboard.type(text);
  }

  async waitForTakes(count) {
    await this.page.waitForFunction(
      (wanted) => document.querySelectorAll(".take").length === wanted &&
        document.querySelector(".busy") === null,
      count,
      { timeout: LONG },
    );
  }

  async frame() {
    return Number(await this.view.getAttribute("data-frame"));
  }

  async waitForFrame(frame) {
    await this.page.waitForFunction(
      (wanted) => document.querySelector("[data-view]").dataset.frame === String(wanted),
      frame,
    );
  }

  /** Waits until all objects of this frame have been drawn, and another frame was. */
  async drawn(least = 1) {
    await this.page.waitForFunction(
      (wanted) => Number(document.querySelector("[data-view]").dataset.drawn) >= wanted,
      least,
    );
    await this.page.evaluate(
      () => new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done))),
    );
  }

  async picture() {
    await this.drawn();
    return decodePng(await this.view.screenshot());
  }

  /** Pixels of the view in the color of the take of this number. */
  async pixelsOf(take) {
    return countColor(await this.picture(), COLORS[take]);
  }
}

/** Opens the page `file`, or what that returns, does `work` with it, and sees to what it may do. */
export async function inWorkbench(work, { file = PAGE, size = { width: 1280, height: 720 } } = {}) {
  const context = await browser.newContext({ viewport: size, acceptDownloads: true, colorScheme: "dark" });
  context.setDefaultTimeout(20_000);
  try {
    await context.addInitScript(watch);
    const page = await context.newPage();
    const workbench = new Workbench(context, page, pathToFileURL(typeof file === "function" ? file() : file).href);
    await page.goto(workbench.url);
    await work(workbench);
    await workbench.requireGoodConduct();
  } finally {
    await context.close();
  }
}
