import { batch, computed, signal } from "@preact/signals";
import { nodeOf, objectOfNode } from "./scene";
import { activeTake, SCENE_KEY, takes, working, type Take } from "./takes";

/** The objects that are selected, of all takes; the one chosen last is what curves are shown of. */
export interface ObjectReference {
  readonly take: number;
  readonly object: number;
}

const inTakes = signal<readonly ObjectReference[]>([]);
/** The nodes that are selected in the scene, as the host has them; takes have a selection of their own. */
const inScene = signal<readonly number[]>([]);
/** The nodes that the person has selected last, himself: the desk may have told of others since. */
export const chosenNodes = signal<readonly number[]>([]);
export const hovered = signal<ObjectReference | null>(null);

/** What is selected of what is seen. */
export const selected = computed<readonly ObjectReference[]>(() => {
  if (working.value) return objectsOf(inScene.value);
  const open = new Set(takes.value.map((take) => take.key));
  return inTakes.value.filter((reference) => open.has(reference.take));
});

function objectsOf(nodes: readonly number[]): ObjectReference[] {
  const objects = nodes.flatMap((node) => objectOfNode.value.get(node) ?? []);
  return objects.map((object) => ({ take: SCENE_KEY, object }));
}

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

/** The desk tells which nodes are selected. */
export function showSelected(nodes: readonly number[]): void {
  inScene.value = nodes;
}

function choose(objects: readonly ObjectReference[]): void {
  if (!working.value) {
    inTakes.value = objects;
    return;
  }
  const nodes = objects.map(({ object }) => nodeOf(object));
  batch(() => {
    inScene.value = nodes;
    chosenNodes.value = nodes;
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
