import assert from "node:assert/strict";
import { test } from "node:test";
import { BODY_PLACES, pictured, PICTURE } from "../../page/logic/body_places";
import { fitsPattern, nameOfMade, nameToWrite } from "../../page/logic/file_pattern";
import { rangeOf } from "../../page/logic/frame_range";
import { archiveName, archivePaths, newestOfEach } from "../../page/logic/handed_out";
import { areStoredValues, settingsToKeep, valueText } from "../../page/logic/kept_settings";
import { reasonText, suggestionFor } from "../../page/logic/mapping";
import { objectValues, sceneInfo, sceneTracks } from "../../page/logic/scene_take";
import type { SceneNode, ShownScene, StoredValue, Suggestion } from "../../worker/desk_protocol";

const SIDELESS =
  "FHD BHD SHO ELB ILB WRE WRI WRA WRB FIN FWT BWT KNE KNI ANK HEL MT5 MTI TOE PRPB PRPM PRPT";
const OF_THE_MIDDLE = "C7 CLAV STRN T10 SACR";

test("the body has a place for each marker that the creator asks for", () => {
  const wanted = OF_THE_MIDDLE.split(" ");
  for (const name of SIDELESS.split(" ")) wanted.push(`L${name}`, `R${name}`);
  assert.deepEqual([...BODY_PLACES.keys()].sort(), wanted.sort());
  const used = new Set<string>();
  for (const [name, place] of BODY_PLACES) {
    const { x, y } = pictured(place);
    assert.ok(x > 0 && x < PICTURE.width && y > 0 && y < PICTURE.height, name);
    used.add(`${x} ${y}`);
  }
  assert.equal(used.size, BODY_PLACES.size);
});

test("a body that is seen from the front has its left at the right", () => {
  const at = (name: string): number => pictured(BODY_PLACES.get(name)!).x;
  assert.ok(at("LSHO") > at("CLAV") && at("CLAV") > at("RSHO"));
  assert.ok(at("LBWT") < at("SACR") && at("SACR") < at("RBWT"));
});

function node(number: number, name: string, kind: SceneNode["kind"], parent = 0): SceneNode {
  return { node: number, name, parent, kind, color: [204, 51, 51], size: 1 };
}

test("a scene is shown as a take is", () => {
  const scene: ShownScene = {
    nodes: [node(7, "Root", "group"), node(9, "A", "marker", 7)],
    firstFrame: 5,
    step: 1,
    frames: 3,
    rate: 60,
    millimetresPerUnit: 25.4,
    positions: Float32Array.of(0, 0, 0, 1, 2, 3, 0, 0, 0, NaN, NaN, NaN, 0, 0, 0, 4, 5, -6),
    ends: new Float32Array(18).fill(NaN),
  };
  const info = sceneInfo(scene);
  assert.deepEqual(info.parents, [-1, 0]);
  assert.deepEqual([...info.gaps], [1, 1, 1]);
  assert.deepEqual([...info.coverage].map((value) => value.toFixed(3)), ["1.000", "0.667"]);
  assert.deepEqual([info.boxMin, info.boxMax], [[0, 0, -6], [4, 5, 3]]); // prettier-ignore
  assert.deepEqual([info.kind, info.upAxis, info.firstFrame], ["markers", "z", 5]);
  const tracks = sceneTracks(scene);
  assert.equal(tracks.ends, undefined);
  assert.deepEqual([...objectValues(tracks, 2, 1)], [1, 2, 3, NaN, NaN, NaN, 4, 5, -6]);
  assert.equal(sceneInfo({ ...scene, nodes: [node(1, "Hips", "bone")] }).kind, "motion");
});

test("what is suggested can be picked, and was not", () => {
  const suggested = [{ standard: "LFHD", node: 4, reason: "same" as const, place: "" }];
  const pickable = new Set([4, 5]);
  assert.equal(suggestionFor("LFHD", suggested, [], pickable)?.node, 4);
  assert.equal(suggestionFor("LBHD", suggested, [], pickable), null);
  assert.equal(suggestionFor("LFHD", suggested, [], new Set([5])), null);
  assert.equal(suggestionFor("LFHD", suggested, [{ standard: "C7", marker: "a", node: 4 }], pickable), null);
});

test("it is told what a suggestion rests on", () => {
  const by = (reason: Suggestion["reason"], place = "") =>
    reasonText({ standard: "LFHD", node: 4, reason, place });
  assert.equal(by("synonym"), "a usual name of the same place");
  assert.equal(by("geometry", "front left of the head"), "by its position alone: front left of the head");
});

