import assert from "node:assert/strict";
import { test } from "node:test";
import { example, hurryClock } from "./built_core.mjs";
import { CONTROL, DIALOG, Person, programFile, programFiles } from "./desk_person.mjs";

const markers = { path: "walk.trc", bytes: example("walk.trc") };
const mapping = { path: "walk.mnm", bytes: example("walk.mnm") };
const PANEL = DIALOG.panel;

/** A person with the panel, who has chosen the mapping. */
async function withPanel(settings = []) {
  const person = await Person.sit(settings);
  for (const { path, bytes } of [markers, mapping]) person.put(path, bytes);
  await person.doUntil({ did: "open-panel" }, "dialog");
  return person;
}

async function withMapping() {
  const person = await withPanel();
  const choice = await person.press(PANEL, CONTROL.browseMapping, "choose-files");
  assert.deepEqual([choice.filter, choice.pattern, choice.save], ["Marker Name Mapping Files (*.MNM)", "*.mnm", false]);
  await person.choose([mapping.path], "idle");
  assert.match(person.control(PANEL, 1137).text, /walk\.mnm$/);
  return person;
}

async function set(person, control, checked) {
  if (person.control(PANEL, control).checked !== checked) await person.click(PANEL, control);
}

// BVK files say when they were written.
const withoutDate = (bytes) => Buffer.from(bytes).toString("latin1").replace(/^\$DateTime .*$/m, "");

test("the panel stays open beside all else, under its title", async () => {
  const person = await withPanel();
  const panel = person.dialogs.get(PANEL);
  assert.deepEqual([panel.title, panel.modal, panel.width, panel.height], ["Convert TRC to BVK", false, 108, 292]);
  assert.equal(person.control(PANEL, CONTROL.offsetX).kind, "edit");
  assert.equal(person.control(PANEL, CONTROL.offsetX).enabled, false);
  await person.click(PANEL, CONTROL.offsetEnabled);
  assert.equal(person.control(PANEL, CONTROL.offsetX).enabled, true);
  await person.import(markers.path);
  assert.ok(person.dialogs.has(PANEL));
});

for (const space of ["trc", "skelder"]) test(`a file that it converts with an offset in ${space} space is the program's`, async () => {
  const person = await withMapping();
  await set(person, CONTROL.batch, false);
  await set(person, CONTROL.trcName, false);
  await set(person, CONTROL.offsetEnabled, true);
  if (space === "skelder") await person.click(PANEL, CONTROL.skelderSpace);
  person.type(PANEL, CONTROL.offsetX, "12.5");
  const source = await person.press(PANEL, CONTROL.convert, "choose-files");
  assert.deepEqual([source.title, source.many, source.save], ["Select Source TRC Files...", false, false]);
  const target = await person.choose([markers.path], "choose-files");
  assert.deepEqual([target.title, target.save, target.extension], ["Select Target BVK File...", true, "bvk"]);
  await person.choose(["new.bvk"], "idle");
  const verb = ["convert", markers.path, "-o", "new.bvk", "--mapping", mapping.path, "--offset", "12.5,0,0", "--offset-space", space];
  const expected = await programFile(verb, [markers, mapping]);
  assert.equal(withoutDate(person.files.get("new.bvk")), withoutDate(expected));
});

test("what a conversion has read of its file is in the mapping, and stays before what is picked", async () => {
  const person = await withMapping();
  await person.import(markers.path);
  await person.press(PANEL, CONTROL.convert, "choose-files");
  await person.choose([], "idle");
  assert.equal(person.mapping.entries.length, 39);
  assert.deepEqual(person.mapping.entries[0], { standard: "LFHD", marker: "walker:LFHD", node: 0 });
  await person.press(PANEL, CONTROL.createMapping, "message");
  await person.answer("no", "message");
  await person.answer("no", "pick-mode");
  const node = person.node("walker:LFHD");
  person.do({ did: "pick", node, standard: "LFHD" });
  await person.until("mapping");
  assert.equal(person.mapping.entries.length, 40);
  assert.deepEqual(person.mapping.entries[39], { standard: "LFHD", marker: "walker:LFHD", node });
  const lint = await person.doUntil({ did: "ask-lint" }, "lint");
  assert.ok(lint.findings.some(({ code }) => code === "mnm-entry-doubled"), JSON.stringify(lint.findings));
  await person.click(DIALOG.creator, CONTROL.abort);
  assert.equal(person.mapping.entries.length, 0);
});

