// Runs the tests of what the page computes, under Node without a browser: `node web/tests/page/run.mjs`.

import { spawnSync } from "node:child_process";
import { mkdtempSync, readdirSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { build } from "esbuild";

const folder = path.dirname(fileURLToPath(import.meta.url));
const tests = readdirSync(folder).filter((name) => name.endsWith("_test.ts"));
const bundled = mkdtempSync(path.join(tmpdir(), "page-tests-"));
try {
  await build({
    entryPoints: tests.map((name) => path.join(folder, name)),
    bundle: true,
    platform: "node",
    format: "esm",
    outExtension: { ".js": ".mjs" },
    outdir: bundled,
    define: { PAGE_FOLDER: JSON.stringify(path.resolve(folder, "../../page")) },
    logLevel: "error",
  });
  const files = tests.map((name) => path.join(bundled, name.replace(/\.ts$/, ".mjs")));
  const run = spawnSync(process.execPath, ["--test", ...files], { stdio: "inherit" });
  process.exitCode = run.status ?? 1;
} finally {
  rmSync(bundled, { recursive: true });
}
