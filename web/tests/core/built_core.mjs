// The built core, and the scripts around it, as Node can use them.

import { readFileSync } from "node:fs";
import path from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import { Worker as Thread } from "node:worker_threads";
import { build } from "esbuild";

export const ROOT = path.resolve(path.dirname(fileURLToPath(import.meta.url)), "../../..");
export const BUILD = path.resolve(process.env.ORVANE_WEB_BUILD ?? path.join(ROOT, "build-web"));

// Its name can be that of a core that is built otherwise.
const CORE = path.join(BUILD, process.env.ORVANE_WEB_CORE ?? "orvane-core");

const generatedScript = {
  name: "generated-script",
  setup(bundler) {
    bundler.onResolve({ filter: /^orvane-core$/ }, () => ({ path: `${CORE}.js` }));
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
  compiled ??= WebAssembly.compile(readFileSync(`${CORE}.wasm`));
  return compiled;
}

/** Lets the core's clock go on by a second at each look at it: what is shown after a while is shown at once. */
export function hurryClock() {
  let seconds = 0;
  process.hrtime = () => [++seconds, 0];
}

/**
 * A worker of a page, as a thread: what it knows as `self` is made of what threads know. Its clock hurries, and
 * while its progress is heard it stands still, so that a Cancel is on its way when it goes on: nothing depends on
 * how fast or busy the machine is.
 */
class PageWorker {
  constructor(script) {
    const heard = new Int32Array(new SharedArrayBuffer(4));
    this.thread = new Thread(script, { workerData: heard });
    this.thread.on("message", (data) => {
      this.onmessage?.({ data });
      if (!data.progress) return;
      Atomics.store(heard, 0, 1);
      Atomics.notify(heard, 0);
    });
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

const SELF = `const { parentPort, workerData: heard } = require("node:worker_threads");
(${hurryClock})();
const postMessage = (answer, transfer) => {
  Atomics.store(heard, 0, 0);
  parentPort.postMessage(answer, transfer);
  if (answer.progress) Atomics.wait(heard, 0, 0);
};
globalThis.self = { onmessage: null, postMessage };
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

