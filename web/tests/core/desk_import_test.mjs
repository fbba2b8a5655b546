import assert from "node:assert/strict";
import { test } from "node:test";
import { example, hurryClock } from "./built_core.mjs";
import { CONTROL, DIALOG, Person, programFile, programJson } from "./desk_person.mjs";

const walk = { path: "walk.htr", bytes: example("walk.htr") };
const markers = { path: "walk.trc", bytes: example("walk.trc") };

async function opened(path, bytes) {
  const person = await Person.sit();
  person.put(path, bytes);
  const { shown } = await person.doUntil({ did: "import", path }, "dialog");
  return { person, shown };
}

test("the dialog of an import is as the module's template has it", async () => {
  const { shown } = await opened(walk.path, walk.bytes);
  assert.deepEqual(
    { ...shown, controls: shown.controls.length, dialog: 0 },
    { dialog: 0, template: DIALOG.importHtr, title: "ImportHTR", width: 262, height: 164, modal: true, closeBox: false, controls: 27 },
  );
  assert.deepEqual(shown.controls[1], {
    id: 1085, kind: "radio-button", text: "Create", x: 16, y: 18, width: 60, height: 10,
    enabled: true, checked: true, readOnly: false, isDefault: false, tabStop: true, groupStart: true,
  });
  const defaults = shown.controls.filter(({ isDefault }) => isDefault).map(({ id, text }) => [id, text]);
  assert.deepEqual(defaults, [[CONTROL.ok, "&OK"]]);
});

for (const { file, stops } of [
  { file: walk, stops: [1085, 1104, 1019, 1017, 1063, 1051, 1067, 1065, 1066, 1089, 1140, 1088, 1097, 1098] },
  { file: markers, stops: [1085, 1143, 1144, 1141, 1104, 1067, 1065, 1066, 1089, 1140, 1088, 1097, 1098] },
]) {
  test(`${file.path}: the keyboard goes through the dialog in the module's order`, async () => {
    const { shown } = await opened(file.path, file.bytes);
    assert.deepEqual(shown.controls.filter(({ tabStop }) => tabStop).map(({ id }) => id), stops);
  });
}

test("what a control does to others is told", async () => {
  const { person } = await opened(walk.path, walk.bytes);
  const enabled = (id) => person.control(DIALOG.importHtr, id).enabled;
  await person.press(DIALOG.importHtr, CONTROL.range, "controls");
  assert.ok(enabled(CONTROL.from) && enabled(CONTROL.to));
  await person.press(DIALOG.importHtr, CONTROL.apply, "controls");
  assert.ok(!enabled(CONTROL.size) && !enabled(CONTROL.endEffectors));
  assert.ok(person.control(DIALOG.importHtr, CONTROL.apply).checked);
});

const REFUSALS = [
  { file: walk, template: DIALOG.importHtr, control: CONTROL.size, text: "0", caption: "ImportHTR Error", words: "Please choose a non-zero size." },
  { file: markers, template: DIALOG.importTrc, control: CONTROL.scale, text: "0", caption: "ImportTRC Error", words: "Please choose a non-zero scale factor." },
];
for (const { file, template, control, text, caption, words } of REFUSALS) {
  test(`${file.path}: the plug-in refuses in its own words, and its dialog stays`, async () => {
    const { person } = await opened(file.path, file.bytes);
    person.type(template, control, text);
    const box = await person.press(template, CONTROL.ok, "message");
    assert.deepEqual([box.caption, box.text, box.buttons], [caption, words, ["ok"]]);
    const held = await person.press(template, CONTROL.cancel, "refused");
    assert.equal(held.words, "A message waits for its answer");
    await person.answer("ok", "message-gone");
    assert.ok(person.dialogs.has(template));
    const done = await person.press(template, CONTROL.cancel, "done");
    assert.equal(done.completed, false);
    assert.deepEqual(person.scene.nodes, []);
  });
}

test("Esc and the frame's cross do nothing to a dialog that has none, and close the one that has", async () => {
  const { person } = await opened(walk.path, walk.bytes);
  await person.click(DIALOG.importHtr, CONTROL.esc);
  assert.ok(person.dialogs.has(DIALOG.importHtr));
  await person.press(DIALOG.importHtr, CONTROL.cancel, "idle");
  const { shown } = await person.doUntil({ did: "about" }, "dialog");
  assert.deepEqual([shown.template, shown.closeBox], [DIALOG.about, true]);
  assert.ok(shown.controls.some(({ kind }) => kind === "image"));
  await person.press(DIALOG.about, CONTROL.esc, "idle");
  assert.ok(!person.dialogs.has(DIALOG.about));
});

