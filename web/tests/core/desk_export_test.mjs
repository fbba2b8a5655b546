import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";
import { example, ROOT } from "./built_core.mjs";
import { CONTROL, DIALOG, Person, programFile, programJson } from "./desk_person.mjs";

const walk = { path: "walk.htr", bytes: example("walk.htr") };

async function withSkeleton() {
  const person = await Person.sit();
  await person.import(walk.path, walk.bytes);
  await person.doUntil({ did: "select", nodes: [person.node("Hips")], number: 1 }, "selection");
  return person;
}

const EXPORTS = [
  { flags: [], use: () => {} },
  {
    flags: ["--range", "3:9", "--offset", "2", "--scale", "0.5"],
    async use(person) {
      await person.click(DIALOG.exportHtr, CONTROL.range);
      const typed = { [CONTROL.from]: "3", [CONTROL.to]: "9", [CONTROL.offset]: "2", [CONTROL.scale]: "0.5" };
      for (const [control, text] of Object.entries(typed)) person.type(DIALOG.exportHtr, Number(control), text);
    },
  },
  { flags: ["--current-pose"], use: (person) => person.click(DIALOG.exportHtr, CONTROL.currentPose) },
];
for (const { flags, use } of EXPORTS) {
  test(`a file is that of export ${flags.join(" ")}`, async () => {
    const person = await withSkeleton();
    const scene = { path: "scene.glb", bytes: await person.save("scene.glb") };
    const { shown } = await person.doUntil({ did: "export", path: "new.htr" }, "dialog");
    assert.equal(shown.template, DIALOG.exportHtr);
    await use(person);
    const done = await person.press(DIALOG.exportHtr, CONTROL.ok, "done");
    assert.deepEqual([done.task, done.completed], ["export", true]);
    const verb = ["export", "scene.glb", "-o", "new.htr", "--select", "Hips", ...flags];
    assert.deepEqual(person.files.get("new.htr"), await programFile(verb, [scene]));
  });
}

test("the plug-in refuses a range that ends before it begins", async () => {
  const person = await withSkeleton();
  await person.doUntil({ did: "export", path: "new.htr", range: [9, 3] }, "dialog");
  const box = await person.press(DIALOG.exportHtr, CONTROL.ok, "message");
  assert.match(box.text, /start frame/);
  await person.answer("ok", "message-gone");
  const done = await person.press(DIALOG.exportHtr, CONTROL.cancel, "done");
  assert.equal(done.completed, false);
  assert.ok(!person.files.has("new.htr"));
});

test("without a skeleton that is selected the plug-in says so", async () => {
  const person = await Person.sit();
  await person.doUntil({ did: "export", path: "new.htr" }, "dialog");
  const box = await person.press(DIALOG.exportHtr, CONTROL.ok, "message");
  assert.equal(box.caption, "Export Error");
  await person.answer("ok", "idle");
  assert.ok(!person.files.has("new.htr"));
});

/** The bytes with one text in the place of another of its length. */
function changed(bytes, pattern, replacement) {
  const text = Buffer.from(bytes).toString("latin1");
  const next = text.replace(pattern, replacement);
  assert.ok(next !== text && next.length === text.length, String(pattern));
  return Buffer.from(next, "latin1");
}

