import { computed, signal, type Signal } from "@preact/signals";
import type { TakeInfo, Tracks } from "../../worker/protocol";
import { indexGaps, type GapIndex } from "../logic/gaps";
import type { Clock } from "../logic/take_time";

/** The takes that are open, in the order in which they were opened; one of them is worked on. */
export interface Take {
  /** The page's own number of it, which stays when the core begins anew. */
  readonly key: number;
  readonly info: TakeInfo;
  readonly tracks: Tracks;
  readonly gaps: GapIndex;
  /** Which of the takes' colors it has. */
  readonly color: number;
  /** Seconds that it begins later than the others. */
  readonly offset: Signal<number>;
  readonly shown: Signal<boolean>;
}

export const takes = signal<readonly Take[]>([]);
export const activeKey = signal(0);

export const activeTake = computed(
  () => takes.value.find((take) => take.key === activeKey.value) ?? null,
);

/** By number: first the two that are told apart best by all eyes. */
export const TAKE_COLORS: readonly string[] = [
  "#58a6e8",
  "#f0a04b",
  "#c58cf2",
  "#d8cc5a",
  "#ef7fa0",
  "#9fb0c6",
];

export function colorOf(take: Take): string {
  return TAKE_COLORS[take.color % TAKE_COLORS.length];
}

function freeColor(): number {
  const used = new Set(takes.value.map((take) => take.color));
  let color = 0;
  while (used.has(color)) color += 1;
  return color;
}

let lastKey = 0;

export function addTake(info: TakeInfo, tracks: Tracks): Take {
  const take: Take = {
    key: ++lastKey,
    info,
    tracks,
    gaps: indexGaps(info.gaps, info.objects.length),
    color: freeColor(),
    offset: signal(0),
    shown: signal(true),
  };
  takes.value = [...takes.value, take];
  return take;
}

export function removeTake(take: Take): void {
  takes.value = takes.value.filter((other) => other !== take);
}

export function takeByKey(key: number): Take | null {
  return takes.value.find((take) => take.key === key) ?? null;
}

export function clockOf(take: Take): Clock {
  return { frames: take.info.frames, rate: take.info.rate, offset: take.offset.value };
}
