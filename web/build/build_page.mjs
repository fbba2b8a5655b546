// Makes the page: node web/build/build_page.mjs [FOLDER]
//
// FOLDER, build-web unless told, is the build that holds orvane-core.js and orvane-core.wasm; the page
// orvane-workbench.html appears there when it has passed the check.

import { readFileSync, renameSync, writeFileSync } from "node:fs";
import path from "node:path";
import { gzipSync } from "node:zlib";
import { fileURLToPath, pathToFileURL } from "node:url";
import { assemble } from "./assemble.mjs";
import { bundle, noticesOf, noticesOfCore } from "./bundle.mjs";
import { checkPage } from "./check_page.mjs";

const WEB = path.dirname(path.dirname(fileURLToPath(import.meta.url)));

const EXAMPLES = ["walk.htr", "walk.trc"];

/** The page whose scripts start at `page` and `worker`, with the core in the folder `core`. */
export async function makePage({ page, worker, core }) {
  const generated = path.join(core, "orvane-core.js");
  const [pageBundle, workerBundle] = await Promise.all([
    bundle(page, generated),
    bundle(worker, generated),
  ]);
  const packages = [...new Set([...pageBundle.packages, ...workerBundle.packages])].sort();
  return assemble({
    template: readFileSync(path.join(WEB, "build/template.html"), "utf8"),
    script: pageBundle.script,
    styles: pageBundle.styles,
    worker: workerBundle.script,
    core: readFileSync(path.join(core, "orvane-core.wasm")),
    examples: EXAMPLES.map((name) => ({ name, bytes: readFileSync(path.join(WEB, "../examples", name)) })),
    notices: [...noticesOf(packages), ...noticesOfCore()].join("\n\n"),
  });
}

function sizes(name, bytes) {
  const megabytes = (count) => (count / 1e6).toFixed(2).padStart(6);
  const compressed = gzipSync(bytes, { level: 9 }).length;
  return `${name.padEnd(22)}${megabytes(bytes.length)} MB, compressed${megabytes(compressed)} MB`;
}

async function main(folder) {
  const file = path.join(folder, "orvane-workbench.html");
  const page = await makePage({
    page: path.join(WEB, "page/main"),
    worker: path.join(WEB, "worker/worker"),
    core: folder,
  });
  const faults = checkPage(page);
  for (const fault of faults) console.error(`${file}: ${fault}`);
  if (faults.length > 0) return 1;
  writeFileSync(`${file}.new`, page);
  renameSync(`${file}.new`, file);
  console.log(sizes("orvane-core.wasm", readFileSync(path.join(folder, "orvane-core.wasm"))));
  console.log(sizes("orvane-workbench.html", Buffer.from(page)));
  return 0;
}

if (import.meta.url === pathToFileURL(process.argv[1]).href) {
  process.exitCode = await main(process.argv[2] ?? "build-web");
}
