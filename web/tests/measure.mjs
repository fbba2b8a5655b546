// Times and sizes of the page: node web/tests/measure.mjs
//
// A table of markdown: how large the page is; for three takes the seconds from the drop to the picture and the
// memory of the browser's process that shows it; and for the longest one the import to a scene, in the page
// and by the program of this build. Needs the page, build/bin/orvane and build/bench/write_motion.

import { execFileSync } from "node:child_process";
import { mkdtempSync, readdirSync, readFileSync, rmSync, statSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { gzipSync } from "node:zlib";
import { asFile, largeMarkerFile, WALK_TRC } from "./browser/takes.mjs";
import { closeBrowser, inWorkbench, launchBrowser, PAGE, ROOT } from "./browser/workbench.mjs";

const megabytes = (bytes) => `${(bytes / 1e6).toFixed(2)} MB`;
const seconds = (since) => (performance.now() - since) / 1000;

function statusOf(id) {
  const status = readFileSync(`/proc/${id}/status`, "utf8");
  return {
    parent: Number(/PPid:\s+(\d+)/.exec(status)[1]),
    peak: 1024 * Number(/VmHWM:\s+(\d+)/.exec(status)?.[1] ?? 0),
  };
}

function isOurs(id) {
  return id > 1 && (id === process.pid || isOurs(statusOf(id).parent));
}

function peakOfRenderer(id) {
  try {
    const command = readFileSync(`/proc/${id}/cmdline`, "utf8");
    return command.includes("--type=renderer") && isOurs(id) ? statusOf(id).peak : 0;
  } catch {
    return 0; // it has ended
  }
}

// The largest peak among the processes of our browser that show pages.
function rendererPeak() {
  const ids = readdirSync("/proc").map(Number).filter(Number.isInteger);
  return Math.max(...ids.map(peakOfRenderer));
}

async function timeOpening(workbench, files) {
  const since = performance.now();
  await workbench.open(files);
  await workbench.waitForTakes(1);
  await workbench.drawn();
  return seconds(since);
}

async function measure(name, files) {
  let row;
  await inWorkbench(async (workbench) => {
    await workbench.button("Open files…").waitFor();
    const opening = await timeOpening(workbench, files);
    row = `| ${name} | ${opening.toFixed(2)} s | ${megabytes(rendererPeak())} |`;
  });
  console.log(row);
}

async function timeImport(file) {
  let time;
  await inWorkbench(async (workbench) => {
    await timeOpening(workbench, file);
    await workbench.page.getByText("Save…").click();
    const download = workbench.page.waitForEvent("download", { timeout: 300_000 });
    const since = performance.now();
    await workbench.page.getByRole("button", { name: /^GLB / }).click();
    await download;
    time = seconds(since);
  });
  return time;
}

function timeNative(file, folder) {
  const scene = path.join(folder, "native.glb");
  const since = performance.now();
  execFileSync(path.join(ROOT, "build/bin/orvane"), ["import", file, "-o", scene, "--force", "--quiet"]);
  return seconds(since);
}

async function measureImport(file, folder) {
  const times = { page: Infinity, native: Infinity };
  for (let run = 0; run < 3; ++run) {
    times.page = Math.min(times.page, await timeImport(file));
    times.native = Math.min(times.native, timeNative(file, folder));
  }
  const ratio = (times.page / times.native).toFixed(1);
  console.log(`\n| Import of H | In the page | By the program | Ratio |\n|---|---|---|---|`);
  console.log(`| | ${times.page.toFixed(2)} s | ${times.native.toFixed(2)} s | ${ratio} |`);
}

const folder = mkdtempSync(path.join(tmpdir(), "orvane-measure-"));
await launchBrowser();
try {
  const page = readFileSync(PAGE);
  console.log(`| Page | Compressed |\n|---|---|\n| ${megabytes(page.length)} | ${megabytes(gzipSync(page).length)} |\n`);
  console.log("| Take | From drop to picture | Memory of its process |\n|---|---|---|");
  await measure("walk.trc", [asFile("walk.trc", WALK_TRC)]);
  const markers = largeMarkerFile(17.9e6);
  const long = path.join(folder, "long.trc");
  writeFileSync(long, markers);
  await measure(`a TRC of ${megabytes(markers.length)}`, long);
  const motion = path.join(folder, "H.htr");
  execFileSync(path.join(ROOT, "build/bench/write_motion"), [motion]);
  await measure(`H, ${megabytes(statSync(motion).size)}`, motion);
  await measureImport(motion, folder);
} finally {
  await closeBrowser();
  rmSync(folder, { recursive: true });
}
