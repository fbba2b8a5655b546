import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { frameOf } from "../../page/logic/frame_range";
import { frameTicks } from "../../page/logic/timeline_geometry";
import * as desk from "../../page/state/desk";
import { keep } from "../../page/state/kept_settings";
import { notices } from "../../page/state/notices";
import { deselect, lastSelected, select, selectedInActive } from "../../page/state/selection";
import { scene, takes, working } from "../../page/state/takes";
import * as time from "../../page/state/time";
import * as work from "../../page/state/work";
import type { StoredValue, Told } from "../../worker/desk_protocol";
import { current, handedOut, node, openFile, sceneOf, sitDown, stands } from "./desk_stand_in";

beforeEach(sitDown);

const file = (name: string): Told => ({ tell: "file", name, bytes: new Uint8Array(1) });

test("what was written is handed out when the desk is at rest again", () => {
  current().tell(file("out/a.bvk"), file("out/b.bvk"));
  assert.deepEqual(handedOut, []);
  current().tell({ tell: "idle" });
  assert.deepEqual(handedOut, [["out/a.bvk", "out/b.bvk"]]);
  current().tell({ tell: "idle" });
  assert.equal(handedOut.length, 1);
});

test("of what was written mappings alone stay on the desk", () => {
  const walk = new Blob(["1"]);
  desk.putFile("walk.htr", walk);
  current().tell(file("walk.htr"), file("made.mnm"));
  assert.deepEqual([...desk.deskFiles.value.keys()], ["made.mnm"]);
  assert.deepEqual(current().removed, ["walk.htr"]);
  assert.equal(desk.putFile("walk.htr", walk), "walk.htr");
  assert.deepEqual(current().files, ["walk.htr", "walk.htr"]);
});

test("a file that is closed leaves the desk, unless the plug-in may be at it", () => {
  const [first, second] = [openFile("a.trc"), openFile("b.trc")];
  work.importFile(second);
  takes.value = [first];
  assert.deepEqual(current().removed, []);
  current().tell({ tell: "idle" });
  work.importFile(first);
  current().tell({ tell: "idle" });
  takes.value = [];
  assert.deepEqual(current().removed, ["a.trc"]);
  assert.deepEqual([...desk.deskFiles.value.keys()], ["b.trc"]);
});

test("of two desks that are begun at once one is ended", async () => {
  await Promise.all([desk.beginAnew(), desk.beginAnew()]);
  assert.deepEqual(stands.slice(1).map(({ ended }) => ended), [true, false]);
  desk.tell({ did: "about" });
  assert.ok(current().last("about"));
});

test("a task can be given at rest alone", () => {
  assert.equal(work.free.value, true);
  current().tell({ tell: "busy" });
  assert.equal(work.free.value, false);
  current().tell({ tell: "idle" });
  assert.equal(work.free.value, true);
  desk.giveTask({ did: "about" });
  assert.equal(work.free.value, false);
});

test("a file is put once, and under a name of its own", () => {
  const first = new Blob(["1"]);
  assert.equal(desk.putFile("walk.trc", first), "walk.trc");
  assert.equal(desk.putFile("walk.trc", first), "walk.trc");
  assert.equal(desk.putFile("walk.trc", new Blob(["2"])), "walk-2.trc");
  assert.equal(desk.putFile("Walk.TRC", new Blob(["3"])), "Walk-3.TRC");
  assert.deepEqual(current().files, ["walk.trc", "walk-2.trc", "Walk-3.TRC"]);
});

test("a scene that is told again is seen as closely as before, and plays on", () => {
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A")) });
  time.zoomTimeline(2);
  time.playing.value = true;
  const view = time.timelineView.value;
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A"), node(9, "B")) });
  assert.deepEqual(time.timelineView.value, view);
  assert.equal(time.playing.value, true);
  time.stop();
});

