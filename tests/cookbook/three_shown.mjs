// What a page shows: runs its script with three.js as it is, but for the drawing, and prints where
// a node is after so many seconds.
//
//   node three_shown.mjs PAGE.html NODE SECONDS
import { readFile, writeFile } from "node:fs/promises";
import { register } from "node:module";
import { join, resolve } from "node:path";
import process from "node:process";
import { pathToFileURL } from "node:url";

const [page, node, seconds] = process.argv.slice(2);
const html = await readFile(page, "utf8");
const imports = JSON.parse(html.match(/<script type="importmap">([^]*?)<\/script>/)[1]).imports;
const script = html.match(/<script type="module">([^]*?)<\/script>/)[1];
const base = pathToFileURL(resolve(page));

// The import map of the page; of three.js itself everything but what draws.
const drawing = `
export * from ${JSON.stringify(new URL(imports.three, base).href)};
export class WebGLRenderer {
  domElement = {};
  setSize() {}
  setAnimationLoop(loop) { globalThis.frameOfPage = loop; }
  render(scene) { globalThis.shownByPage = scene; }
}
export class Clock { getDelta() { return ${Number(seconds)}; } }`;
const hooks = `
const drawing = ${JSON.stringify("data:text/javascript," + encodeURIComponent(drawing))};
const addons = ${JSON.stringify(new URL(imports["three/addons/"], base).href)};
export async function resolve(name, context, next) {
  if (name === "three") return { url: drawing, shortCircuit: true };
  if (name.startsWith("three/addons/")) return next(addons + name.slice(13), context);
  return next(name, context);
}`;
register("data:text/javascript," + encodeURIComponent(hooks));

// What a browser has and Node has not.
globalThis.window = { innerWidth: 640, innerHeight: 480 };
globalThis.self = globalThis;
globalThis.document = { body: { append() {} } };
globalThis.ProgressEvent = class {};
globalThis.Request = class { constructor(url) { this.url = url; } };
globalThis.fetch = async ({ url }) => new Response(await readFile(new URL(url, base)));

const module = join(resolve(page), "..", "page_script.mjs");
await writeFile(module, script);
await import(pathToFileURL(module));
globalThis.frameOfPage();
const scene = globalThis.shownByPage;
scene.updateMatrixWorld();
const shown = scene.getObjectByName(node);
console.log(shown.matrixWorld.elements.slice(12, 15).map((number) => number.toFixed(4)).join(" "));