test("a new scene has a plug-in without a mapping", async () => {
  const person = await withMapping();
  await person.press(PANEL, CONTROL.convert, "choose-files");
  await person.choose([], "idle");
  await person.doUntil({ did: "new-scene" }, "idle");
  assert.equal(person.mapping.entries.length, 0);
});

test("a batch goes into a folder, with its log", async () => {
  const person = await withMapping();
  person.put("other.trc", example("walk.trc"));
  await set(person, CONTROL.batch, true);
  assert.deepEqual([person.control(PANEL, CONTROL.trcName).checked, person.control(PANEL, CONTROL.trcName).enabled], [true, false]);
  const folder = await person.press(PANEL, CONTROL.browseOutput, "choose-folder");
  assert.equal(folder.title, "Choose BVK Files Destination Folder...");
  await person.choose(["out"], "idle");
  const sources = await person.press(PANEL, CONTROL.convert, "choose-files");
  assert.equal(sources.many, true);
  await person.choose([markers.path, "other.trc"], "idle");
  assert.deepEqual([...person.files.keys()].sort(), ["out/ConvertBVKLog.txt", "out/other.bvk", "out/walk.bvk"]);
  const verb = ["convert", markers.path, "other.trc", "--output-dir", "out", "--mapping", mapping.path];
  const expected = await programFiles(verb, [markers, { ...markers, path: "other.trc" }, mapping, { path: "out/other.txt", bytes: new Uint8Array() }]);
  for (const name of ["out/walk.bvk", "out/other.bvk"]) {
    assert.equal(withoutDate(person.files.get(name)), withoutDate(expected.get(name)));
  }
});

test("a file that the reader refuses is told, and one that is not there cannot be chosen", async () => {
  const person = await withMapping();
  person.put("bad.trc", new TextEncoder().encode("no markers\n"));
  await set(person, CONTROL.batch, false);
  await person.press(PANEL, CONTROL.convert, "choose-files");
  const refused = await person.choose(["absent.trc"], "refused");
  assert.match(refused.words, /absent\.trc does not exist/);
  assert.doesNotMatch(refused.words, /\/files/);
  const box = await person.choose(["bad.trc"], "message");
  assert.equal(box.caption, "ConvertBVK Error");
  assert.match(box.text, /\bbad\.trc\b/);
  assert.doesNotMatch(box.text, /\/files/);
  await person.answer("ok", "idle");
});

test("while a choice of files waits the panel cannot be closed", async () => {
  const person = await withMapping();
  await person.press(PANEL, CONTROL.convert, "choose-files");
  const refused = await person.doUntil({ did: "close-panel" }, "refused");
  assert.equal(refused.words, "A choice of files waits");
  await person.choose([], "idle");
  await person.doUntil({ did: "close-panel" }, "dialog-gone");
});

test("progress is shown, and its Cancel is the plug-in's own", async (t) => {
  const person = await withMapping();
  const names = Array.from({ length: 60 }, (_, at) => `take${at}.trc`);
  for (const name of names) person.put(name, markers.bytes.slice());
  await set(person, CONTROL.batch, true);
  await person.press(PANEL, CONTROL.browseOutput, "choose-folder");
  await person.choose(["out"], "idle");
  await person.press(PANEL, CONTROL.convert, "choose-files");
  person.replies.set("progress", { did: "about" });
  person.replies.set("refused", { did: "cancel" });
  const { hrtime } = process;
  t.after(() => (process.hrtime = hrtime));
  hurryClock();
  await person.choose(names, "idle");
  assert.equal(person.told.find(({ tell }) => tell === "progress").what, "Orvane ConvertBVK");
  assert.equal(person.told.find(({ did }) => did === "about").words, "The plug-in is at work");
  assert.ok(person.told.some(({ tell }) => tell === "progress-gone"));
  const converted = [...person.files.keys()].filter((name) => name.endsWith(".bvk")).length;
  assert.ok(converted > 0 && converted < names.length, String(converted));
  await person.press(PANEL, CONTROL.convert, "choose-files");
});
