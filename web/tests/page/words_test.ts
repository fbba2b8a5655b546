import assert from "node:assert/strict";
import { test } from "node:test";
import { counted, countedObjects, nounOf } from "../../page/logic/counted";
import {
  countBySeverity,
  distinctPlaces,
  marksOf,
  placeText,
  worstFirst,
} from "../../page/logic/finding_groups";
import { commandOf, keyText, SECTIONS, titleOf } from "../../page/logic/key_map";
import { markColumn } from "../../page/logic/line_parts";
import { depths, searchNames } from "../../page/logic/object_search";
import { OUTPUTS, outputName, outputVerb } from "../../page/logic/outputs";
import type { Finding, TakeInfo } from "../../worker/protocol";

const press = (key: string, more: Record<string, boolean> = {}) => ({
  key,
  shiftKey: false,
  ctrlKey: false,
  metaKey: false,
  altKey: false,
  ...more,
});

test("keys do what animators expect of them", () => {
  const cases: [ReturnType<typeof press>, string | null][] = [
    [press(" "), "toggle-play"],
    [press("j"), "play-backward"],
    [press("J", { shiftKey: true }), "play-backward"],
    [press("k"), "stop"],
    [press("l"), "play-forward"],
    [press("ArrowLeft"), "previous-frame"],
    [press("ArrowRight", { shiftKey: true }), "forward-ten"],
    [press("Home"), "first-frame"],
    [press("End"), "last-frame"],
    [press("f"), "fit"],
    [press("?", { shiftKey: true }), "keys"],
    [press("o"), "set-out"],
    [press("o", { ctrlKey: true }), "open"],
    [press("o", { metaKey: true }), "open"],
    [press("f", { ctrlKey: true }), null],
    [press("f", { altKey: true }), null],
    [press("q"), "previous-finding"],
    [press("ArrowRight", { ctrlKey: true }), "timeline-on"],
    [press("W", { shiftKey: true }), "shift-up"],
    [press("z"), null],
  ];
  for (const [event, expected] of cases) assert.equal(commandOf(event), expected, event.key);
});

test("no key does two things, and each is told", () => {
  const bindings = SECTIONS.flatMap((section) => section.bindings);
  const keys = bindings.flatMap((binding) => binding.keys);
  assert.equal(new Set(keys).size, keys.length);
  assert.ok(bindings.every(({ what }) => what.length > 0));
  assert.deepEqual([" ", "f", "ArrowLeft", "Ctrl+o", "+", "Shift+ArrowRight", "Ctrl+ArrowLeft", "PageUp"].map(keyText), [
    "Space",
    "F",
    "←",
    "Ctrl O",
    "+",
    "Shift →",
    "Ctrl ←",
    "PageUp",
  ]);
  assert.equal(titleOf("next-finding"), "To the next finding (E)");
});

function finding(code: string, severity: Finding["severity"], places: Finding["places"]): Finding {
  return { code, severity, count: 1, text: "", cause: "", consequence: "", places };
}

test("what is one is told as one", () => {
  assert.deepEqual([0, 1, 2].map((count) => counted(count, "gap")), ["0 gaps", "1 gap", "2 gaps"]);
  assert.deepEqual([countedObjects(1, "motion"), countedObjects(41, "markers")], ["1 segment", "41 markers"]);
  assert.equal(nounOf(-1, "frame"), "frames");
});

test("the worst findings come first, those of one weight in their order", () => {
  const findings = [
    finding("a", "note", []),
    finding("b", "error", []),
    finding("c", "warning", []),
    finding("d", "error", []),
  ];
  assert.deepEqual(
    worstFirst(findings).map(({ code }) => code),
    ["b", "d", "c", "a"],
  );
  assert.deepEqual(countBySeverity(findings), { error: 2, warning: 1, note: 1 });
});

test("places in frames become marks, those of the file alone do not", () => {
  const places = [
    { line: 7, column: 1, object: 3, frame: 0 },
    { line: 8, column: 1, frame: 5 },
    { line: 1, column: 1 },
  ];
  assert.deepEqual(marksOf([finding("a", "warning", places)]), [
    { frame: 0, object: 3, severity: "warning" },
    { frame: 5, object: null, severity: "warning" },
  ]);
  assert.equal(placeText(places[0], 1, "LFHD"), "line 7, column 1 · LFHD · frame 1");
  assert.equal(placeText(places[2], 1, undefined), "line 1, column 1");
});

test("places that are told alike are told once", () => {
  const place = { line: 7, column: 1, frame: 3 };
  const others = [
    { ...place, column: 2 },
    { ...place, object: 0 },
  ];
  assert.deepEqual(distinctPlaces([place, { ...place }, ...others, { ...place }]), [
    place,
    ...others,
  ]);
});

test("a column is marked by its bytes", () => {
  const cases: [string, number, number, string][] = [
    ["one two three", 1, 5, "two"],
    ["one\ttwo", 1, 4, "\t"],
    ["äöü two", 1, 8, "two"],
    ["\u{1f600}\tx", 1, 6, "x"],
    ["window of text", 1001, 1008, "of"],
    ["short", 1, 6, ""],
    ["short", 10, 3, ""],
  ];
  for (const [text, start, column, marked] of cases) {
    const parts = markColumn(text, start, column);
    assert.equal(parts.marked, marked, text);
    assert.equal(parts.before + parts.marked + parts.after, text);
  }
});

test("a search finds names by all of its words, whatever their case", () => {
  const names = ["walker:LFHD", "walker:RFHD", "Other LFHD"];
  assert.deepEqual(searchNames(names, ""), [0, 1, 2]);
  assert.deepEqual(searchNames(names, "lfhd"), [0, 2]);
  assert.deepEqual(searchNames(names, "LFHD walker"), [0]);
  assert.deepEqual(searchNames(names, "nobody"), []);
});

test("segments are indented by what they hang from, whatever their order", () => {
  assert.deepEqual(depths([-1, 0, 1, 0, -1]), [0, 1, 2, 1, 0]);
  assert.deepEqual(depths([1, 2, -1]), [2, 1, 0]);
  assert.equal(depths([1, 0]).length, 2);
  assert.equal(depths(Array.from({ length: 10_000 }, (_, index) => index - 1))[9999], 9999);
});

test("files are made by the program's verbs, under names of their own", () => {
  const info = { name: "my walk.htr", path: "2/my walk.htr" } as TakeInfo;
  const [glb, htr, bvk] = OUTPUTS;
  assert.deepEqual(outputVerb(glb, info), ["import", "2/my walk.htr", "-o", "my walk.glb"]);
  assert.equal(outputName(htr, info), "my walk-rewritten.htr");
  assert.deepEqual(outputVerb(bvk, info), ["convert", "2/my walk.htr", "-o", "my walk.bvk"]);
});

test("brackets mean gaps also where they are written with AltGr or Option", () => {
  const press = { key: "]", shiftKey: false, ctrlKey: true, metaKey: false, altKey: true };
  assert.equal(commandOf(press), "next-gap");
  assert.equal(commandOf({ ...press, key: "[", ctrlKey: false }), "previous-gap");
  assert.equal(commandOf({ ...press, key: "o" }), null);
});
