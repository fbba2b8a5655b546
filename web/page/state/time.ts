import { batch, computed, signal } from "@preact/signals";
import { advance, shuttle, type Span } from "../logic/playback";
import { clampFrame, frameIn, placeIn } from "../logic/take_time";
import {
  panned,
  revealing,
  wholeView,
  withinFrames,
  zoomed,
  type View,
} from "../logic/timeline_geometry";
import { isBoolean, oneOf, setting } from "./settings";
import { activeKey, activeTake, clockOf, working, type Take } from "./takes";

/** The frame that is shown, of the take that is worked on, counted from 0; and how it goes on. */
export const frame = signal(0);
export const playing = signal(false);
/** What it plays at unless J and L say something else; 1 is the rate of the file. */
export const usualSpeed = signal(1);
/** What it plays at, or played at last; negative: backward. */
export const speed = signal(1);
export const loop = setting("loop", true, isBoolean);
export const rulerIn = setting<"frames" | "seconds">(
  "ruler",
  "frames",
  oneOf<"frames" | "seconds">("frames", "seconds"),
);
const inPoint = signal<number | null>(null);
const outPoint = signal<number | null>(null);
/** The part of the frames that the timeline and the curves show. */
export const timelineView = signal<View>({ first: 0, end: 1 });

export const frames = computed(() => activeTake.value?.info.frames ?? 0);
export const hasSpan = computed(() => inPoint.value !== null || outPoint.value !== null);

/** Between the in and the out point; without them all frames. */
export const span = computed<Span>(() => {
  const last = Math.max(frames.value - 1, 0);
  const first = Math.min(inPoint.value ?? 0, last);
  return { first, last: Math.max(first, Math.min(outPoint.value ?? last, last)) };
});

/** Frames per second that a take is played at whose file tells no rate. */
const RATE_OF_NONE = 30;

// Between two frames while it plays.
let position = 0;

export function goTo(target: number): void {
  const next = clampFrame(target, frames.value);
  position = next;
  frame.value = next;
}

/** Goes to a frame that may lie outside of what the timeline shows. */
export function jumpTo(target: number): void {
  batch(() => {
    playing.value = false;
    goTo(target);
    timelineView.value = revealing(timelineView.value, frame.value, frames.value);
  });
}

export function goToStart(): void {
  jumpTo(frame.value === span.value.first ? 0 : span.value.first);
}

export function goToEnd(): void {
  jumpTo(frame.value === span.value.last ? frames.value - 1 : span.value.last);
}

export function play(newSpeed: number): void {
  if (frames.value < 2) return;
  const { first, last } = span.value;
  batch(() => {
    if (newSpeed > 0 && frame.value >= last) goTo(first);
    if (newSpeed < 0 && frame.value <= first) goTo(last);
    speed.value = newSpeed;
    playing.value = true;
  });
}

export function stop(): void {
  playing.value = false;
}

export function togglePlay(): void {
  if (playing.value) stop();
  else play(usualSpeed.value);
}

export function setSpeed(chosen: number): void {
  usualSpeed.value = chosen;
  speed.value = chosen * (playing.value && speed.value < 0 ? -1 : 1);
}

export function shuttleTo(direction: 1 | -1): void {
  play(shuttle(speed.value, playing.value, direction));
}

/** Lets time go on by so many seconds of the clock on the wall. */
export function passTime(seconds: number): void {
  const take = activeTake.value;
  if (!take || !playing.value) return;
  const rate = take.info.rate > 0 ? take.info.rate : RATE_OF_NONE;
  const step = advance(position, seconds * rate * speed.value, span.value, loop.value);
  batch(() => {
    position = step.position;
    frame.value = clampFrame(Math.floor(step.position), frames.value);
    timelineView.value = revealing(timelineView.value, frame.value, frames.value);
    if (step.ended) playing.value = false;
  });
}

export function setIn(): void {
  inPoint.value = frame.value;
  if (outPoint.value !== null && outPoint.value < frame.value) outPoint.value = null;
}

export function setOut(): void {
  outPoint.value = frame.value;
  if (inPoint.value !== null && inPoint.value > frame.value) inPoint.value = null;
}

export function clearSpan(): void {
  inPoint.value = null;
  outPoint.value = null;
}

/** Where somebody is in time, to come back there. */
export interface TimePlace {
  readonly frame: number;
  readonly inPoint: number | null;
  readonly outPoint: number | null;
}

export const FIRST_PLACE: TimePlace = { frame: 0, inPoint: null, outPoint: null };

export function timePlace(): TimePlace {
  return { frame: frame.value, inPoint: inPoint.value, outPoint: outPoint.value };
}

/** Comes back to a place, as far as what is seen now reaches there. */
export function returnTo(place: TimePlace): void {
  playing.value = false;
  inPoint.value = place.inPoint;
  outPoint.value = place.outPoint;
  timelineView.value = wholeView(frames.value);
  goTo(place.frame);
}

export function zoomTimeline(factor: number, around = frame.value + 0.5): void {
  timelineView.value = zoomed(timelineView.value, factor, around, frames.value);
}

export function panTimeline(by: number): void {
  timelineView.value = panned(timelineView.value, by, frames.value);
}

export function showAllFrames(): void {
  timelineView.value = wholeView(frames.value);
}

/**
 * Works on another take; the moment that is seen stays, where that take has it, and so do points and zoom. While the
 * scene is seen, so does time.
 */
export function activate(take: Take): void {
  const before = activeTake.value;
  if (before === take) return;
  if (working.value) {
    activeKey.value = take.key;
    return;
  }
  const { frames: count } = take.info;
  const there = before ? frameIn(clockOf(take), clockOf(before), frame.value) : 0;
  batch(() => {
    if (before) moveSpan(before, take);
    else clearSpan();
    const view = before ? movedView(before, take) : wholeView(count);
    activeKey.value = take.key;
    goTo(Math.max(there, 0));
    timelineView.value = revealing(withinFrames(view, count), frame.value, count);
    if (count < 2) playing.value = false;
  });
}

/** In and out points go along, if anything between them is in the other take. */
function moveSpan(from: Take, to: Take): void {
  const moved = (point: number): number =>
    Math.round(placeIn(clockOf(to), clockOf(from), point));
  const last = to.info.frames - 1;
  const begin = inPoint.value === null ? null : moved(inPoint.value);
  const end = outPoint.value === null ? null : moved(outPoint.value);
  const isApart = (begin ?? 0) > last || (end ?? last) < 0;
  inPoint.value = begin === null || isApart ? null : clampFrame(begin, to.info.frames);
  outPoint.value = end === null || isApart ? null : clampFrame(end, to.info.frames);
}

function movedView(from: Take, to: Take): View {
  const { first, end } = timelineView.value;
  if (end - first >= from.info.frames) return wholeView(to.info.frames);
  const moved = (place: number): number => placeIn(clockOf(to), clockOf(from), place);
  return { first: moved(first), end: moved(end) };
}

/** The frame of a take at the moment that is seen; -1 where it has none. */
export function frameOf(take: Take): number {
  const active = activeTake.value;
  if (!active) return -1;
  if (active === take) return take.info.frames > 0 ? frame.value : -1;
  return frameIn(clockOf(take), clockOf(active), frame.value);
}
