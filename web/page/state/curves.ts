import { effect, signal } from "@preact/signals";
import type { CurveOf } from "../../worker/protocol";
import { curveColumns, valuesAt, type CurveColumns } from "../logic/curve_columns";
import { objectValues } from "../logic/scene_take";
import { lengthText, metersOf } from "../logic/units";
import { askCurve } from "./core";
import { bottomTab } from "./layout";
import { notifyFailure } from "./notices";
import { lastSelected } from "./selection";
import { takeByKey, type Take } from "./takes";
import { frameOf } from "./time";
import { unit } from "./view_options";

/** The curves of the object that was selected last. */

export interface Curve {
  readonly take: Take;
  readonly object: number;
  readonly of: CurveOf;
  readonly columns: CurveColumns;
}

export const curveOf = signal<CurveOf>("position");
export const curve = signal<Curve | null>(null);

/** What there is to choose from: markers have no rotation, and nothing that they hang from. */
export function curvesOf(take: Take): readonly CurveOf[] {
  return take.info.kind === "motion" && !take.nodes
    ? ["position", "localPosition", "rotation"] : ["position"];
}

/** What the numbers of a curve are told in, and what they are multiplied by for that. */
export function shownLength(of: Curve): { unit: string; factor: number } {
  if (of.of === "rotation") return { unit: "°", factor: 1 };
  const meters = of.take.info.millimetresPerUnit / 1000;
  return { unit: ` ${unit.value}`, factor: meters / metersOf(unit.value) };
}

/** What the curve is at the moment that is seen; nothing where its take has none. */
export function curveTexts(of: Curve): (string | null)[] {
  const meters = of.take.info.millimetresPerUnit / 1000;
  return valuesAt(of.columns, frameOf(of.take)).map((value) => {
    if (value === null) return null;
    const number = of.of === "rotation" ? value.toFixed(2) : lengthText(value * meters, unit.value);
    return number + shownLength(of).unit;
  });
}

let asked = 0;

async function fetchCurve(take: Take, object: number, of: CurveOf): Promise<void> {
  const number = ++asked;
  try {
    const values = take.nodes
      ? objectValues(take.tracks, take.info.objects.length, object)
      : await askCurve(take, object, of);
    if (number === asked) curve.value = { take, object, of, columns: curveColumns(values) };
  } catch (reason) {
    if (number === asked) notifyFailure("There are no curves", reason);
  }
}

effect(() => {
  const chosen = lastSelected.value;
  const take = chosen && takeByKey(chosen.take);
  const wanted = curveOf.value;
  if (!chosen || !take) {
    asked += 1;
    curve.value = null;
  } else if (bottomTab.value === "curves") {
    const of = curvesOf(take).includes(wanted) ? wanted : "position";
    const there = curve.peek();
    if (there?.take === take && there.object === chosen.object && there.of === of) return;
    void fetchCurve(take, chosen.object, of);
  }
});
