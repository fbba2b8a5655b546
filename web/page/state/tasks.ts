import { signal } from "@preact/signals";

/** What takes its time is told after a quarter of a second, with how far it is, and can be canceled. */
export interface Task {
  readonly what: string;
  /** From 0 to 1; nothing while that is not known. */
  readonly fraction: number | null;
}

const PATIENCE_MILLISECONDS = 250;

export const task = signal<Task | null>(null);
export const canceling = signal(false);

let running = 0;

export async function runTask<Result>(what: string, work: () => Promise<Result>): Promise<Result> {
  running += 1;
  const timer = setTimeout(() => (task.value = { what, fraction: null }), PATIENCE_MILLISECONDS);
  try {
    return await work();
  } finally {
    clearTimeout(timer);
    running -= 1;
    if (running === 0) {
      task.value = null;
      canceling.value = false;
    }
  }
}

export function tellProgress(what: string, fraction: number): void {
  if (task.value) task.value = { what: what || task.value.what, fraction };
}
