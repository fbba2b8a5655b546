import assert from "node:assert/strict";
import { test } from "node:test";
import { example } from "./built_core.mjs";
import { CONTROL, DIALOG, Person, programFile } from "./desk_person.mjs";

const walk = { path: "walk.htr", bytes: example("walk.htr") };

async function withSkeleton() {
  const person = await Person.sit();
  await person.import(walk.path, walk.bytes);
  await person.doUntil({ did: "select", nodes: [person.node("Hips")] }, "selection");
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

test("a file of a kind that the plug-in does not know is refused in words", async () => {
  const person = await Person.sit();
  const refused = await person.doUntil({ did: "export", path: "new.xyz" }, "refused");
  assert.equal(refused.words, "The plug-in has nobody for files of this kind");
});
