import { signal } from "@preact/signals";
import type {
  Action,
  CoreApi,
  CurveOf,
  Findings,
  LineText,
  RunResult,
} from "../../worker/protocol";
import { shown } from "../logic/names";
import { notifyFailure } from "./notices";
import { deselect } from "./selection";
import { activeKey, activeTake, addTake, removeTake, takes, type Take } from "./takes";
import { canceling, runTask, task, tellProgress } from "./tasks";
import { activate, clearSpan, goTo, stop } from "./time";

/** What the page asks of the core. What the core refuses is told in its words, and the page goes on. */

export interface SourceFile {
  readonly name: string;
  bytes(): Promise<ArrayBuffer>;
}

export const ready = signal(false);

let core: CoreApi | null = null;

function theCore(): CoreApi {
  if (!core) throw new Error("The core is not there yet.");
  return core;
}

export function connect(started: CoreApi): void {
  core = started;
  core.onProgress(({ what, fraction }) => tellProgress(what, fraction));
  ready.value = true;
}

export function cancelTask(): void {
  if (!task.value || !core) return;
  canceling.value = true;
  core.cancel();
}

/** Opens files one after the other; each that fails says why. */
export async function openFiles(files: readonly SourceFile[]): Promise<void> {
  for (const file of files) {
    try {
      await runTask(`Opening ${shown(file.name, 80)}`, () => openFile(file));
    } catch (reason) {
      notifyFailure(`${shown(file.name, 80)} was not opened`, reason);
    }
  }
}

async function openFile(file: SourceFile): Promise<void> {
  const bytes = await file.bytes();
  const { info, tracks } = await theCore().open(file.name, bytes);
  const take = addTake(info, tracks);
  if (!activeTake.value) activate(take);
}

export async function closeTake(take: Take): Promise<void> {
  const wasActive = activeTake.value === take;
  removeTake(take);
  if (wasActive) {
    stop();
    const next = takes.value[takes.value.length - 1];
    if (next) activate(next);
    else activeKey.value = 0;
    if (!next) resetTime();
  }
  await theCore().close(take.info.id);
}

function resetTime(): void {
  clearSpan();
  goTo(0);
  deselect();
}

export async function askFindings(take: Take, action: Action): Promise<Findings> {
  return runTask("Looking for what is odd", () => theCore().findings(take.info.id, action));
}

export async function askLine(take: Take, line: number, column: number): Promise<LineText> {
  return theCore().line(take.info.id, line, column);
}

export async function askCurve(take: Take, object: number, of: CurveOf): Promise<Float64Array> {
  return runTask("Reading curves", () => theCore().curve(take.info.id, object, of));
}

export async function runVerb(what: string, verb: string[], take: Take): Promise<RunResult> {
  return runTask(what, () => theCore().run(verb, [take.info.id]));
}
