import assert from "node:assert/strict";
import { after, test } from "node:test";
import { example, startClient, workerModule, workersBegun } from "./built_core.mjs";

const core = await startClient();
after(() => core.end());

const walk = () => new Blob([example("walk.htr")]);
const markers = () => new Blob([example("walk.trc")]);

test("opens takes, answers in turn, and runs the program over their files", async () => {
  const [motion, cloud] = await Promise.all([
    core.open("walk.htr", walk()),
    core.open("walk.trc", markers()),
  ]);
  assert.equal(motion.info.path, "walk.htr");
  assert.equal(motion.info.bytes, example("walk.htr").length);
  const [curve, told, run] = await Promise.all([
    core.curve(motion.info.id, 0, "rotation"),
    core.findings(cloud.info.id, "convert"),
    core.run(["convert", "walk.trc", "-o", "out.bvk"], [cloud.info.id]),
  ]);
  assert.equal(curve.length, 3 * 120);
  assert.equal(JSON.parse(told.json).files[0].file, "walk.trc");
  assert.deepEqual(run.files.map(({ name }) => name), ["out.bvk"]);
  await core.close(motion.info.id);
  await core.close(cloud.info.id);
});

test("two takes of one name are told apart by their paths", async () => {
  const first = await core.open("walk.htr", walk());
  const second = await core.open("walk.htr", example("walk.htr").buffer);
  assert.equal(second.info.name, "walk.htr");
  assert.equal(second.info.path, "2/walk.htr");
  const { status, out, err } = await core.run(
    ["check", "walk.htr", "2/walk.htr", "--json"],
    [first.info.id, second.info.id],
  );
  assert.equal(status, 0, err);
  assert.deepEqual(JSON.parse(out).files.map(({ file }) => file), ["walk.htr", "2/walk.htr"]);
  await core.close(first.info.id);
  await core.close(second.info.id);
});

for (const [name, content, kind, path] of [
  ["marks.txt", "walk.trc", "markers", "marks.txt.trc"],
  ["marks", "walk.trc", "markers", "marks.trc"],
  ["MARKS.TRC", "walk.trc", "markers", "MARKS.TRC"],
  ["marks.htr", "walk.trc", "markers", "marks.htr.trc"],
  ["bones.txt", "walk.htr", "motion", "bones.txt.htr"],
  ["bones.trc", "walk.htr", "motion", "bones.trc.htr"],
]) {
  test(`${content} is read as what it is under the name ${name}, and taken so by the program`, async () => {
    const { info } = await core.open(name, new Blob([example(content)]));
    assert.deepEqual([info.name, info.kind, info.path], [name, kind, path]);
    const told = await core.findings(info.id, "import");
    assert.equal(JSON.parse(told.json).files[0].file, path);
    const { status, err, files } = await core.run(["import", path, "-o", "made.glb"], [info.id]);
    assert.deepEqual([status, files.map((file) => file.name)], [0, ["made.glb"]], err);
    await core.close(info.id);
  });
}

for (const [name, text, message] of [
  ["notes.txt", "some notes\n", /^Neither its name nor its first lines say what it is/],
  ["notes", "", /^The file is empty/],
  ["takes.txt", "PK\x03\x04 and more", /^The file is a zip archive, not an HTR file\. Unpack it first\.$/],
  ["takes.trc", "HIERARCHY\nROOT Hips\n", /^The file is a BVH file, not a TRC file\./],
]) {
  test(`${name} is refused in words that say why`, async () => {
    await assert.rejects(core.open(name, new Blob([text])), { name: "CoreError", message });
  });
}

test("what is cancelled without a bar ends with the worker, and takes stay open", async () => {
  const { info } = await core.open("walk.htr", walk());
  const begun = workersBegun();
  const run = core.run(["check", "walk.htr", "--json"], [info.id]);
  core.cancel();
  await assert.rejects(run, { name: "Cancelled" });
  assert.equal(workersBegun(), begun + 1);
  assert.equal((await core.curve(info.id, 0, "position")).length, 3 * 120);
  await core.close(info.id);
});

test("while the plug-in shows its bar, its own Cancel is pressed", async () => {
  const { info } = await core.open("walk.trc", markers());
  const begun = workersBegun();
  core.onProgress(() => core.cancel());
  const { status, files } = await core.run(["import", "walk.trc", "-o", "new.glb"], [info.id]);
  assert.deepEqual([status, files], [130, []]);
  assert.equal(workersBegun(), begun);
  await core.close(info.id);
});

test("memory is given back with the last take", async () => {
  const { info } = await core.open("walk.htr", walk());
  const begun = workersBegun();
  await core.close(info.id);
  assert.equal(workersBegun(), begun + 1);
});

test("a file that fails leaves the others open", async () => {
  const { info } = await core.open("walk.htr", walk());
  await assert.rejects(core.open("bad.htr", new TextEncoder().encode("bad\n").buffer), {
    name: "CoreError",
  });
  assert.equal((await core.curve(info.id, 0, "position")).length, 3 * 120);
  await core.close(info.id);
});

test("a file that no page can show is refused with both sizes", async () => {
  const { requireRoom } = await workerModule("size_limit.ts");
  assert.throws(() => requireRoom(5e9), {
    message:
      "The file has 5,000 MB, and to show it takes more than the 4,295 MB of memory that a page can have",
  });
  requireRoom(4e9);
});

test("any name becomes a file's name", async () => {
  const { fileNameFor, ownNameFor, pathFor } = await workerModule("file_paths.ts");
  assert.equal(fileNameFor("../walk.htr"), ".._walk.htr");
  assert.equal(fileNameFor(".."), "_..");
  assert.equal(fileNameFor(""), "_");
  const long = fileNameFor(`${"\u{1f600}".repeat(10000)}.trc`);
  assert.ok(new TextEncoder().encode(long).length <= 204 && long.endsWith(".trc"), long);
  assert.equal(pathFor("a.trc", ["a.trc", "2/a.trc"]), "3/a.trc");
  const cases = [
    ["a.b.trc", ["a.b.TRC"], "a.b-2.trc"],
    ["a.trc", ["a.trc", "a-2.trc", "out/a-3.trc"], "a-3.trc"],
    ["a", ["a"], "a-2"],
    [".trc", [".trc"], "-2.trc"],
    ["2/a.trc", [], "2_a.trc"],
  ];
  for (const [name, taken, own] of cases) assert.equal(ownNameFor(name, taken), own);
});
