import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { canSkip, CREATOR, lacksFolder, mappingPath, PANEL } from "../../page/logic/desk_things";
import { importedText, writtenText } from "../../page/logic/outcome";
import { sceneInfo, sceneText } from "../../page/logic/scene_take";
import { rateNote } from "../../page/logic/rate_note";
import * as desk from "../../page/state/desk";
import { sceneRate } from "../../page/state/scene";
import type { ControlState, ShownDialog } from "../../worker/desk_protocol";
import { current, node, sceneOf, sitDown } from "./desk_stand_in";

beforeEach(sitDown);

const written = (name: string, text: string) => ({ name, bytes: new TextEncoder().encode(text) });

test("it is told which files were written, and how much they hold", () => {
  assert.equal(writtenText([]), "");
  const motion = written("a/new.htr", "[Header]\r\nNumSegments 11\r\nNumFrames 524\r\n");
  assert.equal(writtenText([motion]), "Written: new.htr: 11 segments, 524 frames.");
  const markers = written("a.bvk", "$NumFrames 900\n$NumMarkers 0\n");
  const told = writtenText([markers, written("b.glb", ""), written("c", ""), written("d", "")]);
  assert.equal(told, "Written: a.bvk: 0 markers, 900 frames; b.glb; c; 1 more.");
});

test("what an import has brought is told, until something else is done", () => {
  assert.equal(importedText("a.trc", 2, 2), "a.trc is applied to the scene.");
  desk.giveTask({ did: "import", path: "a.trc" });
  current().tell(
    { tell: "scene", scene: sceneOf(node(4, "A"), node(5, "B")) },
    { tell: "done", task: "import", completed: true },
    { tell: "idle" },
  );
  assert.equal(desk.outcome.value, "a.trc is in the scene: 2 new nodes.");
  desk.giveTask({ did: "save-scene", path: "scene.glb" });
  assert.equal(desk.outcome.value, "");
  current().tell(
    { tell: "file", name: "scene.glb", bytes: new Uint8Array(1) },
    { tell: "done", task: "save-scene", completed: true },
    { tell: "idle" },
  );
  assert.equal(desk.outcome.value, "Written: scene.glb.");
});

test("a scene is told with its rate and its range", () => {
  const info = sceneInfo({ ...sceneOf(node(4, "A")), rate: 29.97, firstFrame: -2 });
  const thinned = sceneInfo({ ...sceneOf(node(4, "A")), rate: 30, step: 3 });
  assert.equal(sceneText(thinned), "1 node, 30 fps, frames 0 to 27");
  assert.equal(sceneText(info), "1 node, 29.97 fps, frames -2 to 7");
  assert.equal(sceneText({ ...info, frames: 0 }), "1 node");
});

function control(id: number, more: Partial<ControlState>): ControlState {
  const nowhere = { x: 0, y: 0, width: 0, height: 0 };
  const usual = { enabled: true, checked: false, readOnly: false, isDefault: false };
  const stops = { tabStop: true, groupStart: false };
  return { id, kind: "other", text: "", ...nowhere, ...usual, ...stops, ...more };
}

function dialogOf(template: number, ...controls: ControlState[]): ShownDialog {
  return { dialog: 3, template, title: "t", width: 1, height: 1, modal: false, closeBox: true, controls };
}

test("a file that would play at another speed is told of before it is imported", () => {
  const asks = (setsRate: boolean, ...more: ControlState[]) =>
    dialogOf(108, control(1140, { checked: setsRate }), ...more);
  const note = rateNote(asks(false), 60, 30)!;
  assert.deepEqual([note.severity, note.code], ["warning", "scene-rate-kept"]);
  assert.match(note.text, /60 frames a second, the scene 30: it plays at half speed unless "Set Frame Rate" is on/);
  assert.match(rateNote(asks(false), 25, 30)!.text, /at 1.2 times its speed/);
  assert.equal(rateNote(asks(true), 60, 30), null);
  assert.equal(rateNote(asks(false), 60, 60), null);
  assert.equal(rateNote(asks(false), 59, 4800 / 81), null);
  assert.equal(rateNote(asks(false), 0, 30), null);
  assert.equal(rateNote(asks(false), 60, null), null);
  assert.equal(rateNote(asks(false, control(1063, { checked: false })), 60, 30), null);
});

test("the rate of a scene without nodes is known", () => {
  current().tell({ tell: "scene", scene: { ...sceneOf(), rate: 30 } });
  assert.equal(sceneRate.value, 30);
});

test("a batch lacks a folder until one is named", () => {
  const lacks = (batch: boolean, folder: string) => {
    const controls = [control(1201, { checked: batch }), control(1138, { text: folder })];
    return lacksFolder([{ kind: "dialog", number: 3, dialog: dialogOf(PANEL, ...controls) }]);
  };
  assert.deepEqual(
    [lacks(true, "<none>"), lacks(false, "<none>"), lacks(true, "/files/day1"), lacksFolder([])],
    [true, false, false, false],
  );
});

test("a conversion goes by the mapping that the panel names, if it is used", () => {
  const path = (used: boolean, text: string) => {
    const controls = [control(1204, { checked: used }), control(1137, { text })];
    return mappingPath([{ kind: "dialog", number: 3, dialog: dialogOf(PANEL, ...controls) }]);
  };
  assert.deepEqual(
    [path(true, "/files/my.mnm"), path(false, "/files/my.mnm"), path(true, "<none>")],
    ["/files/my.mnm", "", ""],
  );
});

test("a marker may be skipped where the creator lets it be", () => {
  assert.ok(canSkip(dialogOf(CREATOR, control(1153, {}))));
  assert.ok(!canSkip(dialogOf(CREATOR, control(1153, { enabled: false }))));
});

test("a mapping that nobody makes any more was not saved", () => {
  const told = { tell: "mapping" as const, entries: [{ standard: "LFHD", marker: "a", node: 4 }], asked: "" };
  current().tell({ tell: "dialog", shown: dialogOf(CREATOR) }, told);
  assert.equal(desk.isMappingLeft.value, false);
  current().tell({ tell: "dialog-gone", dialog: 3 });
  assert.equal(desk.isMappingLeft.value, true);
  current().tell({ ...told, entries: [{ standard: "LFHD", marker: "of a file", node: 0 }] });
  assert.equal(desk.isMappingLeft.value, false);
  current().tell(told, { tell: "busy" });
  assert.equal(desk.isMappingLeft.value, false);
  current().tell({ tell: "idle" }, { ...told, entries: [] });
  assert.equal(desk.isMappingLeft.value, false);
});
