import type { ControlState } from "../../worker/desk_protocol";

/** A dialog of the plug-in as the page draws it: where its controls lie, what each is called, what keys reach it. */

/** A dialog unit of the system's font of 8 points, whose letters are 11 pixels high at 96 dots per inch. */
const UNIT_ACROSS = 1.5 / 11;
const UNIT_DOWN = 1.625 / 11;

/** The control that Esc and the frame's cross use. */
export const CLOSE_CONTROL = 2;

/** In heights of the font that it is written in. */
export interface Area {
  left: number;
  top: number;
  width: number;
  height: number;
}

export interface PlacedControl {
  /** Its place in the dialog's controls. */
  index: number;
  /** From the corner of the group box that it lies in, or of the dialog. */
  area: Area;
  /** What a screen reader calls it. */
  name: string;
  /** Radio buttons of one group have the same number. */
  group: number;
  /** What lies in a group box. */
  inside: PlacedControl[];
}

export interface Caption {
  before: string;
  /** The letter that is underlined; empty where there is none. */
  mnemonic: string;
  after: string;
}

/** A text of a template: an ampersand stands before the mnemonic, two stand for one. */
export function captionOf(text: string): Caption {
  const parts = text.split("&&");
  const at = parts.findIndex((part) => /&[^&]/.test(part));
  if (at < 0) return { before: parts.join("&"), mnemonic: "", after: "" };
  const mark = parts[at].indexOf("&");
  return {
    before: [...parts.slice(0, at), parts[at].slice(0, mark)].join("&"),
    mnemonic: parts[at][mark + 1],
    after: [parts[at].slice(mark + 2), ...parts.slice(at + 1)].join("&"),
  };
}

export function plainText(text: string): string {
  const { before, mnemonic, after } = captionOf(text);
  return before + mnemonic + after;
}

/** In heights of the font. */
export function sizeOf(width: number, height: number): { width: number; height: number } {
  return { width: width * UNIT_ACROSS, height: height * UNIT_DOWN };
}

function contains(box: ControlState, other: ControlState): boolean {
  return (
    box !== other &&
    other.x >= box.x &&
    other.y >= box.y &&
    other.x + other.width <= box.x + box.width &&
    other.y + other.height <= box.y + box.height
  );
}

function areaIn(box: ControlState | undefined, control: ControlState): Area {
  return {
    left: (control.x - (box?.x ?? 0)) * UNIT_ACROSS,
    top: (control.y - (box?.y ?? 0)) * UNIT_DOWN,
    ...sizeOf(control.width, control.height),
  };
}

function isField(control: ControlState): boolean {
  return control.kind === "edit" || control.kind === "other";
}

/** Fields are called by the label before them; so are buttons whose own text another one has, too. */
function nameOf(controls: readonly ControlState[], index: number): string {
  const own = plainText(controls[index].text);
  const isAlone = controls.filter(({ text }) => text === controls[index].text).length === 1;
  const [label] = controls.slice(0, index).reverse().filter(({ kind }) => kind === "label");
  const labelText = label ? plainText(label.text) : "";
  if (isField(controls[index])) return labelText;
  return isAlone || !labelText ? own : `${own} ${labelText}`;
}

function groupsOf(controls: readonly ControlState[]): number[] {
  let group = 0;
  return controls.map((control) => (control.groupStart ? ++group : group));
}

/** The controls of a dialog in tab order, those in group boxes within these. */
export function placeControls(controls: readonly ControlState[]): PlacedControl[] {
  const boxes = controls.filter(({ kind }) => kind === "group-box");
  const groups = groupsOf(controls);
  const placed = controls.map((control, index): PlacedControl => {
    const box = boxes.find((candidate) => contains(candidate, control));
    return {
      index,
      area: areaIn(box, control),
      name: nameOf(controls, index),
      group: groups[index],
      inside: [],
    };
  });
  return placed.filter(({ index }) => {
    const box = boxes.find((candidate) => contains(candidate, controls[index]));
    if (!box) return true;
    placed[controls.indexOf(box)].inside.push(placed[index]);
    return false;
  });
}

/** The control that Enter uses where the focus is on no button. */
export function defaultControl(controls: readonly ControlState[]): number | null {
  return controls.find(({ isDefault, enabled }) => isDefault && enabled)?.id ?? null;
}

/** The control whose mnemonic is this letter, with Alt. */
export function controlOfMnemonic(controls: readonly ControlState[], letter: string): number | null {
  const wanted = letter.toLowerCase();
  const found = controls.find(
    ({ id, text, enabled }) =>
      id >= 0 && enabled && captionOf(text).mnemonic.toLowerCase() === wanted,
  );
  return found?.id ?? null;
}