test("in and out points are told in the file's own numbers", () => {
  const cases: [number | null, number | null, [number, number] | undefined][] = [
    [null, null, undefined],
    [2, null, [12, 19]],
    [null, 3, [10, 13]],
    [2, 3, [12, 13]],
    [2, 60, [12, 19]],
    [-5, 3, [10, 13]],
    [50, 60, undefined],
    [-9, -1, undefined],
  ];
  for (const [inPoint, outPoint, range] of cases) {
    assert.deepEqual(rangeOf({ inPoint, outPoint }, { frames: 10, firstFrame: 10 }), range);
  }
  assert.equal(rangeOf({ inPoint: 0, outPoint: 0 }, { frames: 0, firstFrame: 1 }), undefined);
});

function written(...names: string[]) {
  return names.map((name, index) => ({ name, bytes: Uint8Array.of(index) }));
}

test("several files are one archive that leads nowhere else", () => {
  const cases: [string[], string, string[]][] = [
    [["out/a.bvk", "out/b.bvk"], "out.zip", ["a.bvk", "b.bvk"]],
    [["/files/out/a.bvk", "/files/out/x.log"], "out.zip", ["a.bvk", "x.log"]],
    [["a.bvk", "b.bvk"], "converted.zip", ["a.bvk", "b.bvk"]],
    [["out/a.bvk", "log.txt"], "converted.zip", ["out/a.bvk", "log.txt"]],
    [["../../a", "../b"], "converted.zip", ["a", "b"]],
  ];
  for (const [names, archive, paths] of cases) {
    assert.deepEqual(archivePaths(written(...names)), paths, names.join());
    assert.equal(archiveName(written(...names)), archive, names.join());
  }
  assert.deepEqual(newestOfEach(written("a", "b", "a")).map(({ bytes }) => bytes[0]), [2, 1]);
});

function value(name: string, type: StoredValue["type"], bytes: number[]): StoredValue {
  return { key: "Software\\Orvane\\OrvaneFileIO\\Skelder\\ConvertBVK", name, type, bytes };
}

test("settings are kept without the names of files and folders", () => {
  const values = [
    value("MNMPath", "text", [97]),
    value("InputPath", "text", [98]),
    value("OutputPath", "text", [99]),
    value("Batch", "binary", [1]),
  ];
  assert.deepEqual(settingsToKeep(values).map(({ name }) => name), ["Batch"]);
  assert.ok(areStoredValues(JSON.parse(JSON.stringify(values))));
  for (const bad of [null, {}, [null], [{}], [{ ...values[0], bytes: [300] }], [{ ...values[0], type: "x" }]]) {
    assert.ok(!areStoredValues(bad), JSON.stringify(bad));
  }
});

test("settings are told as a person reads them", () => {
  const cases: [string, StoredValue["type"], number[], string][] = [
    ["MNMPath", "text", [119, 97, 0], "wa"],
    ["Batch", "binary", [1], "yes"],
    ["Apply", "binary", [0], "no"],
    ["other", "binary", [1, 255], "01 ff"],
    ["RotationController", "int32", [1, 0, 0, 0], "1"],
    ["Offset", "int32", [254, 255, 255, 255], "-2"],
    ["Size", "int32", [205, 204, 204, 61], "0.1"],
    ["ScaleFactor", "int64", [0, 0, 0, 0, 0, 0, 4, 64], "2.5"],
    ["Size", "int32", [1], ""],
  ];
  for (const [name, type, bytes, text] of cases) {
    assert.equal(valueText(value(name, type, bytes)), text, name);
  }
});

test("choices treat names as the system's dialogs do", () => {
  assert.ok(fitsPattern("Walk.TRC", "*.trc"));
  assert.ok(!fitsPattern("walk.trc.txt", "*.trc"));
  assert.ok(!fitsPattern("walktrc", "*.trc"));
  assert.equal(nameToWrite("anna", "mnm"), "anna.mnm");
  assert.equal(nameToWrite(" anna.txt ", "mnm"), "anna.txt");
  assert.equal(nameToWrite("anna", ""), "anna");
  assert.equal(nameToWrite("../../anna", "mnm"), "anna.mnm");
  assert.equal(nameToWrite("..", ""), "_..");
  assert.equal(nameToWrite("anna/", "mnm"), "_.mnm");
  assert.equal(nameOfMade("2/walk.slow.trc", "bvk"), "walk.slow.bvk");
  assert.equal(nameOfMade("", "mnm"), "mapping.mnm");
});