/** A scene in which a bone is longer along X alone, and whose frames go on when nothing moves any more. */
async function unevenScene() {
  const bytes = await (await withSkeleton()).save("scene.glb");
  const longer = changed(bytes, /("name":"Spine","object".*?"scale":\{[^}]*"constant":\[)1/s, "$12");
  return { path: "scene.glb", bytes: changed(longer, '"range":[160,19200]', '"range":[160,32000]') };
}

/** A person who is asked how to export the skeleton. */
async function asked({ path, bytes }) {
  const person = await Person.sit();
  person.put(path, new Uint8Array(bytes));
  await person.doUntil({ did: "open-scene", path }, "idle");
  await person.step({ did: "select", nodes: [person.scene.nodes.find(({ kind }) => kind === "bone").node] });
  return { person, losses: await person.doUntil({ did: "export", path: "new.htr" }, "losses") };
}

const codesOf = ({ findings }) => findings.map(({ code, severity }) => `${severity} ${code}`);

test("what the file will not hold is told before, as the program tells it, by what the dialog shows", async () => {
  const scene = await unevenScene();
  const { person, losses } = await asked(scene);
  const { files } = await programJson(["check", "--for", "export", "scene.glb", "--select", "Hips"], [scene]);
  assert.deepEqual(codesOf(losses), codesOf(files[0]));
  assert.ok(codesOf(losses).includes("warning export-shear"));
  assert.ok(codesOf(losses).includes("note export-frames-unkeyed"));
  const [first] = losses.findings;
  assert.ok(first.text.startsWith(files[0].findings[0].cause) && first.text.endsWith(files[0].findings[0].consequence));

  await person.click(DIALOG.exportHtr, CONTROL.range);
  person.type(DIALOG.exportHtr, CONTROL.to, "90");
  const cut = await person.until("losses");
  const verb = ["export", "scene.glb", "-o", "new.htr", "--select", "Hips", "--range", "1:90"];
  assert.deepEqual(codesOf(cut), codesOf(await programJson(verb, [scene])));
  assert.deepEqual(codesOf(cut).length, codesOf(losses).length - 1);

  const done = await person.press(DIALOG.exportHtr, CONTROL.ok, "done");
  assert.equal(done.completed, true);
  assert.deepEqual(person.files.get("new.htr"), await programFile(verb, [scene]));
});

test("where the program would export nothing, its reason is told", async () => {
  const { person } = await asked(await unevenScene());
  person.type(DIALOG.exportHtr, CONTROL.offset, "2147483640");
  const { refusal, findings } = await person.until("losses");
  assert.match(refusal, /would give frame 200 the number 2147483840/);
  assert.deepEqual(findings, []);
  await person.press(DIALOG.exportHtr, CONTROL.exportAnimation, "losses");
  assert.equal(person.told.findLast(({ tell }) => tell === "losses").refusal, "");
});

test("of a skeleton that fits nothing is told to be lost, each time that the dialog opens", async () => {
  const person = await withSkeleton();
  for (let count = 0; count < 2; ++count) {
    const losses = await person.doUntil({ did: "export", path: "new.htr" }, "losses");
    assert.deepEqual(losses, { tell: "losses", findings: [], refusal: "" });
    const told = await person.click(DIALOG.exportHtr, CONTROL.currentPose);
    assert.ok(!told.some(({ tell }) => tell === "losses"));
    await person.press(DIALOG.exportHtr, CONTROL.cancel, "idle");
  }
  await person.doUntil({ did: "select", nodes: [] }, "selection");
  const losses = await person.doUntil({ did: "export", path: "new.htr" }, "losses");
  assert.deepEqual(codesOf(losses), ["error export-root-missing"]);
});

test("a scene of another program is told as that", async () => {
  const kept = readFileSync(path.join(ROOT, "tests/data/gltf/blender-kept-bones.glb"));
  const bytes = changed(kept, '"name":"Head"', '"name":"He d"');
  const { person, losses } = await asked({ path: "small.glb", bytes });
  const { files } = await programJson(["check", "--for", "export", "small.glb"], [{ path: "small.glb", bytes }]);
  assert.deepEqual(codesOf(losses), codesOf(files[0]));
  assert.deepEqual(codesOf(losses), ["note export-joint-renamed"]);
  await person.press(DIALOG.exportHtr, CONTROL.cancel, "idle");
  await person.doUntil({ did: "new-scene" }, "idle");
  assert.deepEqual(codesOf(await person.doUntil({ did: "export", path: "new.htr" }, "losses")), ["error export-root-missing"]);
});

test("a file of a kind that the plug-in does not know is refused in words", async () => {
  const person = await Person.sit();
  const refused = await person.doUntil({ did: "export", path: "new.xyz" }, "refused");
  assert.equal(refused.words, "The plug-in has nobody for files of this kind");
});
