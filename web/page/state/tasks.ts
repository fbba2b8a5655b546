import { computed, signal } from "@preact/signals";

/** What takes its time is told after a quarter of a second, with how far it is, and can be canceled. */
export interface Task {
  readonly what: string;
  /** From 0 to 1; nothing while that is not known. */
  readonly fraction: number | null;
}

const PATIENCE_MILLISECONDS = 250;

const slow = signal<readonly { readonly what: string }[]>([]);
const progress = signal<Task | null>(null);

/** What is told: how far the core says it is, or else what was begun last. */
export const task = computed<Task | null>(() => {
  const last = slow.value[slow.value.length - 1];
  if (!last) return null;
  return progress.value ?? { what: last.what, fraction: null };
});

export const canceling = signal(false);

let running = 0;

export async function runTask<Result>(what: string, work: () => Promise<Result>): Promise<Result> {
  const own = { what };
  running += 1;
  const timer = setTimeout(() => (slow.value = [...slow.value, own]), PATIENCE_MILLISECONDS);
  try {
    return await work();
  } finally {
    clearTimeout(timer);
    running -= 1;
    slow.value = slow.value.filter((other) => other !== own);
    progress.value = null;
    if (running === 0) canceling.value = false;
  }
}

export function tellProgress(what: string, fraction: number): void {
  if (running > 0) progress.value = { what, fraction };
}
