import assert from "node:assert/strict";
import { test } from "node:test";
import { example } from "./built_core.mjs";
import { CONTROL, DIALOG, Person, programFile } from "./desk_person.mjs";

const walk = { path: "walk.htr", bytes: example("walk.htr") };
const markers = { path: "walk.trc", bytes: example("walk.trc") };

test("a desk tells of its scene, in which nothing is yet, as it begins", async () => {
  const person = await Person.sit();
  assert.deepEqual(person.scene.nodes, []);
  assert.equal(person.scene.rate, 30);
});

test("settings are fresh, are told when they change, and are found by the next desk", async () => {
  const person = await Person.sit();
  assert.ok(!person.told.some(({ tell }) => tell === "settings"));
  await person.import(walk.path, walk.bytes, () => person.type(DIALOG.importHtr, CONTROL.scale, "3"));
  const { values } = person.told.findLast(({ tell }) => tell === "settings");
  assert.ok(values.length > 5);
  assert.ok(values.every(({ key }) => key.startsWith("Software\\Orvane\\OrvaneFileIO\\Skelder\\")));
  const next = await Person.sit(values);
  next.put(walk.path, walk.bytes);
  await next.doUntil({ did: "import", path: walk.path }, "dialog");
  assert.equal(Number(next.control(DIALOG.importHtr, CONTROL.scale).text), 3);
});

/** A scene but for the handles, which files do not keep. */
function withoutHandles({ nodes, ...scene }) {
  const nameOf = new Map(nodes.map(({ node, name }) => [node, name]));
  return { ...scene, nodes: nodes.map(({ node: _, parent, ...rest }) => ({ ...rest, parent: nameOf.get(parent) })) };
}

test("a scene is opened, and what is no scene leaves the one that is there", async () => {
  const person = await Person.sit();
  await person.import(walk.path, walk.bytes);
  const bytes = await person.save("kept.glb");
  const next = await Person.sit();
  next.put("kept.glb", bytes);
  next.put(walk.path, walk.bytes);
  await next.doUntil({ did: "open-panel" }, "dialog");
  await next.doUntil({ did: "open-scene", path: "kept.glb" }, "done");
  await next.until("idle");
  assert.deepEqual(withoutHandles(next.scene), withoutHandles(person.scene));
  assert.ok(next.dialogs.has(DIALOG.panel));
  const refused = await next.doUntil({ did: "open-scene", path: walk.path }, "refused");
  assert.match(refused.words, /\w/);
  const opened = next.scene;
  assert.deepEqual(await next.save("kept.glb"), bytes);
  assert.equal(next.scene, opened);
  await next.doUntil({ did: "new-scene" }, "scene-gone");
  await next.until("done");
  assert.deepEqual(next.scene.nodes, []);
});

test("a motion is applied to what is selected, as the program applies it", async () => {
  const person = await Person.sit();
  await person.import(walk.path, walk.bytes);
  const scene = { path: "scene.glb", bytes: await person.save("scene.glb") };
  await person.doUntil({ did: "select", nodes: [person.node("Hips")], number: 1 }, "selection");
  assert.deepEqual(person.selection, [person.node("Hips")]);
  await person.import(walk.path, undefined, async () => {
    await person.click(DIALOG.importHtr, CONTROL.apply);
    person.type(DIALOG.importHtr, CONTROL.offset, "40");
  });
  const verb = ["import", walk.path, "-o", "again.glb", "--into", "scene.glb", "--apply", "--select", "Hips", "--offset", "40"];
  assert.deepEqual(await person.save("again.glb"), await programFile(verb, [walk, scene]));
});

test("each selection is answered with its number, whatever became of it", async () => {
  const person = await Person.sit();
  await person.import(walk.path, walk.bytes);
  const node = person.node("Hips");
  const select = async (nodes, number) => {
    const { tell: _, ...told } = await person.doUntil({ did: "select", nodes, number }, "selection");
    return told;
  };
  assert.deepEqual(await select([node], 1), { nodes: [node], number: 1 });
  assert.deepEqual(await select([node], 2), { nodes: [node], number: 2 });
  assert.deepEqual(await select([9999], 3), { nodes: [node], number: 3 });
});

test("what is selected while a dialog is open, or on its way, is selected when that is gone", async () => {
  const person = await Person.sit();
  await person.import(walk.path, walk.bytes);
  const [node, other] = [person.node("Hips"), person.node("Spine")];
  person.desk.do({ did: "import", path: walk.path });
  person.desk.do({ did: "select", nodes: [node], number: 1 });
  person.desk.do({ did: "time", frame: 7 });
  await person.until("dialog");
  const told = await person.step({ did: "select", nodes: [other], number: 2 });
  assert.deepEqual(told, []);
  await person.press(DIALOG.importHtr, CONTROL.cancel, "idle");
  const answers = [await person.until("selection"), await person.until("selection")];
  assert.deepEqual(answers.map(({ nodes, number }) => [nodes, number]), [[[node], 1], [[other], 2]]);
  assert.ok(!person.told.some(({ tell }) => tell === "refused"));
});

test("an import adds to the scene that is there", async () => {
  const person = await Person.sit();
  await person.import(walk.path, walk.bytes);
  const scene = { path: "scene.glb", bytes: await person.save("scene.glb") };
  const bones = person.scene.nodes.length;
  await person.import(markers.path, markers.bytes, () => person.type(DIALOG.importTrc, CONTROL.size, "12"));
  assert.ok(person.scene.nodes.length > bones + 30);
  const verb = ["import", markers.path, "-o", "both.glb", "--into", "scene.glb", "--size", "12"];
  assert.deepEqual(await person.save("both.glb"), await programFile(verb, [markers, scene]));
});

test("what an import makes of a file is told when the person has agreed to it", async () => {
  const person = await Person.sit();
  const text = Buffer.from(markers.bytes).toString("latin1");
  const lines = text.split("\n");
  await person.import("short.trc", new TextEncoder().encode(lines.slice(0, -4).join("\n") + "\n"));
  const { findings } = person.told.find(({ tell }) => tell === "report");
  assert.ok(findings.length > 0 && findings.every(({ text: words }) => words.length > 10));
});
