import { batch, computed, signal } from "@preact/signals";
import type {
  Did,
  MappingEntry,
  ShownScene,
  StoredValue,
  Suggestion,
  Task,
  Told,
  ToldFinding,
} from "../../worker/desk_protocol";
import { ownNameFor } from "../../worker/file_paths";
import {
  CREATOR,
  isChoice,
  isModal,
  modelessDialog,
  thingsAfter,
  thingsWithText,
  type Thing,
} from "../logic/desk_things";
import { fitsPattern } from "../logic/file_pattern";
import { newestOfEach, type WrittenFile } from "../logic/handed_out";
import { shown } from "../logic/names";
import { importedText, writtenText } from "../logic/outcome";
import { dialogWords, pageWords } from "../logic/page_words";
import { keptSettings, storeSettings } from "./kept_settings";
import { notify } from "./notices";
import { paintScene, showScene } from "./scene";
import { showSelected } from "./selection";
import { scene, working } from "./takes";
import { noteDone, noteNodes } from "./unsaved";

/** What the desk has told, and what it is told that the person did. */

export interface DeskApi {
  put(path: string, file: Blob): void;
  remove(path: string): void;
  do(did: Did): void;
  onTold(listener: (told: Told) => void): void;
  end(): void;
}

export type Losses = Extract<Told, { tell: "losses" }>;

export interface PickMode {
  readonly on: boolean;
  readonly pickable: ReadonlySet<number>;
}

const TASKS: ReadonlySet<Did["did"]> = new Set<Did["did"]>([
  "import",
  "export",
  "about",
  "open-scene",
  "new-scene",
  "save-scene",
  "open-panel",
]);

const NO_PICKING: PickMode = { on: false, pickable: new Set() };

/** What is open, in the order in which it was opened. */
export const things = signal<readonly Thing[]>([]);
export const modalThings = computed(() => things.value.filter(isModal));
/** Why the choice that is open is not accepted. */
export const choiceRefusal = signal("");
/** The file that was chosen last for what the desk does now, or nothing. */
export const chosenLast = signal("");
const choosing = computed(() => things.value.some(isChoice));
export const idle = signal(false);
/** What came of what was done last, or nothing. */
export const outcome = signal("");
export const failure = signal<string | null>(null);
export const pickMode = signal<PickMode>(NO_PICKING);
/** Whether what is pointed at is picked: of takes nothing ever is. */
export const picking = computed(() => pickMode.value.on && working.value);
export const mapping = signal<readonly MappingEntry[]>([]);
export const asked = signal("");
/** Whether a mapping stays that nobody makes any more: it was not saved. */
export const isMappingLeft = computed(() => {
  const isAnyPicked = mapping.value.some(({ node }) => node !== 0);
  return idle.value && isAnyPicked && !modelessDialog(things.value, CREATOR);
});
export const suggestions = signal<readonly Suggestion[]>([]);
/** What the import that was agreed to last makes of its file. */
export const report = signal<readonly ToldFinding[]>([]);
export const lint = signal<readonly ToldFinding[]>([]);
/** What an export would lose as its dialog stands; nothing while that is being found out. */
export const losses = signal<Losses | null>(null);
export const deskProgress = signal<{ what: string; percent: number } | null>(null);
/** Files that can be chosen on the desk, by their paths there. */
export const deskFiles = signal<ReadonlyMap<string, Blob>>(new Map());

type Maker = (settings: StoredValue[]) => Promise<DeskApi>;
type HandOut = (files: readonly WrittenFile[]) => void;

let makeDesk: Maker = () => Promise.reject(new Error("There is no desk."));
let handOut: HandOut = () => {};
let desk: DeskApi | null = null;
let beginning: Promise<void> | null = null;
let begins = 0;
let written: WrittenFile[] = [];
let lastTask: Task | null = null;
let nodesBefore = 0;
let selects = 0;

export function useDesks(maker: Maker, handingOut: HandOut): void {
  makeDesk = maker;
  handOut = handingOut;
}

/** Begins the desk when it is first worked on. */
export function beginDesk(): Promise<void> {
  return (beginning ??= begin());
}

async function begin(): Promise<void> {
  const number = ++begins;
  const begun = await makeDesk(keptSettings());
  if (number !== begins) return begun.end();
  desk = begun;
  begun.onTold((told) => {
    if (desk === begun) batch(() => take(told));
  });
}

/** Takes a new desk, with nothing on it, and the settings that are kept. */
export async function beginAnew(): Promise<void> {
  desk?.end();
  desk = null;
  batch(forgetAll);
  beginning = null;
  await beginDesk();
}

function forgetAll(): void {
  things.value = [];
  idle.value = false;
  choiceRefusal.value = "";
  failure.value = null;
  deskProgress.value = null;
  deskFiles.value = new Map();
  written = [];
  selects = 0;
  endPicking();
  mapping.value = [];
  lint.value = [];
  outcome.value = "";
  report.value = [];
  losses.value = null;
  suggestions.value = [];
  forgetScene();
}

function forgetScene(): void {
  showScene(null);
  showSelected([]);
}

export function tell(did: Did): void {
  desk?.do(did);
}

/** No path leaves the choice. */
export function choose(choice: number, paths: string[]): void {
  choiceRefusal.value = "";
  chosenLast.value = paths[paths.length - 1] ?? "";
  tell({ did: "chosen", choice, paths });
}

/** Gives the desk something to do from its top. */
export function giveTask(task: Task): void {
  idle.value = false;
  report.value = [];
  losses.value = null;
  outcome.value = "";
  lastTask = task;
  nodesBefore = nodeCount();
  tell(task);
}

