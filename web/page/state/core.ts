import { signal } from "@preact/signals";
import type {
  Action,
  CoreApi,
  CurveOf,
  Findings,
  LineText,
  OtherFile,
  RunResult,
} from "../../worker/protocol";
import type { ToldFinding } from "../../worker/desk_protocol";
import { fitFindings } from "../logic/mapping_fit";
import { shown } from "../logic/names";
import { pageWords } from "../logic/page_words";
import { isCanceled, notifyFailure } from "./notices";
import { activeFile, activeKey, addTake, removeTake, takes, type Take } from "./takes";
import { canceling, runTask, task, tellProgress } from "./tasks";
import { activate, clearSpan, goTo, stop } from "./time";

/** What the page asks of the core. What the core refuses is told in its words, and the page goes on. */

export interface SourceFile {
  readonly name: string;
  /** Its bytes, or where the browser has them. */
  content(): Promise<ArrayBuffer | Blob>;
}

export const ready = signal(false);

let core: Promise<CoreApi> = Promise.reject(new Error("The core was never started."));
core.catch(() => {});

/** Everything that is asked waits for the core; when that does not start, it fails in the same words. */
export async function connect(starting: Promise<CoreApi>): Promise<void> {
  core = starting;
  const started = await starting;
  started.onProgress(({ what, fraction }) => tellProgress(what, fraction));
  ready.value = true;
}

export async function cancelTask(): Promise<void> {
  if (!task.value) return;
  canceling.value = true;
  (await core).cancel();
}

/** Opens files one after the other; each that fails says why. What is canceled ends them all. */
export async function openFiles(files: readonly SourceFile[]): Promise<void> {
  for (const file of files) {
    try {
      await runTask(`Opening ${shown(file.name, 80)}`, () => openFile(file));
    } catch (reason) {
      if (isCanceled(reason)) return;
      notifyFailure(`${shown(file.name, 80)} was not opened`, reason);
    }
  }
}

async function openFile(file: SourceFile): Promise<void> {
  const content = await file.content();
  const kept = content instanceof Blob ? content : new Blob([content]);
  const { info, tracks } = await (await core).open(file.name, kept);
  const take = addTake(info, tracks, kept);
  if (!activeFile.value) activate(take);
}

export async function closeTake(take: Take): Promise<void> {
  const wasActive = activeFile.value === take;
  removeTake(take);
  if (wasActive) {
    stop();
    const next = takes.value[takes.value.length - 1];
    if (next) activate(next);
    else activeKey.value = 0;
    if (!next) resetTime();
  }
  await (await core).close(take.info.id);
}

function resetTime(): void {
  clearSpan();
  goTo(0);
}

/** The report is the program's own; findings are told in words of the page. */
export async function askFindings(take: Take, action: Action): Promise<Findings> {
  const { findings, json } = await runTask("Looking for what is odd", async () =>
    (await core).findings(take.info.id, action),
  );
  const told = findings.map((finding) => ({
    ...finding,
    text: pageWords(finding.text),
    cause: pageWords(finding.cause),
    consequence: pageWords(finding.consequence),
  }));
  return { findings: told, json };
}

export async function askLine(take: Take, line: number, column: number): Promise<LineText> {
  return (await core).line(take.info.id, line, column);
}

export async function askCurve(take: Take, object: number, of: CurveOf): Promise<Float64Array> {
  return runTask("Reading curves", async () => (await core).curve(take.info.id, object, of));
}

export async function runVerb(
  what: string,
  verb: string[],
  take: Take,
  others: OtherFile[] = [],
): Promise<RunResult> {
  return runTask(what, async () => (await core).run(verb, [take.info.id], others));
}

/** What becomes of a take's markers by a mapping. */
export async function askFit(take: Take, mapping: Blob): Promise<ToldFinding[]> {
  const file = { path: "chosen.mnm", file: mapping };
  const verb = ["map", "lint", file.path, take.info.path, "--json"];
  const { out } = await runVerb("Looking at the mapping", verb, take, [file]);
  return fitFindings(out);
}