test("a file that could not be read is forgotten, and can be put again", () => {
  const file = new Blob(["1"]);
  desk.putFile("walk.trc", file);
  current().tell({ tell: "unread", path: "walk.trc" });
  assert.deepEqual([...desk.deskFiles.value.keys()], []);
  assert.match(notices.value[0].title, /^walk\.trc has changed or gone/);
  assert.equal(desk.putFile("walk.trc", file), "walk.trc");
  assert.equal(current().files.length, 2);
});

test("what is open can be chosen when files are asked for, and what is opened meanwhile", () => {
  openFile("a.trc");
  openFile("a.htr");
  assert.deepEqual(current().files, []);
  const asked = { filter: "", pattern: "*.trc", extension: "trc", many: true };
  current().tell({ tell: "choose-files", choice: 1, title: "", ...asked, save: false });
  assert.deepEqual(current().files, ["a.trc"]);
  openFile("b.trc");
  assert.deepEqual(current().files, ["a.trc", "b.trc"]);
  current().tell({ tell: "choice-gone", choice: 1 });
  openFile("c.trc");
  assert.deepEqual(current().files, ["a.trc", "b.trc"]);
});

test("in and out points of the file that is worked on are the range of its import", () => {
  work.setWorking(false);
  const [take, other] = [openFile("a.trc"), openFile("b.trc")];
  time.activate(take);
  time.jumpTo(9);
  time.setIn();
  work.setWorking(true);
  work.importFile(take);
  assert.deepEqual(current().last("import")?.range, [10, 100]);
  assert.equal(desk.idle.value, false);
  work.importFile(other);
  assert.equal(current().last("import")?.range, undefined);
  work.setWorking(false);
  assert.equal(time.span.value.first, 9);
});

test("a file has a name on the desk that says what it is", () => {
  work.importFile(openFile("take.txt", 100, "2/take.txt.trc"));
  assert.equal(current().last("import")?.path, "take.txt.trc");
});

test("a scene that is told at every third frame has the numbers of all its frames", () => {
  current().tell({ tell: "scene", scene: { ...sceneOf(node(4, "A")), firstFrame: 5, step: 3 } });
  assert.equal(scene.value!.info.rate, 20);
  time.jumpTo(2);
  time.setIn();
  assert.deepEqual(current().last("time"), { did: "time", frame: 11 });
  work.exportScene("walk.htr");
  assert.deepEqual(current().last("export")?.range, [11, 32]);
  assert.equal(frameOf(scene.value!.info, 12), 2);
  const ticks = frameTicks({ first: 0, end: 10 }, { left: 0, width: 300 }, 74, scene.value!.info);
  assert.deepEqual(ticks.map(({ at, text }) => [Number(at.toFixed(2)), text]), [[1.67, "10"], [5, "20"], [8.33, "30"]]);
});

test("what is written lies in the folder of the desk, and has the extension of its kind", () => {
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A")) });
  time.jumpTo(3);
  time.setIn();
  work.exportScene("../walk");
  assert.deepEqual(current().last("export"), { did: "export", path: "walk.htr", range: [3, 9] });
  work.saveScene("walk");
  assert.deepEqual(current().last("save-scene"), { did: "save-scene", path: "walk.glb" });
});

test("a file that is opened while the scene is seen leaves its time alone", () => {
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A")) });
  time.jumpTo(7);
  time.activate(openFile("a.trc"));
  assert.equal(time.frame.value, 7);
  assert.deepEqual(time.reach.value, { first: 0, end: 10 });
  assert.deepEqual(current().last("time"), { did: "time", frame: 7 });
});

test("what is selected here is selected there, and the other way around", () => {
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A"), node(9, "B")) });
  select(scene.value!, 1, false);
  const { nodes, number } = current().last("select")!;
  assert.deepEqual(nodes, [9]);
  const count = current().done.length;
  current().tell({ tell: "selection", nodes: [4], number });
  assert.deepEqual([...selectedInActive.value], [0]);
  assert.equal(current().done.length, count);
});

