import assert from "node:assert/strict";
import { readdirSync, readFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";

declare const PAGE_FOLDER: string;

// What the files of each folder may import beside their own; the page's own files, in ".", everything.
const LAYERS: Readonly<Record<string, readonly string[]>> = {
  logic: ["../worker"],
  state: ["logic", "../worker"],
  data: ["logic", "state"],
  widgets: ["logic"],
  viewport: ["logic", "state", "widgets"],
  timeline: ["logic", "state", "widgets", "../worker"],
  panels: ["data", "logic", "state", "viewport", "widgets", "../worker", "../build"],
  desk: ["data", "logic", "panels", "state", "../worker"],
};

function importsOf(file: string): string[] {
  const text = readFileSync(path.join(PAGE_FOLDER, file), "utf8");
  const targets = [...text.matchAll(/(?:from|import) "(\.[^"]+)"/g)].map((match) => match[1]);
  return targets.map((target) => path.join(path.dirname(file), target));
}

function files(): string[] {
  const all = readdirSync(PAGE_FOLDER, { recursive: true }) as string[];
  return all.filter((file) => /\.tsx?$/.test(file) && path.dirname(file) !== ".");
}

test("files import what lies below them", () => {
  for (const file of files()) {
    const folder = path.dirname(file);
    const allowed = [folder, ...LAYERS[folder]];
    for (const target of importsOf(file)) {
      assert.ok(allowed.includes(path.dirname(target)), `${file} imports ${target}`);
    }
  }
});

test("what is computed knows no page", () => {
  const names =
    /\b((document|window|navigator|localStorage)\.|HTML\w*Element|requestAnimationFrame)/;
  for (const file of files().filter((name) => name.startsWith("logic"))) {
    assert.doesNotMatch(readFileSync(path.join(PAGE_FOLDER, file), "utf8"), names, file);
  }
});
