import { useEffect, useRef } from "preact/hooks";
import type { CurveOf } from "../../worker/protocol";
import { shown } from "../logic/names";
import { Choice } from "../widgets/choice";
import { curve, curveOf, curvesOf, curveTexts, type Curve } from "../state/curves";
import { areSeveral, labelOf } from "../state/takes";
import { palette } from "../state/theme";
import { wheel } from "./area";
import { useWheel } from "../widgets/wheel";
import { Plot } from "./plot";

/** How the object that was selected last moves over time. */

const WORDS: Readonly<Record<CurveOf, string>> = {
  position: "position",
  localPosition: "position against parent",
  rotation: "rotation",
};

export function Curves() {
  const box = useRef<HTMLDivElement>(null);
  useWheel(box, wheel);
  useEffect(() => {
    const plot = new Plot(box.current!);
    const observer = new ResizeObserver(() => plot.resize());
    observer.observe(box.current!);
    return () => {
      observer.disconnect();
      plot.dispose();
    };
  }, []);
  const shownCurve = curve.value;
  return (
    <div class="curves">
      <div class="plot" ref={box} role="img" aria-label={plotLabel(shownCurve)} />
      {shownCurve ? (
        <Legend of={shownCurve} />
      ) : (
        <p class="hint">Select a marker or a segment to see how it moves.</p>
      )}
    </div>
  );
}

function plotLabel(of: Curve | null): string {
  if (!of) return "Curves: nothing is selected";
  const object = shown(of.take.info.objects[of.object], 80);
  return `Curves of the ${WORDS[of.of]} of ${object}${areSeveral.value ? ` in ${labelOf(of.take, 80)}` : ""}`;
}

function Legend({ of }: { of: Curve }) {
  const { info } = of.take;
  return (
    <div class="legend">
      <bdi class="name">{shown(info.objects[of.object], 60)}</bdi>
      {areSeveral.value && <bdi class="of-take quiet small">{labelOf(of.take, 60)}</bdi>}
      <Choice<CurveOf>
        label="Curves"
        value={of.of}
        options={curvesOf(of.take).map((key) => [key, WORDS[key]])}
        set={(value) => (curveOf.value = value)}
      />
      {curveTexts(of).map((text, axis) => (
        <span key={axis} class="numbers">
          <span class="swatch" style={{ background: palette.value.axes[axis] }} />
          {"XYZ"[axis]} {text ?? "–"}
        </span>
      ))}
    </div>
  );
}