test("what the desk tells of a selection that is over changes nothing", () => {
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A"), node(9, "B")) });
  select(scene.value!, 0, false);
  select(scene.value!, 1, false);
  const selects = current().done.filter((did) => did.did === "select");
  assert.equal(selects.length, 2);
  for (const { nodes, number } of selects) {
    current().tell({ tell: "selection", nodes, number });
    assert.deepEqual([...selectedInActive.value], [1]);
  }
  assert.equal(current().done.filter(({ did }) => did === "select").length, 2);
});

test("takes and the scene have selections of their own", () => {
  const take = openFile("a.trc");
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A"), node(9, "B")) });
  select(scene.value!, 1, false);
  const told = current().done.length;
  work.setWorking(false);
  select(take, 0, false);
  deselect();
  assert.equal(selectedInActive.value.size, 0);
  current().tell({ tell: "selection", nodes: [4, 9], number: current().last("select")!.number });
  select(take, 0, false);
  assert.equal(current().done.length, told);
  work.setWorking(true);
  assert.deepEqual([...selectedInActive.value], [0, 1]);
  work.setWorking(false);
  assert.deepEqual(lastSelected.value, { take: take.key, object: 0 });
});

test("what is selected stays so while the scene grows", () => {
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A"), node(9, "B")) });
  select(scene.value!, 1, false);
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A"), node(12, "C"), node(9, "B")) });
  assert.deepEqual([...selectedInActive.value], [2]);
});

for (const seen of [true, false]) {
  test(`another scene has nothing of the one before, ${seen ? "" : "not "}seen`, () => {
    current().tell({ tell: "scene", scene: sceneOf(node(1, "A"), node(2, "B")) });
    select(scene.value!, 1, false);
    time.jumpTo(9);
    time.setIn();
    work.setWorking(seen);
    current().tell(
      { tell: "scene-gone" },
      { tell: "scene", scene: sceneOf(node(1, "C"), node(2, "D")) },
    );
    work.setWorking(true);
    assert.equal(selectedInActive.value.size, 0);
    assert.deepEqual(time.timePlace(), time.FIRST_PLACE);
  });
}

test("a scene that grows stays at its place in time", () => {
  current().tell({ tell: "scene", scene: sceneOf(node(1, "A")) });
  time.jumpTo(4);
  time.setIn();
  current().tell({ tell: "scene", scene: sceneOf(node(1, "A"), node(2, "B")) });
  assert.deepEqual(time.timePlace(), { frame: 4, inPoint: 4, outPoint: null });
});

test("what is suggested is taken while it can be picked", () => {
  current().tell(
    { tell: "scene", scene: sceneOf(node(4, "LFHD"), node(9, "B")) },
    { tell: "suggestions", suggested: [{ standard: "LFHD", node: 4, reason: "same", place: "" }] },
    { tell: "mapping", entries: [], asked: "LFHD" },
  );
  work.takeSuggestion();
  assert.equal(current().last("pick"), undefined);
  current().tell({ tell: "pick-mode", on: true, pickable: [4, 9] });
  work.takeSuggestion();
  assert.deepEqual(current().last("pick"), { did: "pick", node: 4, standard: "LFHD" });
  desk.pickNode(12);
  assert.deepEqual(current().last("pick"), { did: "pick", node: null, standard: "LFHD" });
  current().tell({ tell: "colors", changed: [{ node: 4, color: [0, 51, 255] }] });
  const colors = [...scene.value!.colors!.value].map((part) => part.toFixed(1));
  assert.deepEqual(colors, ["0.0", "0.2", "1.0", "0.8", "0.2", "0.2"]);
  current().tell({ tell: "pick-mode", on: false, pickable: [] });
  assert.equal(work.suggestion.value, null);
});

test("nothing is picked while takes are looked at", () => {
  current().tell(
    { tell: "scene", scene: sceneOf(node(4, "LFHD"), node(9, "B")) },
    { tell: "suggestions", suggested: [{ standard: "LFHD", node: 4, reason: "same", place: "" }] },
    { tell: "mapping", entries: [], asked: "LFHD" },
    { tell: "pick-mode", on: true, pickable: [4, 9] },
  );
  work.setWorking(false);
  assert.equal(desk.picking.value, false);
  work.takeSuggestion();
  desk.pickNode(9);
  assert.equal(current().last("pick"), undefined);
  work.setWorking(true);
  desk.pickNode(9);
  assert.equal(current().last("pick")?.node, 9);
});

