import { effect, untracked } from "@preact/signals";
import uPlot from "uplot";
import type { CurveColumns } from "../logic/curve_columns";
import { frameOfX, xOfFrame, type Area } from "../logic/timeline_geometry";
import { curve } from "../state/curves";
import { namesWidth } from "../state/layout";
import { palette } from "../state/theme";
import { frame, goTo, stop, timelineView } from "../state/time";

/** A plot of curves that shares frames and place with the ruler above it. */

export const CURVE_COLORS: readonly string[] = ["#e2574c", "#58b158", "#7d83ee"];

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
      ...CURVE_COLORS.map((color) => ({ stroke: color, width: 1.25, points: { show: false } })),
    ],
  };
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
    const columns = curve.value?.columns ?? NO_CURVES;
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
    over.setPointerCapture(event.pointerId);
    over.addEventListener("pointermove", show);
    over.addEventListener(
      "lostpointercapture",
      () => over.removeEventListener("pointermove", show),
      {
        once: true,
      },
    );
  }

  dispose(): void {
    for (const end of this.stops) end();
    this.plot.destroy();
  }
}
