import { frameTicks, secondTicks, xOfFrame, type Area } from "../logic/timeline_geometry";
import { numberOf } from "../logic/frame_range";
import { marksOf } from "../logic/finding_groups";
import { secondsText } from "../logic/take_time";
import { report } from "../state/findings";
import { activeTake } from "../state/takes";
import { palette, type Palette } from "../state/theme";
import { frame, hasSpan, reach, rulerIn, span, timelineView } from "../state/time";
import { areaOf, scrub, wheel } from "./area";
import { useDrawing } from "../widgets/drawing";
import { useWheel } from "../widgets/wheel";

/** The scale of the timeline, with the frame that is shown. */

const APART = 74;

function drawRuler(context: CanvasRenderingContext2D, width: number, height: number): void {
  const take = activeTake.value;
  if (!take) return;
  const colors = palette.value;
  const area = areaOf(width);
  const view = timelineView.value;
  context.save();
  context.beginPath();
  context.rect(area.left - 1, 0, width, height);
  context.clip();
  drawSpan(context, area, height, colors);
  const ticks =
    rulerIn.value === "frames"
      ? frameTicks(view, area, APART, take.info)
      : secondTicks(view, area, APART, take.info.rate);
  context.font = "11px system-ui, sans-serif";
  context.textBaseline = "middle";
  context.strokeStyle = colors.line;
  context.fillStyle = colors.quiet;
  for (const tick of ticks) {
    const x = Math.round(xOfFrame(tick.at, view, area)) + 0.5;
    context.beginPath();
    context.moveTo(x, height - 7);
    context.lineTo(x, height);
    context.stroke();
    const isWhole = x + 4 + context.measureText(tick.text).width <= width;
    if (isWhole) context.fillText(tick.text, x + 4, height / 2 - 1);
  }
  drawGeneralMarks(context, area, height, colors);
  drawPlayhead(context, area, height, colors);
  context.restore();
}

function drawSpan(
  context: CanvasRenderingContext2D,
  area: Area,
  height: number,
  colors: Palette,
): void {
  if (!hasSpan.value) return;
  const left = xOfFrame(span.value.first, timelineView.value, area);
  const right = xOfFrame(span.value.last + 1, timelineView.value, area);
  context.fillStyle = colors.accent;
  context.fillRect(left, height - 3, right - left, 3);
  context.fillRect(left, 2, 2, height - 2);
  context.fillRect(right - 2, 2, 2, height - 2);
}

function drawGeneralMarks(
  context: CanvasRenderingContext2D,
  area: Area,
  height: number,
  colors: Palette,
): void {
  for (const mark of marksOf(report.value?.findings ?? [])) {
    if (mark.object !== null) continue;
    const x = xOfFrame(mark.frame + 0.5, timelineView.value, area);
    context.fillStyle = colors[mark.severity];
    context.fillRect(x - 2, height - 5, 4, 5);
  }
}

function drawPlayhead(
  context: CanvasRenderingContext2D,
  area: Area,
  height: number,
  colors: Palette,
): void {
  const view = timelineView.value;
  const left = xOfFrame(frame.value, view, area);
  const width = Math.max(xOfFrame(frame.value + 1, view, area) - left, 2);
  context.globalAlpha = 0.35;
  context.fillStyle = colors.accent;
  context.fillRect(left, 0, width, height);
  context.globalAlpha = 1;
  const x = left + width / 2;
  context.beginPath();
  context.moveTo(x - 6, 0);
  context.lineTo(x + 6, 0);
  context.lineTo(x, 9);
  context.fill();
}

export function Ruler() {
  const canvas = useDrawing(drawRuler);
  useWheel(canvas, wheel);
  const take = activeTake.value;
  const numbering = take?.info ?? { firstFrame: 0 };
  const number = numberOf(numbering, frame.value);
  const seconds = take && take.info.rate > 0 ? frame.value / take.info.rate : 0;
  return (
    <canvas
      ref={canvas}
      class="ruler"
      tabIndex={0}
      role="slider"
      aria-label="Time"
      aria-valuemin={numberOf(numbering, reach.value.first)}
      aria-valuemax={numberOf(numbering, reach.value.end - 1)}
      aria-valuenow={number}
      aria-valuetext={`Frame ${number}, ${secondsText(seconds)}`}
      onPointerDown={scrub}
    />
  );
}
