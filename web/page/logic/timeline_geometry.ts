import { numberOf, type Numbering } from "./frame_range";
import { roundStep } from "./units";

/** Where frames and rows lie on the timeline. A view is the part of the frames that is seen. */

export interface View {
  /** The frame at the left edge; a frame covers from its number to the next. */
  first: number;
  /** The frame at the right edge, that one not seen any more. */
  end: number;
}

export interface Area {
  left: number;
  width: number;
}

const FEWEST_FRAMES = 4;

export function lengthOf({ first, end }: View): number {
  return end - first;
}

export function xOfFrame(frame: number, view: View, area: Area): number {
  return area.left + ((frame - view.first) / (view.end - view.first)) * area.width;
}

export function frameOfX(x: number, view: View, area: Area): number {
  if (!(area.width > 0)) return view.first;
  return view.first + ((x - area.left) / area.width) * (view.end - view.first);
}

function allowedLength(wanted: number, all: View): number {
  const most = lengthOf(all);
  return Math.min(Math.max(wanted, Math.min(FEWEST_FRAMES, most)), most);
}

/** Keeps a view within all frames, at its length where that fits. */
export function within(view: View, all: View): View {
  const length = allowedLength(lengthOf(view), all);
  const first = Math.min(Math.max(view.first, all.first), all.end - length);
  return { first, end: first + length };
}

/** The view with 1 / factor as many frames, in which `frame` stays where it is. */
export function zoomed(view: View, factor: number, frame: number, all: View): View {
  const length = allowedLength(lengthOf(view) / factor, all);
  const share = (frame - view.first) / lengthOf(view);
  const first = frame - share * length;
  return within({ first, end: first + length }, all);
}

export function panned(view: View, by: number, all: View): View {
  return within({ first: view.first + by, end: view.end + by }, all);
}

/** The view itself where it shows the frame, else one of the same length around it. */
export function revealing(view: View, frame: number, all: View): View {
  if (frame >= view.first && frame + 1 <= view.end) return view;
  const length = lengthOf(view);
  return within({ first: frame - length / 2, end: frame + length / 2 }, all);
}

export interface Tick {
  /** In frames; between two frames where seconds are told. */
  at: number;
  text: string;
}

/** Marks of the ruler, at least `apart` pixels from each other, told as frame numbers. */
export function frameTicks(view: View, area: Area, apart: number, numbering: Numbering): Tick[] {
  const { firstFrame, frameStep = 1 } = numbering;
  const perPixel = ((view.end - view.first) * frameStep) / Math.max(area.width, 1);
  const step = Math.max(1, roundStep(perPixel * apart));
  const begin = Math.ceil(numberOf(numbering, view.first) / step) * step;
  const ticks: Tick[] = [];
  for (let number = begin; number < numberOf(numbering, view.end); number += step) {
    ticks.push({ at: (number - firstFrame) / frameStep, text: String(number) });
  }
  return ticks;
}

/** The same as seconds from the first frame on, by the rate in frames per second. */
export function secondTicks(view: View, area: Area, apart: number, rate: number): Tick[] {
  if (!(rate > 0)) return [];
  const perPixel = (view.end - view.first) / rate / Math.max(area.width, 1);
  const step = roundStep(perPixel * apart);
  const digits = Math.max(0, -Math.floor(Math.log10(step) + 1e-9));
  const ticks: Tick[] = [];
  for (let count = Math.ceil(view.first / rate / step); ; ++count) {
    const seconds = count * step;
    if (seconds * rate >= view.end) return ticks;
    ticks.push({ at: seconds * rate, text: `${seconds.toFixed(digits)} s` });
  }
}

export interface RowRange {
  first: number;
  end: number;
}

/** The rows of one height that a window shows, from the top of the first one on. */
export function visibleRows(
  scroll: number,
  height: number,
  rowHeight: number,
  count: number,
): RowRange {
  const first = Math.min(Math.max(Math.floor(scroll / rowHeight), 0), count);
  const end = Math.min(Math.ceil((scroll + height) / rowHeight), count);
  return { first, end: Math.max(end, first) };
}

/** How far to scroll so that a row is seen whole, and as little as that takes. */
export function scrollToRow(
  row: number,
  scroll: number,
  height: number,
  rowHeight: number,
): number {
  const top = row * rowHeight;
  if (top < scroll) return top;
  if (top + rowHeight > scroll + height) return top + rowHeight - height;
  return scroll;
}
