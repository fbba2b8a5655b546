// The built core, and the scripts around it, as Node can use them.

import { readFileSync } from "node:fs";
import path from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import { Worker as Thread } from "node:worker_threads";
import { build } from "esbuild";

export const ROOT = path.resolve(path.dirname(fileURLToPath(import.meta.url)), "../../..");
export const BUILD = path.resolve(process.env.ORVANE_WEB_BUILD ?? path.join(ROOT, "build-web"));

const GENERATED = path.join(BUILD, "orvane-core.js");

const generatedScript = {
  name: "generated-script",
  setup(bundler) {
    bundler.onResolve({ filter: /^orvane-core$/ }, () => ({ path: GENERATED }));
  },
};

async function bundled(entry, format, banner = "") {
  const file = path.join(BUILD, "tests", `${path.basename(entry, ".ts")}.${format === "esm" ? "mjs" : "cjs"}`);
  await build({
    entryPoints: [path.join(ROOT, "web/worker", entry)],
    outfile: file,
    bundle: true,
    format,
    platform: "node",
    target: "node18",
    banner: { js: banner },
    plugins: [generatedScript],
    logLevel: "error",
  });
  return file;
}

const loaded = new Map();

/** The module web/worker/`entry`, with the core in it. */
export async function workerModule(entry) {
  if (!loaded.has(entry)) loaded.set(entry, import(pathToFileURL(await bundled(entry, "esm", REQUIRE))));
  return loaded.get(entry);
}

// What bundles of CommonJS modules ask for, and modules of Node do not have.
const REQUIRE = `import { createRequire as makeRequire } from "node:module";
import { fileURLToPath as pathOf } from "node:url";
const require = makeRequire(import.meta.url);
const __filename = pathOf(import.meta.url);
const __dirname = __filename.replace(/[^/]*$/, "");`;

let compiled;

export async function compiledCore() {
  compiled ??= WebAssembly.compile(readFileSync(path.join(BUILD, "orvane-core.wasm")));
  return compiled;
}

/** A worker of a page, as a thread: what it knows as `self` is made of what threads know. */
class PageWorker {
  constructor(script) {
    this.thread = new Thread(script);
    this.thread.on("message", (data) => this.onmessage?.({ data }));
    this.thread.on("error", (error) => this.onerror?.({ message: error.message }));
    PageWorker.begun += 1;
  }

  postMessage(message, transfer) {
    this.thread.postMessage(message, transfer);
  }

  terminate() {
    void this.thread.terminate();
  }
}
PageWorker.begun = 0;

const SELF = `const { parentPort } = require("node:worker_threads");
globalThis.self = { onmessage: null, postMessage: (answer, transfer) => parentPort.postMessage(answer, transfer) };
parentPort.on("message", (data) => self.onmessage({ data }));`;

/** A client with its worker. */
export async function startClient() {
  globalThis.Worker = PageWorker;
  const { Core } = await workerModule("client.ts");
  return new Core(await bundled("worker.ts", "cjs", SELF), await compiledCore());
}

/** A desk in a worker of its own. */
export async function startDesk(settings) {
  globalThis.Worker = PageWorker;
  const { Desk } = await workerModule("desk_client.ts");
  return new Desk(await bundled("worker.ts", "cjs", SELF), await compiledCore(), settings);
}

/** How many workers there have been. */
export const workersBegun = () => PageWorker.begun;

export function example(name) {
  return new Uint8Array(readFileSync(path.join(ROOT, "examples", name)));
}

