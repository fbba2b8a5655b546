import { effect, signal, type Signal } from "@preact/signals";

/** What a person chose is remembered where the browser allows that, and for the visit where it does not. */

const PREFIX = "orvane-workbench/";

function remembered(name: string): unknown {
  try {
    return JSON.parse(localStorage.getItem(PREFIX + name) ?? "null");
  } catch {
    return null;
  }
}

function remember(name: string, value: unknown): void {
  try {
    localStorage.setItem(PREFIX + name, JSON.stringify(value));
  } catch {
    return; // The page works on without: nothing but the next visit is lost.
  }
}

/** All that the browser keeps of this page. */
export function keptKeys(): { name: string; text: string }[] {
  try {
    const names = Object.keys(localStorage).filter((name) => name.startsWith(PREFIX));
    return names.sort().map((name) => ({
      name: name.slice(PREFIX.length),
      text: localStorage.getItem(name) ?? "",
    }));
  } catch {
    return [];
  }
}

export function clearKept(): void {
  for (const { name } of keptKeys()) localStorage.removeItem(PREFIX + name);
}

/** A signal whose value is taken over to the next visit, if `accepts` says that what was kept is one. */
export function setting<Value>(
  name: string,
  first: Value,
  accepts: (kept: unknown) => kept is Value,
): Signal<Value> {
  const kept = remembered(name);
  const value = signal<Value>(accepts(kept) ? kept : first);
  let begun = false;
  effect(() => {
    const now = value.value;
    if (begun) remember(name, now);
    begun = true;
  });
  return value;
}

export function oneOf<Value extends string>(
  ...values: readonly Value[]
): (kept: unknown) => kept is Value {
  return (kept): kept is Value => values.includes(kept as Value);
}

export function isBoolean(kept: unknown): kept is boolean {
  return typeof kept === "boolean";
}

export function isNumberIn(least: number, most: number): (kept: unknown) => kept is number {
  return (kept): kept is number => typeof kept === "number" && kept >= least && kept <= most;
}
