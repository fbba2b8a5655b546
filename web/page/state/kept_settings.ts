import { effect, signal } from "@preact/signals";
import type { StoredValue } from "../../worker/desk_protocol";
import { areStoredValues, settingsToKeep } from "../logic/kept_settings";
import { isBoolean, setting } from "./settings";

/** The plug-in's settings: fresh at each visit, unless the person has this browser keep them. */

export const keep = setting("keep-plug-in-settings", false, isBoolean);

const kept = setting<StoredValue[]>("plug-in-settings", [], areStoredValues);

/** As the plug-in has them now. */
export const stored = signal<readonly StoredValue[]>(kept.value);

effect(() => {
  const next = keep.value ? settingsToKeep(stored.value) : [];
  if (JSON.stringify(next) !== JSON.stringify(kept.peek())) kept.value = next;
});

/** What a new desk is to find. */
export function keptSettings(): StoredValue[] {
  return kept.value;
}

export function storeSettings(values: readonly StoredValue[]): void {
  stored.value = values;
}

export function forgetSettings(): void {
  keep.value = false;
  stored.value = [];
}
