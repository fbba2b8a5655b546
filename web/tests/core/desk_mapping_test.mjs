import assert from "node:assert/strict";
import { test } from "node:test";
import { example } from "./built_core.mjs";
import { CONTROL, DIALOG, Person, programFile, programJson } from "./desk_person.mjs";

const markers = { path: "walk.trc", bytes: example("walk.trc") };
const picks = { path: "picks.mnm", bytes: example("walk.mnm") };
const PICKED = [25, 25, 204];
const RESTORED = [204, 51, 51];

/** A person whom the mapping creator asks for its first marker. */
async function asked(sticks = ["no", "no"]) {
  const person = await Person.sit();
  await person.import(markers.path, markers.bytes);
  await person.doUntil({ did: "open-panel" }, "dialog");
  const left = await person.press(DIALOG.panel, CONTROL.createMapping, "message");
  assert.deepEqual([left.text, left.buttons], ["Are you using a left wrist stick?", ["yes", "no"]]);
  const right = await person.answer(sticks[0], "message");
  assert.equal(right.text, "Are you using a right wrist stick?");
  await person.answer(sticks[1], "pick-mode");
  await person.doUntil({ did: "ask-lint" }, "lint");
  return person;
}

const pickFor = (person, standard, node) => person.step({ did: "pick", node, standard });
const pick = (person, name) => pickFor(person, person.mapping.asked, person.node(name));
const press = (person, control) => person.click(DIALOG.creator, control);
const isMarker = (person, standard) => person.scene.nodes.some(({ name }) => name === `walker:${standard}`);

/** Picks, or skips what the capture does not have, until no more is asked for or `most` were. */
async function pickOn(person, most = Infinity) {
  for (let count = 0; person.mapping.asked !== "" && count < most; ++count) {
    const { asked: standard } = person.mapping;
    await (isMarker(person, standard) ? pick(person, `walker:${standard}`) : press(person, CONTROL.skip));
  }
}

async function save(person, path) {
  assert.equal(person.choice.save, true);
  assert.equal(person.choice.filter, "Marker Name Mapping Files (*.MNM)");
  const box = await person.choose([path], "message");
  assert.equal(box.text, "MNM File Creation Successful");
  await person.answer("ok", "idle");
}

test("a mapping that was picked is the one of map create, whatever went wrong on the way", async () => {
  const person = await asked();
  const before = new Map(person.colors);
  assert.ok(person.dialogs.has(DIALOG.creator) && !person.dialogs.get(DIALOG.creator).modal);
  assert.match(person.control(DIALOG.creator, CONTROL.description).text, /\(LFHD\)$/);
  assert.ok(!person.control(DIALOG.creator, CONTROL.back).enabled);
  await pickOn(person, 5);
  // Nothing is there, and a wrong one that is taken back.
  const [nothing] = await pickFor(person, person.mapping.asked, null);
  assert.deepEqual([nothing.tell, nothing.words], ["refused", "There is nothing that can be picked"]);
  await pick(person, "walker:RTOE");
  assert.deepEqual(person.colors.get(person.node("walker:RTOE")), PICKED);
  assert.equal(person.mapping.entries.at(-1).standard, "CLAV");
  await press(person, CONTROL.back);
  assert.deepEqual(person.colors.get(person.node("walker:RTOE")), RESTORED);
  assert.equal(person.mapping.asked, "CLAV");
  // The right button asks again.
  await person.step({ did: "right-click" });
  assert.equal(person.mapping.asked, "CLAV");
  await pickOn(person);
  assert.equal(person.mapping.entries.length, 39);
  await save(person, "made.mnm");
  assert.deepEqual(person.colors, before);
  assert.equal(person.mapping.entries.length, 0);
  const expected = await programFile(["map", "create", markers.path, "-o", "made.mnm", "--picks", picks.path], [markers, picks]);
  assert.deepEqual(person.files.get("made.mnm"), expected);
  assert.match(person.control(DIALOG.panel, 1137).text, /made\.mnm$/);
});

test("a second pick of a step that is over is none of the next", async () => {
  const person = await asked();
  const node = person.node("walker:LFHD");
  person.desk.do({ did: "pick", node, standard: "LFHD" });
  await pickFor(person, "LFHD", node);
  assert.deepEqual(person.mapping.entries, [{ standard: "LFHD", marker: "walker:LFHD", node }]);
  assert.equal(person.mapping.asked, "LBHD");
});

test("the desk is busy until the creation has ended", async () => {
  const person = await Person.sit();
  await person.import(markers.path, markers.bytes);
  await person.doUntil({ did: "open-panel" }, "dialog");
  await person.until("idle");
  await person.press(DIALOG.panel, CONTROL.createMapping, "busy");
  await person.until("message");
  await person.answer("no", "message");
  await person.answer("no", "pick-mode");
  await pickOn(person, 2);
  const last = person.told.findLast(({ tell }) => tell === "idle" || tell === "busy");
  assert.equal(last.tell, "busy");
  await person.press(DIALOG.creator, CONTROL.abort, "idle");
});

