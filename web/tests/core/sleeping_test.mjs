import assert from "node:assert/strict";
import { test } from "node:test";
import { compiledCore, example, workerModule } from "./built_core.mjs";

const { CoreInstance } = await workerModule("core_instance.ts");
// The core sleeps wherever it can, and never.
const EVERY_STEP = 0;
const NEVER = 1e9;

const walk = { path: "walk.htr", bytes: example("walk.htr") };
const markers = { path: "walk.trc", bytes: example("walk.trc") };

function watchedBar(cancels = () => false) {
  const seen = [];
  return {
    seen,
    async show(what, percent) {
      seen.push({ what, percent });
      await new Promise((resolve) => setTimeout(resolve, 0));
      return cancels();
    },
    end() {
      seen.push("end");
    },
  };
}

// BVK files say when they were written.
function withoutDates(result) {
  const files = result.files.map(({ name, bytes }) => ({
    name,
    text: Buffer.from(bytes).toString("latin1").replace(/^\$DateTime .*$/m, ""),
  }));
  return { ...result, files };
}

test("sleeps while the plug-in shows its bar, and goes on to the same end", async () => {
  const bar = watchedBar();
  const verb = ["import", "walk.htr", "-o", "new.glb", "--json"];
  const watched = await (await CoreInstance.make(await compiledCore(), bar)).run(verb, [walk], EVERY_STEP);
  assert.equal(watched.status, 0, watched.err);
  assert.ok(bar.seen.length > 2, "the bar was seen more than once");
  assert.equal(bar.seen.at(-1), "end");
  assert.ok(bar.seen.slice(0, -1).every(({ what }) => what === "Importing walk.htr"));
  const alone = await (await CoreInstance.make(await compiledCore())).run(verb, [walk], NEVER);
  assert.deepEqual(watched, alone);
});

test("presses the plug-in's own Cancel, and nothing is left behind", async () => {
  const bar = watchedBar(() => true);
  const instance = await CoreInstance.make(await compiledCore(), bar);
  const result = await instance.run(["import", "walk.htr", "-o", "new.glb"], [walk], EVERY_STEP);
  assert.equal(result.status, 130);
  assert.match(result.err, /interrupted; nothing was written/);
  assert.deepEqual(result.files, []);
  assert.equal(bar.seen.at(-1), "end");
});

const MAPPING = { path: "walk.mnm", bytes: example("walk.mnm") };
const RUNS = [
  { verb: ["import", "walk.trc", "-o", "new.glb"], files: [markers], bar: "Importing walk.trc" },
  { verb: ["import", "walk.htr", "-o", "new.glb", "--tcb", "--end-effectors"], files: [walk], bar: "Importing walk.htr" },
  { verb: ["import", "walk.trc", "-o", "new.glb", "--up", "z"], files: [markers], bar: "Importing walk.trc" },
  { verb: ["map", "create", "walk.trc", "-o", "new.mnm", "--picks", "walk.mnm"], files: [markers, MAPPING] },
  { verb: ["convert", "walk.trc", "-o", "new.bvk", "--mapping", "walk.mnm"], files: [markers, MAPPING] },
  {
    verb: ["convert", "walk.trc", "2/other.trc", "--output-dir", "."],
    files: [markers, { path: "2/other.trc", bytes: markers.bytes }],
  },
];

for (const { verb, files, bar: title } of RUNS) {
  test(`${verb.join(" ")} comes to the same whether it sleeps or not`, async () => {
    const bar = watchedBar();
    const slept = await (await CoreInstance.make(await compiledCore(), bar)).run(verb, files, EVERY_STEP);
    const alone = await (await CoreInstance.make(await compiledCore())).run(verb, files, NEVER);
    assert.equal(slept.status, 0, slept.err);
    assert.deepEqual(withoutDates(slept), withoutDates(alone));
    assert.equal(bar.seen.at(-1), "end");
    assert.ok(bar.seen.length > 2, "the bar was seen more than once");
    if (title) assert.equal(bar.seen[0].what, title);
  });
}

test("an export and an application of a motion do so, too", async () => {
  const make = async (bar) => CoreInstance.make(await compiledCore(), bar);
  const imported = await (await make()).run(["import", "walk.htr", "-o", "new.glb"], [walk], NEVER);
  const scene = { path: "new.glb", bytes: imported.files[0].bytes };
  for (const verb of [
    ["export", "new.glb", "-o", "new.htr", "--select", "Hips"],
    ["import", "walk.htr", "-o", "again.glb", "--into", "new.glb", "--apply", "--select", "Hips"],
  ]) {
    const bar = watchedBar();
    const slept = await (await make(bar)).run(verb, [scene, walk], EVERY_STEP);
    const alone = await (await make()).run(verb, [scene, walk], NEVER);
    assert.equal(slept.status, 0, slept.err);
    assert.deepEqual(slept, alone);
    assert.ok(bar.seen.length > 2, "the bar was seen more than once");
  }
});

test("a second run of the same instance is refused in words while the first one sleeps", async () => {
  let refusal;
  let instance;
  const bar = watchedBar();
  const show = bar.show;
  bar.show = async (...progress) => {
    refusal ??= await instance.run(["--version"], []).catch((error) => error);
    return show(...progress);
  };
  instance = await CoreInstance.make(await compiledCore(), bar);
  const result = await instance.run(["import", "walk.htr", "-o", "new.glb"], [walk], EVERY_STEP);
  assert.equal(refusal.message, "The core runs something already: one call of it sleeps at a time");
  assert.equal(result.status, 0, result.err);
});

test("what does not sleep is answered while a run does", async () => {
  let names;
  let instance;
  const bar = watchedBar();
  bar.show = async () => {
    if (!names) {
      instance.put(markers);
      names = instance.open(7, "walk.trc").info.objects;
    }
    return false;
  };
  instance = await CoreInstance.make(await compiledCore(), bar);
  const result = await instance.run(["import", "walk.htr", "-o", "new.glb"], [walk], EVERY_STEP);
  assert.equal(result.status, 0, result.err);
  assert.ok(names.includes("LFHD") || names.length > 10, String(names));
});