test("while a dialog is open another task is refused, and questions are answered", async () => {
  const { person } = await opened(walk.path, walk.bytes);
  const refused = await person.doUntil({ did: "import", path: "walk.htr" }, "refused");
  assert.deepEqual([refused.did, refused.words], ["import", "A dialog is open"]);
  const { findings } = await person.doUntil({ did: "ask-lint" }, "lint");
  assert.deepEqual(findings.map(({ code }) => code), ["mnm-entries-missing"]);
  await person.press(DIALOG.importHtr, CONTROL.ok, "done");
  assert.ok(person.scene.nodes.length > 10);
});

const IMPORTS = [
  { file: walk, flags: ["--frame-rate", "keep"], use: () => {} },
  {
    file: walk,
    flags: ["--range", "10:30", "--offset", "5", "--end-effectors", "--scale", "2"],
    async use(person) {
      const template = DIALOG.importHtr;
      for (const control of [CONTROL.range, CONTROL.endEffectors, CONTROL.frameRate]) await person.press(template, control, "controls");
      const typed = { [CONTROL.from]: "10", [CONTROL.to]: "30", [CONTROL.offset]: "5", [CONTROL.scale]: "2" };
      for (const [control, text] of Object.entries(typed)) person.type(template, Number(control), text);
    },
  },
  {
    file: markers,
    flags: ["--size", "12"],
    async use(person) {
      await person.press(DIALOG.importTrc, CONTROL.frameRate, "controls");
      person.type(DIALOG.importTrc, CONTROL.size, "12");
    },
  },
  { file: walk, flags: ["--tcb", "--frame-rate", "keep"], use: (person) => person.click(DIALOG.importHtr, CONTROL.tcb) },
  {
    file: markers,
    flags: ["--point", "--root-node", "--size", "12", "--frame-rate", "keep"],
    async use(person) {
      for (const control of [CONTROL.point, CONTROL.rootNode]) await person.click(DIALOG.importTrc, control);
      person.type(DIALOG.importTrc, CONTROL.size, "12");
    },
  },
];
for (const { file, flags, use } of IMPORTS) {
  test(`a scene is that of import ${file.path} ${flags.join(" ")}`, async () => {
    const person = await Person.sit();
    const done = await person.import(file.path, file.bytes, () => use(person));
    assert.deepEqual([done.task, done.completed], ["import", true]);
    const expected = await programFile(["import", file.path, "-o", "scene.glb", ...flags], [file]);
    assert.deepEqual(await person.save("scene.glb"), expected);
  });
}

/** What is told when "other.htr", one of whose segments the scene calls otherwise, is imported into a scene that has another rate. */
async function besideOther() {
  const person = await Person.sit();
  await person.import(walk.path, walk.bytes);
  const scene = { path: "scene.glb", bytes: await person.save("scene.glb") };
  const text = Buffer.from(walk.bytes).toString("latin1").replaceAll("Chest", "Chess");
  const other = { path: "other.htr", bytes: new Uint8Array(Buffer.from(text, "latin1")) };
  person.put(other.path, other.bytes.slice());
  await person.doUntil({ did: "select", nodes: [person.node("Hips")], number: 1 }, "selection");
  const losses = await person.doUntil({ did: "import", path: other.path }, "losses");
  const byProgram = async (...flags) => {
    const verb = ["import", other.path, "--into", scene.path, "-o", "new.glb", "--frame-rate", "keep", ...flags];
    return codesOf(await programJson(verb, [scene, other]));
  };
  return { person, losses, byProgram };
}

const codesOf = ({ findings }) => findings.map(({ code, severity }) => `${severity} ${code}`);

