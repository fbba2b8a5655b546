import assert from "node:assert/strict";
import { test } from "node:test";
import {
  captionOf,
  controlOfMnemonic,
  defaultControl,
  placeControls,
  plainText,
  sizeOf,
} from "../../page/logic/dialog_layout";
import {
  CREATOR,
  isModal,
  modelessDialog,
  thingsAfter,
  thingsWithText,
  type Thing,
} from "../../page/logic/desk_things";
import type { ControlState, ShownDialog, Told } from "../../worker/desk_protocol";

function control(kind: ControlState["kind"], text: string, more: Partial<ControlState> = {}) {
  const none = { id: -1, enabled: true, checked: false, readOnly: false, isDefault: false };
  const area = { x: 0, y: 0, width: 10, height: 10 };
  return { kind, text, tabStop: true, groupStart: false, ...none, ...area, ...more };
}

function dialog(number: number, controls: ControlState[], more: Partial<ShownDialog> = {}) {
  const shown = { dialog: number, template: 107, title: "ImportHTR", width: 262, height: 164 };
  return { ...shown, modal: true, closeBox: false, controls, ...more };
}

function after(...tellings: Told[]): readonly Thing[] {
  return tellings.reduce(thingsAfter, [] as readonly Thing[]);
}

test("a dialog unit is 1.5 by 1.625 pixels where the letters are 11 pixels high", () => {
  const { width, height } = sizeOf(262, 164);
  assert.equal(Math.round(width * 11), 393);
  assert.equal(Math.round(height * 110), 2665);
});

test("an ampersand stands before the letter that a key reaches", () => {
  const cases: [string, string, string, string][] = [
    ["&OK", "", "O", "K"],
    ["Save &As", "Save ", "A", "s"],
    ["Plain", "Plain", "", ""],
    ["Salt && Pepper", "Salt & Pepper", "", ""],
    ["A && &B", "A & ", "B", ""],
    ["End&", "End&", "", ""],
  ];
  for (const [text, before, mnemonic, rest] of cases) {
    assert.deepEqual(captionOf(text), { before, mnemonic, after: rest }, text);
  }
  assert.equal(plainText("&Cancel"), "Cancel");
});

test("controls lie in the group boxes around them, and keep their order", () => {
  const placed = placeControls([
    control("group-box", "Scale", { x: 100, y: 20, width: 50, height: 30 }),
    control("label", "Global", { x: 104, y: 30 }),
    control("edit", "1.0", { x: 120, y: 30, id: 1088 }),
    control("push-button", "&OK", { x: 0, y: 60, id: 1097 }),
  ]);
  assert.deepEqual(placed.map(({ index }) => index), [0, 3]);
  assert.deepEqual(placed[0].inside.map(({ index }) => index), [1, 2]);
  assert.deepEqual(placed[0].inside[1].area, {
    left: (20 * 1.5) / 11,
    top: (10 * 1.625) / 11,
    ...sizeOf(10, 10),
  });
});

test("fields are called by the label before them, and so are buttons of the same text", () => {
  const placed = placeControls([
    control("label", "MNM Mapping File"),
    control("edit", "<none>"),
    control("push-button", "Create"),
    control("push-button", "Browse..."),
    control("label", "BVK Output Folder"),
    control("other", ""),
    control("push-button", "Browse..."),
  ]);
  assert.deepEqual(placed.map(({ name }) => name).filter((_, index) => ![0, 4].includes(index)), [
    "MNM Mapping File",
    "Create",
    "Browse... MNM Mapping File",
    "BVK Output Folder",
    "Browse... BVK Output Folder",
  ]);
});

test("radio buttons are of one group from one start to the next", () => {
  const placed = placeControls([
    control("radio-button", "Create", { groupStart: true }),
    control("radio-button", "Apply"),
    control("radio-button", "Euler", { groupStart: true }),
    control("radio-button", "TCB"),
  ]);
  assert.deepEqual(placed.map(({ group }) => group), [1, 1, 2, 2]);
});

test("Enter and letters find the controls that can be used", () => {
  const controls = [
    control("push-button", "&OK", { id: 1097, isDefault: true }),
    control("push-button", "&Cancel", { id: 1098 }),
    control("push-button", "&Skip", { id: 1153, enabled: false }),
  ];
  assert.equal(defaultControl(controls), 1097);
  assert.equal(defaultControl(controls.slice(1)), null);
  assert.equal(controlOfMnemonic(controls, "C"), 1098);
  assert.equal(controlOfMnemonic(controls, "s"), null);
});

test("what is open changes by what is told alone", () => {
  const shown = dialog(4, [control("edit", "1", { id: 1065 }), control("push-button", "&OK")]);
  const message: Told = { tell: "message", box: 4, text: "No", caption: "Error", buttons: ["ok"] };
  const open = after(
    { tell: "dialog", shown },
    { tell: "controls", dialog: 4, changed: [{ index: 0, text: "5", enabled: false }] },
    message,
  );
  assert.deepEqual(open.map(({ kind }) => kind), ["dialog", "message"]);
  const [first] = open;
  assert.ok(first.kind === "dialog");
  assert.deepEqual([first.dialog.controls[0].text, first.dialog.controls[0].enabled], ["5", false]);
  assert.equal(first.dialog.controls[1].text, "&OK");
  assert.deepEqual(thingsAfter(open, { tell: "message-gone", box: 4 }).map(({ kind }) => kind), [
    "dialog",
  ]);
  assert.deepEqual(thingsAfter(open, { tell: "dialog-gone", dialog: 4 }).map(({ kind }) => kind), [
    "message",
  ]);
  assert.deepEqual(thingsAfter(open, { tell: "failed", words: "ended" }), []);
});

test("what is typed stands in the dialog that it was typed into", () => {
  const open = after(
    { tell: "dialog", shown: dialog(1, [control("edit", "1")]) },
    { tell: "dialog", shown: dialog(2, [control("edit", "1")]) },
  );
  const texts = thingsWithText(open, 2, 0, "12").map((thing) =>
    thing.kind === "dialog" ? thing.dialog.controls[0].text : "",
  );
  assert.deepEqual(texts, ["1", "12"]);
});

test("the creator of mappings is no modal dialog", () => {
  const creator = dialog(3, [], { template: CREATOR, modal: false });
  const open = after({ tell: "dialog", shown: dialog(1, []) }, { tell: "dialog", shown: creator });
  assert.deepEqual(open.map(isModal), [true, false]);
  assert.equal(modelessDialog(open, CREATOR)?.dialog, 3);
  assert.equal(modelessDialog(open, 107), null);
});
