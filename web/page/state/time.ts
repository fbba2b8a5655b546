import { batch, computed, effect, signal } from "@preact/signals";
import { advance, shuttle, type Span } from "../logic/playback";
import { clampFrame, frameIn, placeIn, reachOf } from "../logic/take_time";
import { lengthOf, panned, revealing, within, zoomed, type View } from "../logic/timeline_geometry";
import { isBoolean, oneOf, setting } from "./settings";
import { activeKey, activeTake, clockOf, seenTakes, working, type Take } from "./takes";

/** The frames from the first to the last moment of all takes, as the take that is worked on counts them, from 0. */
export const reach = computed<View>(() => {
  const active = activeTake.value;
  if (!active) return { first: 0, end: 1 };
  return reachOf(clockOf(active), seenTakes.value.map(clockOf));
});

const wantedFrame = signal(0);
/** The frame that is shown, of the same; and how it goes on. */
export const frame = computed(() => clampFrame(wantedFrame.value, reach.value));
// Time that has ended with a take does not go on with the next one that is opened.
effect(() => void (wantedFrame.value = frame.value));
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
/** Nothing for all frames. */
const closerView = signal<View | null>(null);
/** The part of the frames that the timeline and the curves show. */
export const timelineView = computed<View>(() =>
  closerView.value ? within(closerView.value, reach.value) : reach.value,
);

function showFrames(view: View): void {
  if (view === timelineView.value) return;
  closerView.value = lengthOf(view) < lengthOf(reach.value) ? view : null;
}

function reveal(): void {
  showFrames(revealing(timelineView.value, frame.value, reach.value));
}

export const hasSpan = computed(() => inPoint.value !== null || outPoint.value !== null);

/** Between the in and the out point; without them all frames. */
export const span = computed<Span>(() => {
  const first = clampFrame(inPoint.value ?? reach.value.first, reach.value);
  const last = clampFrame(outPoint.value ?? reach.value.end - 1, reach.value);
  return { first, last: Math.max(first, last) };
});

/** Frames per second that a take is played at whose file tells no rate. */
const RATE_OF_NONE = 30;

// Between two frames while it plays.
let position = 0;

export function goTo(target: number): void {
  position = clampFrame(target, reach.value);
  wantedFrame.value = position;
}

/** Goes to a frame that may lie outside of what the timeline shows. */
export function jumpTo(target: number): void {
  batch(() => {
    playing.value = false;
    goTo(target);
    reveal();
  });
}

export function goToStart(): void {
  jumpTo(frame.value === span.value.first ? reach.value.first : span.value.first);
}

export function goToEnd(): void {
  jumpTo(frame.value === span.value.last ? reach.value.end - 1 : span.value.last);
}

export function play(newSpeed: number): void {
  if (lengthOf(reach.value) < 2) return;
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
    wantedFrame.value = Math.floor(step.position);
    reveal();
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
  closerView.value = null;
  goTo(place.frame);
}

/** Where somebody was in what is not seen now: the scene, or the takes. */
let elsewhere: TimePlace = FIRST_PLACE;

export function placeElsewhere(): TimePlace {
  return elsewhere;
}

/** Goes where somebody was in what is seen from now on. */
export function goElsewhere(): void {
  const here = timePlace();
  returnTo(elsewhere);
  elsewhere = here;
}

/** Another scene begins at its start, whether it is seen or not. */
export function forgetPlaceInScene(): void {
  if (working.value) returnTo(FIRST_PLACE);
  else elsewhere = FIRST_PLACE;
}

export function zoomTimeline(factor: number, around = frame.value + 0.5): void {
  showFrames(zoomed(timelineView.value, factor, around, reach.value));
}

export function panTimeline(by: number): void {
  showFrames(panned(timelineView.value, by, reach.value));
}

export function showAllFrames(): void {
  closerView.value = null;
}

/**
 * Works on another take, at the moment that is seen; points and zoom stay at their moments, too. While the scene is
 * seen, so does time.
 */
export function activate(take: Take): void {
  const before = activeTake.value;
  if (before === take) return;
  if (working.value) {
    activeKey.value = take.key;
    return;
  }
  const moved = (place: number): number =>
    before ? placeIn(clockOf(take), clockOf(before), place) : place;
  const there = before ? Math.round(moved(frame.value)) : 0;
  batch(() => {
    if (!before) clearSpan();
    for (const point of [inPoint, outPoint]) {
      if (point.value !== null) point.value = Math.round(moved(point.value));
    }
    const closer = closerView.value;
    closerView.value = before && closer && { first: moved(closer.first), end: moved(closer.end) };
    activeKey.value = take.key;
    goTo(there);
    reveal();
    if (lengthOf(reach.value) < 2) playing.value = false;
  });
}

/** The frame of a take at the moment that is seen; -1 where it has none. */
export function frameOf(take: Take): number {
  const active = activeTake.value;
  if (!active) return -1;
  if (active === take) return frame.value >= 0 && frame.value < take.info.frames ? frame.value : -1;
  return frameIn(clockOf(take), clockOf(active), frame.value);
}
