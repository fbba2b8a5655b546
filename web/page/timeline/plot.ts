import { effect, untracked } from "@preact/signals";
import uPlot from "uplot";
import { scaledColumns, type CurveColumns } from "../logic/curve_columns";
import { placeIn } from "../logic/take_time";
import { frameOfX, xOfFrame, type Area } from "../logic/timeline_geometry";
import { curve, shownLength, type Curve } from "../state/curves";
import { namesWidth } from "../state/layout";
import { activeTake, clockOf } from "../state/takes";
import { palette } from "../state/theme";
import { frame, goTo, stop, timelineView } from "../state/time";
import { followPointer } from "../widgets/drag";

/** A plot of curves that shares frames and place with the ruler above it. */

const RIGHT_EDGE = 12;
const NO_CURVES: CurveColumns = [[], [], [], []];

function options(width: number, height: number): uPlot.Options {
  const stroke = (): string => palette.peek().quiet;
  const grid = { stroke: (): string => palette.peek().grid, width: 1 };
  return {
    width,
    height,
    padding: [36, RIGHT_EDGE, 4, 0],
    legend: { show: false },
    cursor: { drag: { x: false, y: false }, points: { show: false } },
    scales: { x: { time: false, auto: false } },
    axes: [
      { show: false },
      {
        stroke,
        grid,
        ticks: { show: false },
        size: () => namesWidth.peek(),
        font: "11px system-ui",
      },
    ],
    series: [
      {},
      ...[0, 1, 2].map((axis) => ({
        stroke: (): string => palette.peek().axes[axis],
        width: 1.25,
        points: { show: false },
      })),
    ],
  };
}

/** Over the frames of the take that is worked on, whose take the curves may not be. */
function columnsOf(of: Curve): CurveColumns {
  const active = clockOf(activeTake.value ?? of.take);
  const own = clockOf(of.take);
  return scaledColumns(of.columns, (place) => placeIn(active, own, place), shownLength(of).factor);
}

export class Plot {
  private readonly plot: uPlot;
  private readonly line = document.createElement("div");
  private readonly stops: (() => void)[];

  constructor(private readonly box: HTMLElement) {
    this.plot = new uPlot(options(box.clientWidth, box.clientHeight), NO_CURVES, box);
    this.line.className = "plot-line";
    this.plot.over.append(this.line);
    this.plot.over.addEventListener("pointerdown", (event) => this.scrub(event));
    this.plot.hooks.draw = [() => untracked(() => this.showFrame())];
    this.stops = [
      effect(() => this.showCurves()),
      effect(() => this.showView()),
      effect(() => this.showFrame()),
      effect(() => this.repaint()),
    ];
  }

  private showCurves(): void {
    const columns = curve.value ? columnsOf(curve.value) : NO_CURVES;
    this.plot.batch(() => {
      this.plot.setData(columns);
      untracked(() => this.showView());
    });
  }

  private showView(): void {
    const { first, end } = timelineView.value;
    this.plot.setScale("x", { min: first, max: end });
  }

  private showFrame(): void {
    const x = xOfFrame(frame.value + 0.5, timelineView.value, this.area());
    this.line.style.transform = `translateX(${Math.round(x)}px)`;
    this.line.hidden = !curve.value || x < 0 || x > this.area().width;
  }

  private repaint(): void {
    void [palette.value, namesWidth.value];
    this.plot.redraw(true, true);
    this.showFrame();
  }

  private area(): Area {
    return { left: 0, width: this.plot.over.clientWidth };
  }

  resize(): void {
    const { clientWidth, clientHeight } = this.box;
    if (clientWidth > 0 && clientHeight > 0) {
      this.plot.setSize({ width: clientWidth, height: clientHeight });
      this.showFrame();
    }
  }

  private scrub(event: PointerEvent): void {
    const { over } = this.plot;
    const show = (moved: PointerEvent): void => {
      const x = moved.clientX - over.getBoundingClientRect().left;
      goTo(Math.floor(frameOfX(x, timelineView.value, this.area())));
    };
    stop();
    show(event);
    followPointer(over, event, show);
  }

  dispose(): void {
    for (const end of this.stops) end();
    this.plot.destroy();
  }
}