test("what an import makes of its file is told before, as the program tells it, by what the dialog shows", async () => {
  const { person, losses, byProgram } = await besideOther();
  assert.deepEqual(codesOf(losses), await byProgram("--create"));
  assert.deepEqual(codesOf(losses), ["warning apply-rate-differs"]);
  const applied = await person.press(DIALOG.importHtr, CONTROL.apply, "losses");
  assert.deepEqual(codesOf(applied), await byProgram("--apply", "--select", "Hips"));
  assert.ok(applied.findings.some(({ text }) => text.startsWith("11 names of the file are not among")));
  await person.press(DIALOG.importHtr, CONTROL.frameRate, "losses");
  await person.click(DIALOG.importHtr, CONTROL.range);
  person.type(DIALOG.importHtr, CONTROL.from, "10");
  const moved = await person.until("losses");
  assert.ok(codesOf(moved).some((code) => code.endsWith(" apply-range-moves")));
  const report = await person.press(DIALOG.importHtr, CONTROL.ok, "report");
  assert.deepEqual(report.findings, moved.findings);
  await person.until("done");
});

test("a text that is typed while a message waits is taken back", async () => {
  const { person } = await opened(markers.path, markers.bytes);
  person.type(DIALOG.importTrc, CONTROL.size, "0");
  await person.press(DIALOG.importTrc, CONTROL.ok, "message");
  const { dialog } = person.dialogs.get(DIALOG.importTrc);
  await person.doUntil({ did: "text", dialog, control: CONTROL.size, text: "7" }, "refused");
  const { changed } = await person.until("controls");
  assert.deepEqual(changed.map(({ text }) => text), ["0"]);
});

test("in and out points are typed into the dialog", async () => {
  const person = await Person.sit();
  person.put(walk.path, walk.bytes);
  await person.doUntil({ did: "import", path: walk.path, range: [7, 9] }, "dialog");
  const text = (id) => person.control(DIALOG.importHtr, id).text;
  assert.ok(person.control(DIALOG.importHtr, CONTROL.range).checked);
  assert.deepEqual([text(CONTROL.from), text(CONTROL.to)], ["7", "9"]);
});

test("a scene is told with the places of its nodes", async () => {
  const person = await Person.sit();
  await person.import(walk.path, walk.bytes);
  const { nodes, frames, positions, ends } = person.scene;
  assert.equal(positions.length, 3 * frames * nodes.length);
  assert.equal(ends.length, positions.length);
  assert.ok(frames > 10 && positions.every(Number.isFinite));
  const bone = nodes.findIndex(({ kind, size }) => kind === "bone" && size > 0);
  const way = [0, 1, 2].map((axis) => ends[3 * bone + axis] - positions[3 * bone + axis]);
  assert.ok(Math.abs(Math.hypot(...way) / nodes[bone].size - 1) < 1e-3);
});

test("an import that shows its progress has left its dialog, and can be cancelled", async (t) => {
  const { person } = await opened(markers.path, markers.bytes);
  const { hrtime } = process;
  t.after(() => (process.hrtime = hrtime));
  hurryClock();
  person.replies.set("progress", { did: "cancel" });
  const done = await person.press(DIALOG.importTrc, CONTROL.ok, "done");
  const order = person.told.map(({ tell }) => tell);
  assert.ok(order.indexOf("dialog-gone") < order.indexOf("progress"), order.join(" "));
  assert.equal(done.completed, false);
  assert.ok(person.scene.nodes.length < 41, String(person.scene.nodes.length));
});

test("an import that is left at its dialog does not tell the scene again", async () => {
  const { person } = await opened(walk.path, walk.bytes);
  await person.press(DIALOG.importHtr, CONTROL.cancel, "idle");
  assert.equal(person.told.filter(({ tell }) => tell === "scene").length, 1);
});

test("a scene of very many frames is told at some of them", async () => {
  const person = await Person.sit();
  await person.import(walk.path, walk.bytes, () => person.type(DIALOG.importHtr, CONTROL.offset, "300000"));
  const { nodes, firstFrame, step, frames, positions } = person.scene;
  assert.ok(step > 1 && firstFrame + (frames - 1) * step > 299990, `${frames} frames, one of ${step}`);
  assert.ok(frames * nodes.length <= 2e6);
  assert.equal(positions.length, 3 * frames * nodes.length);
});

test("half a character that is typed is a character that nobody can read", async () => {
  const { person, shown } = await opened(walk.path, walk.bytes);
  const text = { did: "text", dialog: shown.dialog, control: CONTROL.size, text: "1\ud800" };
  assert.deepEqual(await person.step(text), []);
});