test("what is odd in the mapping is asked for as it grows", () => {
  current().tell({ tell: "mapping", entries: [{ standard: "LFHD", marker: "a", node: 4 }], asked: "LBHD" });
  assert.ok(current().last("ask-lint"));
  current().tell({ tell: "lint", findings: [{ code: "x", severity: "note", text: "Odd." }] });
  assert.equal(desk.lint.value.length, 1);
  current().tell({ tell: "mapping", entries: [], asked: "" });
  assert.equal(desk.lint.value.length, 0);
});

test("what an export loses is told of the dialog that is open", () => {
  const text = "It stands still; --range FROM:TO leaves that out.";
  const losses = { findings: [{ code: "x", severity: "note" as const, text }], refusal: text };
  desk.giveTask({ did: "export", path: "new.htr" });
  current().tell({ tell: "losses", ...losses });
  const words = 'It stands still; "Range" leaves that out.';
  assert.deepEqual([desk.losses.value?.findings[0].text, desk.losses.value?.refusal], [words, words]);
  desk.giveTask({ did: "export", path: "new.htr" });
  assert.equal(desk.losses.value, null);
});

test("a desk that has ended is told of, and begun anew on what is open", async () => {
  const take = openFile("a.trc");
  work.importFile(take);
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A")) });
  current().tell({ tell: "message", box: 1, text: "t", caption: "c", buttons: ["ok"] });
  current().tell({ tell: "failed", words: "memory" });
  assert.equal(desk.failure.value, "memory");
  assert.deepEqual([desk.things.value, scene.value], [[], null]);
  const before = current();
  await desk.beginAnew();
  assert.ok(before.ended && current() !== before);
  before.tell({ tell: "failed", words: "late" });
  assert.equal(desk.failure.value, null);
  current().tell({ tell: "idle" });
  work.importFile(take);
  assert.deepEqual(current().files, ["a.trc"]);
});

test("a task that is refused is told in words", () => {
  current().tell({ tell: "refused", did: "about", words: "A dialog is open." });
  assert.deepEqual(notices.value.map(({ title }) => title), ["A dialog is open."]);
});

test("what comes too late, or meets nothing, is passed over in silence", () => {
  for (const did of ["command", "text", "answer", "pick", "right-click", "select"] as const) {
    current().tell({ tell: "refused", did, words: "It is not there any more." });
  }
  assert.deepEqual(notices.value, []);
});

test("why a choice is not accepted is told with it, until another is made", () => {
  const refused: Told = { tell: "refused", did: "chosen", words: "It is too long." };
  current().tell({ tell: "choose-folder", choice: 7, title: "t" });
  desk.choose(7, ["a"]);
  current().tell(refused);
  assert.equal(desk.choiceRefusal.value, "It is too long.");
  desk.choose(7, ["b"]);
  assert.equal(desk.choiceRefusal.value, "");
  current().tell(refused, { tell: "choice-gone", choice: 7 }, refused);
  assert.equal(desk.choiceRefusal.value, "");
  assert.deepEqual(notices.value, []);
});

test("what was chosen last is known for as long as the desk is at it", () => {
  desk.choose(7, ["a.trc", "b.trc"]);
  assert.equal(desk.chosenLast.value, "b.trc");
  current().tell({ tell: "idle" });
  assert.equal(desk.chosenLast.value, "");
});

test("settings are handed to the next desk when they are kept", async () => {
  const value = (name: string): StoredValue => ({ key: "k", name, type: "int32", bytes: [1, 0, 0, 0] });
  current().tell({ tell: "settings", values: [value("Size"), value("MNMPath")] });
  await desk.beginAnew();
  assert.deepEqual(current().settings, []);
  keep.value = true;
  await desk.beginAnew();
  assert.deepEqual(current().settings, [value("Size")]);
  assert.equal(working.value, true);
});
