import { computed, signal, type Signal } from "@preact/signals";
import type { SceneNode } from "../../worker/desk_protocol";
import type { TakeInfo, Tracks } from "../../worker/protocol";
import { indexGaps, type GapIndex } from "../logic/gaps";
import { numbered } from "../logic/names";
import type { Clock } from "../logic/take_time";

/** The takes that are open, in the order in which they were opened; one of them is worked on. */
export interface Take {
  /** The page's own number of it, which stays when the core begins anew. */
  readonly key: number;
  readonly info: TakeInfo;
  /** Which it is of those that are called alike. */
  readonly number: number;
  readonly tracks: Tracks;
  readonly gaps: GapIndex;
  /** Which of the takes' colors it has. */
  readonly color: number;
  /** Seconds that it begins later than the others. */
  readonly offset: Signal<number>;
  readonly shown: Signal<boolean>;
  /** What the core was given, and the desk may be. */
  readonly file: Blob;
  /** Of the scene on the desk: what its objects are. */
  readonly nodes?: readonly SceneNode[];
  /** Of the scene: red, green and blue of each object, 0 to 1. */
  readonly colors?: Signal<Float32Array>;
}

export const takes = signal<readonly Take[]>([]);
export const activeKey = signal(0);

/** Whether the scene of the desk is seen, and not the takes. */
export const working = signal(false);
export const scene = signal<Take | null>(null);
export const SCENE_KEY = -1;

/** The file that is worked on. */
export const activeFile = computed(
  () => takes.value.find((take) => take.key === activeKey.value) ?? null,
);

/** What the view and the timeline show. */
export const seenTakes = computed<readonly Take[]>(() => {
  if (!working.value) return takes.value;
  return scene.value ? [scene.value] : [];
});

/** What time and the lists are of. */
export const activeTake = computed(() => (working.value ? scene.value : activeFile.value));

function freeColor(): number {
  const used = new Set(takes.value.map((take) => take.color));
  let color = 0;
  while (used.has(color)) color += 1;
  return color;
}

const SHORTEST = 40;

/** What a take is called wherever it is told of: by no name that another one has, in so many characters at least. */
export function labelOf({ info, number }: Take, length = 120): string {
  return numbered(info.name, number, Math.max(length, SHORTEST));
}

function freeNumber({ name }: TakeInfo): number {
  const labels = new Set(takes.value.map((take) => labelOf(take, SHORTEST)));
  let number = 1;
  while (labels.has(numbered(name, number, SHORTEST))) number += 1;
  return number;
}

/** Whether it has to be said which take something is of. */
export const areSeveral = computed(() => seenTakes.value.length > 1);

let lastKey = 0;

export function addTake(info: TakeInfo, tracks: Tracks, file = new Blob()): Take {
  const take: Take = {
    key: ++lastKey,
    info,
    number: freeNumber(info),
    tracks,
    gaps: indexGaps(info.gaps, info.objects.length),
    color: freeColor(),
    offset: signal(0),
    shown: signal(true),
    file,
  };
  takes.value = [...takes.value, take];
  return take;
}

export function removeTake(take: Take): void {
  takes.value = takes.value.filter((other) => other !== take);
}

export function takeByKey(key: number): Take | null {
  return seenTakes.value.find((take) => take.key === key) ?? null;
}

export function clockOf(take: Take): Clock {
  return { frames: take.info.frames, rate: take.info.rate, offset: take.offset.value };
}
