import { frameOfX, type Area } from "../logic/timeline_geometry";
import { namesWidth } from "../state/layout";
import { activeTake } from "../state/takes";
import { frame, goTo, panTimeline, stop, timelineView, zoomTimeline } from "../state/time";
import { followPointer } from "../widgets/drag";

/** The part of the timeline that frames lie in, and how the pointer works there. */

const RIGHT_EDGE = 12;

export function areaOf(width: number): Area {
  const left = namesWidth.value;
  return { left, width: Math.max(width - left - RIGHT_EDGE, 1) };
}

function frameUnder(element: HTMLElement, clientX: number): number {
  const box = element.getBoundingClientRect();
  return frameOfX(clientX - box.left, timelineView.value, areaOf(box.width));
}

export function isInNames(element: HTMLElement, clientX: number): boolean {
  return clientX - element.getBoundingClientRect().left < namesWidth.value;
}

/** Shows the frame under the pointer, and those that it is dragged over. */
export function scrub(event: PointerEvent): void {
  if (!activeTake.value || event.button !== 0) return;
  const element = event.currentTarget as HTMLElement;
  if (isInNames(element, event.clientX)) return;
  const show = (moved: PointerEvent): void => {
    const there = Math.floor(frameUnder(element, moved.clientX));
    if (there !== frame.value) goTo(there);
  };
  stop();
  show(event);
  followPointer(element, event, show);
}

const ZOOM_OF_PIXEL = 1.0015;

/** Closer or wider around the pointer; with Shift along. Over the names the wheel scrolls. */
export function wheel(event: WheelEvent): void {
  const element = event.currentTarget as HTMLElement;
  if (!activeTake.value || isInNames(element, event.clientX)) return;
  event.preventDefault();
  const view = timelineView.value;
  const along = event.shiftKey ? event.deltaY || event.deltaX : event.deltaX;
  if (event.shiftKey || Math.abs(event.deltaX) > Math.abs(event.deltaY)) {
    panTimeline((along / element.clientWidth) * (view.end - view.first));
    return;
  }
  zoomTimeline(ZOOM_OF_PIXEL ** -event.deltaY, frameUnder(element, event.clientX));
}
