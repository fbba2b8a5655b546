// The core makes and tells what the program does, byte for byte.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { existsSync, mkdtempSync, readFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { after, test } from "node:test";
import { compiledCore, ROOT, workerModule } from "./built_core.mjs";
import { HAS_PROGRAM, PROGRAM, WITH_PROGRAM } from "../program.mjs";
import { sceneDifference } from "./same_scene.mjs";

process.env.TZ = "UTC";

// The core sleeps wherever it can.
const EVERY_STEP = 0;

// Numbers that stand on the edge of their sixth decimal, so that the last bit of a sine decides: the file and
// the run, and what each says there.
const ON_THE_EDGE = [];

const { CoreInstance } = await workerModule("core_instance.ts");
const scratch = mkdtempSync(path.join(tmpdir(), "orvane-same-"));
after(() => rmSync(scratch, { recursive: true }));

function programResults() {
  const results = path.join(scratch, "results");
  execFileSync("python3", [path.join(ROOT, "web/tests/core/program_results.py"), PROGRAM, results]);
  return JSON.parse(readFileSync(path.join(results, "runs.json"), "utf8")).map((take) => ({
    ...take,
    folder: path.join(results, take.folder),
  }));
}

const read = (...parts) => new Uint8Array(readFileSync(path.join(...parts)));

// The one thing in it that no file says.
const withoutDate = (bytes) =>
  Buffer.from(Buffer.from(bytes).toString("latin1").replace(/^\$DateTime .*$/m, "$DateTime"), "latin1");

function madeDifference(name, ours, theirs) {
  if (ours === undefined || theirs === undefined) return ours === theirs ? "" : "made by one only";
  if (name.endsWith(".glb")) return sceneDifference(ours, theirs);
  return Buffer.compare(withoutDate(ours), withoutDate(theirs)) === 0 ? "" : "other bytes";
}

async function differences(take) {
  const files = new Map([[take.file, read(take.folder, take.file)]]);
  const found = [];
  for (const { name, words, made, needs } of take.runs) {
    const inputs = [take.file, ...(needs ? [needs] : [])].map((each) => ({ path: each, bytes: files.get(each) }));
    const instance = await CoreInstance.make(await compiledCore());
    const result = await instance.run(words, inputs.filter(({ bytes }) => bytes), EVERY_STEP);
    const kept = path.join(take.folder, "runs", name);
    const text = (part) => readFileSync(path.join(kept, part), "utf8");
    const ours = result.files.find((each) => each.name === made)?.bytes;
    const theirs = made && existsSync(path.join(kept, made)) ? read(kept, made) : undefined;
    if (ours) files.set(made, ours);
    const what = [
      String(result.status) === text("status") ? "" : `status ${result.status} and ${text("status")}`,
      result.out === text("out") ? "" : "output",
      result.err === text("err") ? "" : `errors: ${result.err} and ${text("err")}`,
      madeDifference(made, ours, theirs),
    ].filter(Boolean);
    if (what.length > 0) found.push(`${take.of}, ${name}: ${what.join("; ")}`);
  }
  return found;
}

test("the core says and makes what the program does", WITH_PROGRAM, async () => {
  const takes = programResults();
  assert.ok(takes.length > 40, "all files were looked at");
  const found = [];
  for (const take of takes) found.push(...(await differences(take)));
  assert.deepEqual(found, ON_THE_EDGE);
});
