import type { View } from "./timeline_geometry";

/** How the frames of several takes lie over each other: each has its own rate, and may begin later. */

export interface Clock {
  frames: number;
  /** Frames per second. */
  rate: number;
  /** Seconds that the take begins later than the others. */
  offset: number;
}

export function secondsOf(clock: Clock, frame: number): number {
  return clock.rate > 0 ? frame / clock.rate : 0;
}

/** The frame of `other` at the moment when `active` shows `frame`; -1 where it shows none. */
export function frameIn(other: Clock, active: Clock, frame: number): number {
  const moment = secondsOf(active, frame) + active.offset - other.offset;
  const found = Math.round(moment * other.rate);
  return found >= 0 && found < other.frames ? found : -1;
}

/** Where on the frames of `active` a place on those of `other` lies, which may be before, behind and between them. */
export function placeIn(active: Clock, other: Clock, place: number): number {
  if (!(active.rate > 0) || !(other.rate > 0)) return place;
  return (secondsOf(other, place) + other.offset - active.offset) * active.rate;
}

const ROUNDING = 1e-6;

/**
 * The frames of `active` from the first to the last moment of all takes, at least one: those before its own are
 * negative. A take without a rate has no moments but its own.
 */
export function reachOf(active: Clock, takes: readonly Clock[]): View {
  let first = 0;
  let end = Math.max(active.frames, 1);
  for (const take of takes) {
    if (!(active.rate > 0 && take.rate > 0 && take.frames > 0)) continue;
    first = Math.min(first, Math.floor(placeIn(active, take, 0) + 1 - ROUNDING));
    end = Math.max(end, Math.floor(placeIn(active, take, take.frames - 1) + 1 + ROUNDING));
  }
  return { first, end };
}

export function clampFrame(frame: number, { first, end }: View): number {
  if (!Number.isFinite(frame)) return Math.max(first, 0);
  return Math.min(Math.max(Math.round(frame), first), end - 1);
}

/** Backward or forward. */
export type Direction = -1 | 1;

/** Of some frames the nearest one before or after a frame; nothing where there is none. */
export function neighborOf(frames: readonly number[], frame: number, direction: Direction): number | null {
  let nearest: number | null = null;
  for (const other of frames) {
    const isBeyond = (other - frame) * direction > 0;
    if (isBeyond && (nearest === null || (nearest - other) * direction > 0)) nearest = other;
  }
  return nearest;
}

/** Seconds with as many digits as tell neighboring frames apart. */
export function secondsText(seconds: number): string {
  return `${seconds.toFixed(3)} s`;
}
