import { batch, computed, signal } from "@preact/signals";
import { activeTake, seenTakes, type Take } from "./takes";

/** The objects that are selected, of all takes; the one chosen last is what curves are shown of. */
export interface ObjectReference {
  readonly take: number;
  readonly object: number;
}

export const selection = signal<readonly ObjectReference[]>([]);
/** What the person has selected last, himself: what is selected may have been told by the desk since. */
export const chosen = signal<readonly ObjectReference[]>([]);
export const hovered = signal<ObjectReference | null>(null);

/** What is selected of takes that are still open. */
export const selected = computed(() => {
  const open = new Set(seenTakes.value.map((take) => take.key));
  return selection.value.filter((reference) => open.has(reference.take));
});

const NONE: ReadonlySet<number> = new Set();

const selectedByTake = computed(() => {
  const byTake = new Map<number, Set<number>>();
  for (const { take, object } of selected.value) {
    const objects = byTake.get(take);
    if (objects) objects.add(object);
    else byTake.set(take, new Set([object]));
  }
  return byTake;
});

/** The objects that are selected of a take. */
export function selectedOf(take: Take): ReadonlySet<number> {
  return selectedByTake.value.get(take.key) ?? NONE;
}

/** The objects selected of the take that is worked on. */
export const selectedInActive = computed(() =>
  activeTake.value ? selectedOf(activeTake.value) : NONE,
);

export const lastSelected = computed(() => selected.value[selected.value.length - 1] ?? null);

export function isSame(one: ObjectReference | null, other: ObjectReference | null): boolean {
  return one?.take === other?.take && one?.object === other?.object;
}

function choose(objects: readonly ObjectReference[]): void {
  batch(() => {
    selection.value = objects;
    chosen.value = objects;
  });
}

export function select(take: Take, object: number, extend: boolean): void {
  const reference = { take: take.key, object };
  const there = selected.value.some((other) => isSame(other, reference));
  const others = selected.value.filter((other) => !isSame(other, reference));
  if (!extend) choose([reference]);
  else choose(there ? others : [...others, reference]);
}

export function selectAll(take: Take, objects: readonly number[]): void {
  choose(objects.map((object) => ({ take: take.key, object })));
}

export function deselect(): void {
  choose([]);
}
