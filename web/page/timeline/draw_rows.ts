import { marksOf, type Mark } from "../logic/finding_groups";
import { eachGap } from "../logic/gaps";
import { shown } from "../logic/names";
import { visibleRows, xOfFrame, type Area } from "../logic/timeline_geometry";
import { report } from "../state/findings";
import { foundObjects } from "../state/rows";
import { selectedInActive } from "../state/selection";
import { colorOf } from "../state/take_color";
import { activeTake, type Take } from "../state/takes";
import { palette, type Palette } from "../state/theme";
import { frame, hasSpan, span, timelineView } from "../state/time";
import { areaOf } from "./area";

/** A row for each object: a bar over the frames that hold it, holes where they do not. */

const LONGEST_NAME = 60;
/** How much of its color the bar of an object has that is not selected. */
const QUIET_BAR = 0.8;

interface Picture {
  context: CanvasRenderingContext2D;
  take: Take;
  area: Area;
  rowHeight: number;
  colors: Palette;
}

function markedObjects(): Map<number, Mark[]> {
  const marks = new Map<number, Mark[]>();
  for (const mark of marksOf(report.value?.findings ?? [])) {
    if (mark.object === null) continue;
    const own = marks.get(mark.object);
    if (own) own.push(mark);
    else marks.set(mark.object, [mark]);
  }
  return marks;
}

export function drawRows(
  context: CanvasRenderingContext2D,
  width: number,
  height: number,
  scroll: number,
  rowHeight: number,
): void {
  const take = activeTake.value;
  if (!take) return;
  const picture: Picture = { context, take, area: areaOf(width), rowHeight, colors: palette.value };
  const objects = foundObjects.value;
  const marks = markedObjects();
  const { first, end } = visibleRows(scroll, height, rowHeight, objects.length);
  for (let row = first; row < end; ++row) {
    const top = row * rowHeight - scroll;
    drawName(picture, objects[row], top);
    clipped(picture, top, () => {
      drawBar(picture, objects[row], top);
      for (const mark of marks.get(objects[row]) ?? []) drawMark(picture, mark, top);
    });
  }
  drawOutside(picture, height);
  drawLine(picture, height);
  drawThumb(picture, width, height, scroll, objects.length * rowHeight);
}

/** Which part of all rows is in sight. */
function drawThumb(
  { context, colors }: Picture,
  width: number,
  height: number,
  scroll: number,
  total: number,
): void {
  if (total <= height) return;
  const length = Math.max((height / total) * height, 16);
  const top = (scroll / (total - height)) * (height - length);
  context.fillStyle = colors.line;
  context.fillRect(width - 7, top, 4, length);
}

function clipped({ context, area, rowHeight }: Picture, top: number, draw: () => void): void {
  context.save();
  context.beginPath();
  context.rect(area.left, top, area.width, rowHeight);
  context.clip();
  draw();
  context.restore();
}

function drawName(
  { context, take, area, rowHeight, colors }: Picture,
  object: number,
  top: number,
): void {
  const isSelected = selectedInActive.value.has(object);
  if (isSelected) {
    context.fillStyle = colors.row;
    context.fillRect(0, top, area.left + area.width, rowHeight);
  }
  context.save();
  context.beginPath();
  context.rect(0, top, area.left - 8, rowHeight);
  context.clip();
  context.font = "12px system-ui, sans-serif";
  context.textBaseline = "middle";
  context.textAlign = "left";
  context.direction = "ltr";
  context.fillStyle = isSelected ? colors.accent : colors.text;
  context.fillText(shown(take.info.objects[object], LONGEST_NAME), 10, top + rowHeight / 2);
  context.restore();
}

function drawBar(
  { context, take, area, rowHeight, colors }: Picture,
  object: number,
  top: number,
): void {
  const view = timelineView.value;
  const inset = Math.max(3, Math.round(rowHeight * 0.25));
  const barTop = top + inset;
  const barHeight = rowHeight - 2 * inset;
  const left = xOfFrame(0, view, area);
  const right = xOfFrame(take.info.frames, view, area);
  context.fillStyle = colorOf(take);
  context.globalAlpha = selectedInActive.value.has(object) ? 1 : QUIET_BAR;
  context.fillRect(left, barTop, right - left, barHeight);
  context.globalAlpha = 1;
  let drawnTo = -Infinity;
  eachGap(take.gaps, object, Math.floor(view.first), Math.ceil(view.end), (first, last) => {
    const begin = xOfFrame(first, view, area);
    const end = Math.max(xOfFrame(last + 1, view, area), begin + 1.5);
    if (end <= drawnTo) return;
    drawHole(context, colors, Math.max(begin, drawnTo), end, barTop, barHeight);
    drawnTo = end;
  });
}

function drawHole(
  context: CanvasRenderingContext2D,
  colors: Palette,
  begin: number,
  end: number,
  top: number,
  height: number,
): void {
  context.fillStyle = colors.background;
  context.fillRect(begin, top - 0.5, end - begin, height + 1);
  if (end - begin < 4) return;
  context.fillStyle = colors.line;
  context.fillRect(begin, top + height / 2 - 0.5, end - begin, 1);
}

function drawMark({ context, area, rowHeight, colors }: Picture, mark: Mark, top: number): void {
  const x = xOfFrame(mark.frame + 0.5, timelineView.value, area);
  const middle = top + rowHeight / 2;
  context.fillStyle = colors[mark.severity];
  context.strokeStyle = colors.background;
  context.lineWidth = 1;
  context.beginPath();
  context.moveTo(x, middle - 5);
  context.lineTo(x + 5, middle);
  context.lineTo(x, middle + 5);
  context.lineTo(x - 5, middle);
  context.closePath();
  context.fill();
  context.stroke();
}

function drawOutside({ context, area, colors }: Picture, height: number): void {
  if (!hasSpan.value) return;
  const clamp = (x: number): number => Math.min(Math.max(x, area.left), area.left + area.width);
  const view = timelineView.value;
  const left = clamp(xOfFrame(span.value.first, view, area));
  const right = clamp(xOfFrame(span.value.last + 1, view, area));
  context.globalAlpha = 0.6;
  context.fillStyle = colors.background;
  context.fillRect(area.left, 0, left - area.left, height);
  context.fillRect(right, 0, area.left + area.width - right, height);
  context.globalAlpha = 1;
}

function drawLine({ context, area, colors }: Picture, height: number): void {
  const x = Math.round(xOfFrame(frame.value + 0.5, timelineView.value, area));
  if (x < area.left || x > area.left + area.width) return;
  context.fillStyle = colors.accent;
  context.fillRect(x, 0, 1, height);
}
