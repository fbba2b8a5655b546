import { computed, effect, signal } from "@preact/signals";
import type { Action, Finding } from "../../worker/protocol";
import { askFindings } from "./core";
import { wordsOf } from "./notices";
import { activeFile, working, type Take } from "./takes";

/** What is odd in the take that is worked on, for what is to be done with it. */

export interface Report {
  readonly take: Take;
  readonly action: Action;
  readonly findings: readonly Finding[];
  /** Why there is no report. */
  readonly failure: string | null;
}

export const action = signal<Action>("import");

const kept = new WeakMap<Take, Map<Action, Report>>();
const arrived = signal(0);

/** Nothing while it is being made, and while the scene is seen. */
export const report = computed<Report | null>(() => {
  void arrived.value;
  const take = working.value ? null : activeFile.value;
  return (take && kept.get(take)?.get(action.value)) ?? null;
});

async function make(take: Take, wanted: Action): Promise<void> {
  let made: Report;
  try {
    const { findings } = await askFindings(take, wanted);
    made = { take, action: wanted, findings, failure: null };
  } catch (reason) {
    made = { take, action: wanted, findings: [], failure: wordsOf(reason) };
  }
  const reports = kept.get(take) ?? new Map<Action, Report>();
  kept.set(take, reports.set(wanted, made));
  arrived.value += 1;
}

/** The actions that there are for a take. */
export function actionsOf(take: Take): readonly Action[] {
  return take.info.kind === "markers"
    ? ["import", "apply", "convert", "rewrite"]
    : ["import", "apply", "rewrite"];
}

const asked = new WeakMap<Take, Set<Action>>();

effect(() => {
  const take = activeFile.value;
  if (!take) return;
  if (!actionsOf(take).includes(action.value)) action.value = "import";
  const wanted = action.value;
  const before = asked.get(take) ?? new Set<Action>();
  if (before.has(wanted)) return;
  asked.set(take, before.add(wanted));
  void make(take, wanted);
});

/** Asks anew, when what was asked was canceled. */
export function retry(failed: Report): void {
  kept.get(failed.take)?.delete(failed.action);
  arrived.value += 1;
  void make(failed.take, failed.action);
}
