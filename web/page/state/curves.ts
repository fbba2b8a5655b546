import { effect, signal } from "@preact/signals";
import type { CurveOf } from "../../worker/protocol";
import { curveColumns, type CurveColumns } from "../logic/curve_columns";
import { askCurve } from "./core";
import { bottomTab } from "./layout";
import { notifyFailure } from "./notices";
import { lastSelected } from "./selection";
import { takeByKey, type Take } from "./takes";

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
  return take.info.kind === "motion" ? ["position", "localPosition", "rotation"] : ["position"];
}

let asked = 0;

async function fetchCurve(take: Take, object: number, of: CurveOf): Promise<void> {
  const number = ++asked;
  try {
    const values = await askCurve(take, object, of);
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
