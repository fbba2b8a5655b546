import { computed, effect, signal } from "@preact/signals";
import type { Task } from "../../worker/desk_protocol";
import { scene } from "./takes";

/** What would be lost with the scene, and what waits until the person has said that it may be. */

const changed = signal(false);

/** Whether the scene has changed since it was saved or begun. */
export const unsaved = computed(() => changed.value && scene.value !== null);

/** What is done when the scene may be lost; nothing while nobody is asked. */
export const waiting = signal<(() => void) | null>(null);

const CHANGES: ReadonlyMap<Task["did"], boolean> = new Map([
  ["import", true],
  ["open-scene", false],
  ["new-scene", false],
  ["save-scene", false],
]);

export function noteDone(task: Task["did"]): void {
  changed.value = CHANGES.get(task) ?? changed.value;
}

/** An import that was canceled may have made nodes, too. */
export function noteNodes(count: number): void {
  if (count !== (scene.value?.nodes?.length ?? 0)) changed.value = true;
}

/** Does what takes the scene away, at once or when the person agrees. */
export function replaceScene(deed: () => void): void {
  if (unsaved.value) waiting.value = deed;
  else deed();
}

export function agreeToLose(): void {
  const deed = waiting.value;
  waiting.value = null;
  deed?.();
}

/** Lets the browser ask before the page is left with a scene that would be lost. */
export function guardLeaving(page: EventTarget): () => void {
  const ask = (event: Event): void => event.preventDefault();
  return effect(() => {
    if (unsaved.value) page.addEventListener("beforeunload", ask);
    else page.removeEventListener("beforeunload", ask);
  });
}