test("a stick is asked for when there is one", async () => {
  const person = await asked(["yes", "no"]);
  await pickOn(person, 10);
  assert.equal(person.mapping.asked, "LWRE");
});

test("a right click at the second marker of a step asks for both again", async () => {
  const person = await asked();
  while (person.mapping.asked !== "LWRB") await pickOn(person, 1);
  await person.step({ did: "right-click" });
  assert.equal(person.mapping.asked, "LWRA");
  assert.equal(person.mapping.entries.at(-1).standard, "LWRA");
});

test("Abort at each step leaves the colors as they were", async () => {
  const person = await asked();
  const before = new Map(person.colors);
  for (let steps = 0; steps < 45; ++steps) {
    await pickOn(person, steps);
    if (person.choice) {
      await person.choose([], "idle");
      return;
    }
    const how = steps % 2 ? CONTROL.abort : CONTROL.esc;
    const told = await press(person, how);
    assert.ok(told.some(({ tell }) => tell === "idle"));
    assert.ok(!person.dialogs.has(DIALOG.creator) && !person.pickMode.on);
    assert.deepEqual(person.colors, before);
    await person.press(DIALOG.panel, CONTROL.createMapping, "message");
    await person.answer("no", "message");
    await person.answer("no", "pick-mode");
    await person.doUntil({ did: "ask-lint" }, "lint");
  }
});

test("closing the panel in mid-pick ends the creation", async () => {
  const person = await asked();
  await pickOn(person, 3);
  await person.doUntil({ did: "close-panel" }, "idle");
  assert.deepEqual([...person.dialogs.keys()], []);
  assert.equal(person.pickMode.on, false);
  assert.ok([...person.colors.values()].every((color) => String(color) !== String(PICKED)));
  await person.doUntil({ did: "open-panel" }, "dialog");
  assert.ok(person.dialogs.has(DIALOG.panel));
});

test("questions are answered while a pick waits, and tasks are refused", async () => {
  const person = await asked();
  await pickOn(person, 4);
  const lint = await person.doUntil({ did: "ask-lint" }, "lint");
  assert.ok(lint.findings.every(({ code, text }) => code.startsWith("mnm-") && text !== ""));
  const node = person.node("walker:C7");
  assert.ok(person.pickMode.pickable.includes(node));
  assert.deepEqual(person.colors.get(person.node("walker:LFHD")), PICKED);
  const refused = await person.doUntil({ did: "import", path: markers.path }, "refused");
  assert.equal(refused.words, "The plug-in is at work");
  await pickOn(person, 1);
  assert.equal(person.mapping.entries.length, 5);
});

test("names that say which markers they are make suggestions", async () => {
  const person = await Person.sit();
  await person.import(markers.path, markers.bytes);
  const suggested = suggestedTo(person);
  assert.equal(suggested.length, 39);
  assert.deepEqual(suggested[0], { standard: "LFHD", node: person.node("walker:LFHD"), reason: "subject", place: "" });
  await person.doUntil({ did: "new-scene" }, "idle");
  assert.deepEqual(suggestedTo(person), []);
});

const suggestedTo = (person) => person.told.findLast(({ tell }) => tell === "suggestions").suggested;

/** The walk with other names of its markers. */
function renamed(nameFor) {
  const lines = Buffer.from(markers.bytes).toString("latin1").split("\n");
  let count = 0;
  lines[3] = lines[3].replace(/walker:\w+/g, (name) => nameFor(name, ++count));
  return { path: "walk.trc", bytes: new TextEncoder().encode(lines.join("\n")) };
}

test("where no name says anything, places make the suggestions of map suggest --by-geometry", async () => {
  const file = renamed((_, count) => `m${count}`);
  const person = await Person.sit();
  await person.import(file.path, file.bytes.slice());
  const { suggested } = await programJson(["map", "suggest", "walk.trc", "--by-geometry"], [file]);
  assert.ok(suggested.length > 30);
  assert.deepEqual(
    suggestedTo(person),
    suggested.map(({ standard, marker, words }) => ({ standard, node: person.node(marker), reason: "geometry", place: words })),
  );
});

test("a place is asked where a name is not, and never against one", async () => {
  // The marker of a shoulder has no name that says so, and one of the head has that of the shoulder.
  const names = { "walker:LSHO": "walker:a", "walker:LFHD": "walker:LSHO", "walker:RFHD": "walker:b" };
  const file = renamed((name) => names[name] ?? name);
  const person = await Person.sit();
  await person.import(file.path, file.bytes);
  const suggested = suggestedTo(person);
  const byPlace = suggested.filter(({ reason }) => reason === "geometry");
  assert.deepEqual(byPlace.map(({ standard, node }) => [standard, node]), [["RFHD", person.node("walker:b")]]);
  assert.equal(suggested.find(({ standard }) => standard === "LSHO").node, person.node("walker:LSHO"));
  assert.equal(suggested.find(({ standard }) => standard === "LFHD"), undefined);
});

test("a mapping that is not saved stays in the plug-in, and the next goes behind it", async () => {
  const person = await asked();
  await pickOn(person);
  await person.choose([], "idle");
  assert.equal(person.mapping.entries.length, 39);
});
