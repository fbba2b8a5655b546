import { batch, computed, effect, signal, untracked } from "@preact/signals";
import { openChoice } from "../logic/desk_things";
import { fitsPattern, nameToWrite } from "../logic/file_pattern";
import { numberOf, rangeOf } from "../logic/frame_range";
import { baseName } from "../logic/handed_out";
import { suggestionFor } from "../logic/mapping";
import {
  asked,
  beginDesk,
  giveTask,
  idle,
  mapping,
  modalThings,
  pickMode,
  pickNode,
  putFile,
  removeFile,
  suggestions,
  tell,
  tellSelected,
  things,
} from "./desk";
import { notifyFailure } from "./notices";
import { chosenNodes } from "./selection";
import { activeFile, scene, takes, working, type Take } from "./takes";
import { frame, goElsewhere, placeElsewhere, playing, timePlace } from "./time";

/** Working on a scene: what is done from outside of the plug-in's dialogs. */

/** Goes from the takes to the scene or back; each has its own place in time. */
export function setWorking(on: boolean): void {
  if (working.value === on) return;
  batch(() => {
    working.value = on;
    goElsewhere();
  });
  if (on) void beginDesk().catch((reason) => notifyFailure("The desk did not start", reason));
}

/** Whether a task can be given: nothing is open or at work. */
export const free = computed(() => idle.value && modalThings.value.length === 0);

/** The file whose import was begun last. */
export const importedTake = signal<Take | null>(null);

/** Under its own name, with an ending that says what it is: the plug-in goes by that. */
function putTake(take: Take): string {
  return putFile(baseName(take.info.path), take.file);
}

export function importFile(take: Take): void {
  importedTake.value = take;
  const range = take === activeFile.value ? rangeOf(placeElsewhere(), take.info) : undefined;
  giveTask({ did: "import", path: putTake(take), range });
}

export function exportScene(name: string): void {
  const info = scene.value?.info;
  const range = info && rangeOf(timePlace(), info);
  giveTask({ did: "export", path: nameToWrite(name, "htr"), range });
}

export function saveScene(name: string): void {
  giveTask({ did: "save-scene", path: nameToWrite(name, "glb") });
}

export const suggestion = computed(() =>
  suggestionFor(asked.value, suggestions.value, mapping.value, pickMode.value.pickable),
);

export function takeSuggestion(): void {
  if (suggestion.value) pickNode(suggestion.value.node);
}

let open: readonly Take[] = [];

effect(() => {
  const closed = open.filter((take) => !takes.value.includes(take));
  open = takes.value;
  untracked(() => closed.forEach(({ file }) => removeFile(file)));
});

// What is open, or is opened meanwhile, can be chosen on the desk when it asks for files.
effect(() => {
  const choice = openChoice(things.value);
  if (!choice) return;
  const fitting = takes.value.filter(({ info }) => fitsPattern(info.path, choice.pattern));
  untracked(() => fitting.forEach(putTake));
});

effect(() => {
  const nodes = chosenNodes.value;
  if (scene.peek()) tellSelected(nodes);
});

effect(() => {
  const take = working.value ? scene.value : null;
  if (take && !playing.value) tell({ did: "time", frame: numberOf(take.info, frame.value) });
});
