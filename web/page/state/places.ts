import { computed } from "@preact/signals";
import { marksOf } from "../logic/finding_groups";
import { gapCount, neighborGap } from "../logic/gaps";
import { neighborOf, type Direction } from "../logic/take_time";
import { report } from "./findings";
import { selectAll, selectedInActive } from "./selection";
import { activeTake } from "./takes";
import { frame, jumpTo } from "./time";

/** Places in time that one goes to: gaps and findings. */

/** The objects whose gaps are meant: those that are selected, or all. */
const gappy = computed<readonly number[]>(() => {
  const take = activeTake.value;
  if (!take) return [];
  const chosen = [...selectedInActive.value];
  const objects = chosen.length > 0 ? chosen : take.info.objects.map((_, object) => object);
  return objects.filter((object) => gapCount(take.gaps, object) > 0);
});

export const hasGaps = computed(() => gappy.value.length > 0);

/** Goes to where the next gap begins (1), or one before (-1). */
export function goToGap(direction: Direction): void {
  const take = activeTake.value;
  if (!take) return;
  const begins = gappy.value.flatMap(
    (object) => neighborGap(take.gaps, object, frame.value, direction) ?? [],
  );
  const there = neighborOf(begins, frame.value, direction);
  if (there !== null) jumpTo(there);
}

const marks = computed(() => marksOf(report.value?.findings ?? []));

export const hasMarks = computed(() => marks.value.length > 0);

/** Goes to the next frame in which something was found (1), or one before (-1), and selects what has it there. */
export function goToFinding(direction: Direction): void {
  const take = activeTake.value;
  const there = neighborOf(marks.value.map((mark) => mark.frame), frame.value, direction);
  if (!take || there === null) return;
  const found = marks.value.filter((mark) => mark.frame === there);
  const objects = new Set(found.flatMap(({ object }) => object ?? []));
  if (objects.size > 0) selectAll(take, [...objects]);
  jumpTo(there);
}