/** Selects nodes there. What the desk tells of its selection before it has done so is over. */
export function tellSelected(nodes: readonly number[]): void {
  tell({ did: "select", nodes: [...nodes], number: ++selects });
}

/** Picks a node for what is asked, or nothing where it cannot be picked. */
export function pickNode(node: number): void {
  if (!picking.value) return;
  const picked = pickMode.value.pickable.has(node) ? node : null;
  tell({ did: "pick", node: picked, standard: asked.value });
}

/**
 * Puts a file on the desk, and says what it is called there: like no other, so that nothing that is made of it takes
 * the place of what is made of another.
 */
export function putFile(name: string, file: Blob): string {
  for (const [path, there] of deskFiles.value) if (there === file) return path;
  const path = ownNameFor(name, deskFiles.value.keys());
  remember(path, file);
  desk?.put(path, file);
  return path;
}

function remember(path: string, file: Blob): void {
  deskFiles.value = new Map(deskFiles.value).set(path, file);
}

function forget(path: string): void {
  deskFiles.value = new Map([...deskFiles.value].filter(([there]) => there !== path));
}

/** Takes a file away that is open no more, unless the plug-in may be at it. */
export function removeFile(file: Blob): void {
  if (!idle.value) return;
  for (const [path, there] of deskFiles.value) {
    if (there !== file) continue;
    forget(path);
    desk?.remove(path);
  }
}

/** Of no use to the desk any more: who opens it again has it as it is now. */
function forgetUnread(path: string): void {
  forget(path);
  notify("error", `${shown(path, 120)} has changed or gone since it was opened. Open it again.`);
}

/** What is typed is there at once; the plug-in reads it when it wants to. */
export function type(dialog: number, index: number, control: number, text: string): void {
  things.value = thingsWithText(things.value, dialog, index, text);
  tell({ did: "text", dialog, control, text });
}

function endPicking(): void {
  pickMode.value = NO_PICKING;
  asked.value = "";
}

// Of what the plug-in writes it asks for mappings again. What has the name of another file has replaced it.
function takeFile({ name, bytes }: WrittenFile): void {
  written.push({ name, bytes });
  if (fitsPattern(name, "*.mnm")) return remember(name, new Blob([bytes]));
  forget(name);
  desk?.remove(name);
}

function handOutWritten(): void {
  if (written.length > 0) {
    handOut(written);
    outcome.value = writtenText(newestOfEach(written));
  }
  written = [];
}

function takeMapping(entries: readonly MappingEntry[], standard: string): void {
  mapping.value = entries;
  asked.value = standard;
  if (entries.length === 0) lint.value = [];
  else tell({ did: "ask-lint" });
}

function take(told: Told): void {
  things.value = thingsAfter(things.value, told);
  takeWork(told);
  takeScene(told);
}

function takeWork(told: Told): void {
  if (told.tell === "choice-gone") choiceRefusal.value = "";
  else if (told.tell === "idle") {
    idle.value = true;
    chosenLast.value = "";
    deskProgress.value = null;
    handOutWritten();
  } else if (told.tell === "busy") idle.value = false;
  else if (told.tell === "file") takeFile(told);
  else if (told.tell === "unread") forgetUnread(told.path);
  else if (told.tell === "progress") deskProgress.value = told;
  else if (told.tell === "progress-gone") deskProgress.value = null;
  else if (told.tell === "settings") storeSettings(told.values);
  else if (told.tell === "refused") takeRefusal(told.did, told.words);
  else if (told.tell === "done") takeDone(told.task, told.completed);
  else if (told.tell === "failed") takeFailure(told.words);
}

function takeScene(told: Told): void {
  if (told.tell === "scene-gone") forgetScene();
  else if (told.tell === "scene") takeShown(told.scene);
  else if (told.tell === "colors") paintScene(told.changed);
  else if (told.tell === "selection") takeSelection(told.nodes, told.number);
  else if (told.tell === "pick-mode") takePickMode(told.on, told.pickable);
  else if (told.tell === "mapping") takeMapping(told.entries, told.asked);
  else if (told.tell === "suggestions") suggestions.value = told.suggested;
  else if (told.tell === "report") report.value = inPageWords(told.findings);
  else if (told.tell === "losses") takeLosses(told);
  else if (told.tell === "lint") lint.value = inPageWords(told.findings);
}

function inPageWords(findings: readonly ToldFinding[], words: (text: string) => string = pageWords): ToldFinding[] {
  return findings.map((finding) => ({ ...finding, text: words(finding.text) }));
}

function takeLosses(told: Losses): void {
  const findings = inPageWords(told.findings, dialogWords);
  losses.value = { ...told, findings, refusal: dialogWords(told.refusal) };
}

function takeSelection(nodes: readonly number[], number: number): void {
  if (number === selects) showSelected(nodes);
}

function takePickMode(on: boolean, pickable: readonly number[]): void {
  pickMode.value = on ? { on, pickable: new Set(pickable) } : NO_PICKING;
}

function takeFailure(words: string): void {
  forgetAll();
  failure.value = words;
}

/** Tasks are refused in words. Anything else came too late for what it was meant for, or met nothing. */
function takeRefusal(did: Did["did"], words: string): void {
  if (did === "chosen" && choosing.value) choiceRefusal.value = pageWords(words);
  else if (TASKS.has(did)) notify("error", pageWords(words));
}

function takeShown(told: ShownScene): void {
  noteNodes(told.nodes.length);
  showScene(told);
}

function takeDone(task: Task["did"], completed: boolean): void {
  if (!completed) return;
  noteDone(task);
  if (task === "import" && lastTask?.did === task) {
    outcome.value = importedText(lastTask.path, nodesBefore, nodeCount());
  }
}

function nodeCount(): number {
  return scene.value?.nodes?.length ?? 0;
}
