// What it costs that the core can sleep: node web/tests/measure_sleeping.mjs
//
// A table of markdown: sizes of the core with and without sleep, and what each takes for the program's work on a
// large file, in one process each and in turns, the least of five. Needs build-web with the targets orvane-core and
// orvane-core-awake, and write_motion and write_markers in build/bench.

import { execFileSync } from "node:child_process";
import { mkdtempSync, readFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";
import { BUILD, compiledCore, ROOT, workerModule } from "./core/built_core.mjs";

const CORES = ["orvane-core-awake", "orvane-core"];
const RUNS = 5;

// Milliseconds: no bar is shown.
const NEVER = 1e9;

async function timeVerb(verb, files) {
  const { CoreInstance } = await workerModule("core_instance.ts");
  const instance = await CoreInstance.make(await compiledCore());
  const since = performance.now();
  const result = await instance.run([...verb, "--quiet"], files, NEVER);
  const time = (performance.now() - since) / 1000;
  if (result.status !== 0) throw new Error(result.err);
  return { time, made: result.files[0].bytes };
}

async function timeVerbs(motion, markers) {
  const read = (file) => new Uint8Array(readFileSync(file));
  const imported = await timeVerb(["import", "H.htr", "-o", "H.glb"], [{ path: "H.htr", bytes: read(motion) }]);
  const scene = [{ path: "H.glb", bytes: imported.made }];
  const exported = await timeVerb(["export", "H.glb", "--select", "Segment0", "-o", "H.htr"], scene);
  const converted = await timeVerb(["convert", "T.trc", "-o", "T.bvk"], [{ path: "T.trc", bytes: read(markers) }]);
  return [imported.time, exported.time, converted.time];
}

function timesOf(core, files) {
  const env = { ...process.env, ORVANE_WEB_CORE: core };
  return JSON.parse(execFileSync(process.execPath, [fileURLToPath(import.meta.url), ...files], { env }));
}

function sizesOf(core) {
  const bytes = readFileSync(path.join(BUILD, `${core}.wasm`));
  return [bytes.length, gzipSync(bytes).length].map((size) => `${(size / 1e6).toFixed(2)} MB`);
}

function measure() {
  const folder = mkdtempSync(path.join(tmpdir(), "orvane-measure-"));
  try {
    const files = ["motion", "markers"].map((kind) => path.join(folder, kind));
    execFileSync(path.join(ROOT, "build/bench/write_motion"), [files[0]]);
    execFileSync(path.join(ROOT, "build/bench/write_markers"), [files[1]]);
    const least = CORES.map(() => [Infinity, Infinity, Infinity]);
    for (let run = 0; run < RUNS; ++run) {
      for (const [at, core] of CORES.entries()) {
        least[at] = timesOf(core, files).map((time, verb) => Math.min(time, least[at][verb]));
      }
    }
    console.log("| Core | Size | Compressed | Import of H | Export of its scene | Conversion of T |");
    console.log("|---|---|---|---|---|---|");
    for (const [at, core] of CORES.entries()) {
      const times = least[at].map((time) => `${time.toFixed(2)} s`);
      console.log(`| ${[core, ...sizesOf(core), ...times].join(" | ")} |`);
    }
  } finally {
    rmSync(folder, { recursive: true });
  }
}

const files = process.argv.slice(2);
if (files.length > 0) console.log(JSON.stringify(await timeVerbs(...files)));
else measure();
