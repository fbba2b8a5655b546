import type { ControlChange, ShownDialog, Told } from "../../worker/desk_protocol";

/** What is open on the desk: dialogs, message boxes and choices, in the order in which they were opened. */

export type MessageBox = Extract<Told, { tell: "message" }>;
export type FileChoice = Extract<Told, { tell: "choose-files" }>;
export type FolderChoice = Extract<Told, { tell: "choose-folder" }>;

export type Thing =
  | { kind: "dialog"; number: number; dialog: ShownDialog }
  | { kind: "message"; number: number; message: MessageBox }
  | { kind: "files"; number: number; choice: FileChoice }
  | { kind: "folder"; number: number; choice: FolderChoice };

/** The panel of the plug-in, and its creator of mappings. */
export const PANEL = 116;
export const CREATOR = 117;

const SKIP = 1153;
const BATCH = 1201;
const MAPPING_FILE = 1137;
const MAPPING_USED = 1204;
const OUTPUT_FOLDER = 1138;
const NO_PATH = "<none>";

/** The dialogs that ask how a file is imported, and how a skeleton is exported. */
export const IMPORTS: readonly number[] = [107, 108];
export const EXPORT = 126;

function withChanges(dialog: ShownDialog, changed: readonly ControlChange[]): ShownDialog {
  const controls = [...dialog.controls];
  for (const { index, ...values } of changed) controls[index] = { ...controls[index], ...values };
  return { ...dialog, controls };
}

function changeDialog(
  things: readonly Thing[],
  number: number,
  change: (dialog: ShownDialog) => ShownDialog,
): readonly Thing[] {
  return things.map((thing) =>
    thing.kind === "dialog" && thing.number === number
      ? { ...thing, dialog: change(thing.dialog) }
      : thing,
  );
}

function without(
  things: readonly Thing[],
  number: number,
  ...kinds: readonly Thing["kind"][]
): readonly Thing[] {
  return things.filter((thing) => thing.number !== number || !kinds.includes(thing.kind));
}

/** What is open after the desk has told something. */
export function thingsAfter(things: readonly Thing[], told: Told): readonly Thing[] {
  switch (told.tell) {
    case "dialog":
      return [...things, { kind: "dialog", number: told.shown.dialog, dialog: told.shown }];
    case "controls":
      return changeDialog(things, told.dialog, (dialog) => withChanges(dialog, told.changed));
    case "dialog-gone":
      return without(things, told.dialog, "dialog");
    case "message":
      return [...things, { kind: "message", number: told.box, message: told }];
    case "message-gone":
      return without(things, told.box, "message");
    case "choose-files":
      return [...things, { kind: "files", number: told.choice, choice: told }];
    case "choose-folder":
      return [...things, { kind: "folder", number: told.choice, choice: told }];
    case "choice-gone":
      return without(things, told.choice, "files", "folder");
    case "failed":
      return [];
    default:
      return things;
  }
}

/** What a person has typed or checked, before the plug-in says anything to it. */
export function thingsWithText(
  things: readonly Thing[],
  dialog: number,
  index: number,
  text: string,
): readonly Thing[] {
  return changeDialog(things, dialog, (shown) => withChanges(shown, [{ index, text }]));
}

export function isModal(thing: Thing): boolean {
  return thing.kind !== "dialog" || thing.dialog.modal;
}

/** What asks for files that are there. */
export function openChoice(things: readonly Thing[]): FileChoice | null {
  for (const thing of things) if (thing.kind === "files" && !thing.choice.save) return thing.choice;
  return null;
}

export function isChoice({ kind }: Thing): boolean {
  return kind === "files" || kind === "folder";
}

export function modelessDialog(things: readonly Thing[], template: number): ShownDialog | null {
  for (const thing of things) {
    if (thing.kind === "dialog" && !thing.dialog.modal && thing.dialog.template === template) {
      return thing.dialog;
    }
  }
  return null;
}

/** Whether the panel would convert several files, and has no folder for them. */
export function lacksFolder(things: readonly Thing[]): boolean {
  const controls = modelessDialog(things, PANEL)?.controls ?? [];
  const isBatch = controls.some(({ id, checked }) => id === BATCH && checked);
  return isBatch && controls.some(({ id, text }) => id === OUTPUT_FOLDER && text === NO_PATH);
}

/** Whether the marker that the creator asks for may be left out. */
export function canSkip({ controls }: ShownDialog): boolean {
  return controls.some(({ id, enabled }) => id === SKIP && enabled);
}

/** The path of the mapping that a conversion goes by; empty when there is none. */
export function mappingPath(things: readonly Thing[]): string {
  const controls = modelessDialog(things, PANEL)?.controls ?? [];
  const isUsed = controls.some(({ id, checked }) => id === MAPPING_USED && checked);
  const path = controls.find(({ id }) => id === MAPPING_FILE)?.text ?? "";
  return isUsed && path !== NO_PATH ? path : "";
}
