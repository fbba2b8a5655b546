import { shown } from "../logic/names";
import { pointAt } from "../logic/tracks";
import { lengthText, stepText } from "../logic/units";
import { hovered, lastSelected } from "../state/selection";
import { activeTake, areSeveral, labelOf, takeByKey } from "../state/takes";
import { frameOf } from "../state/time";
import { grid, unit } from "../state/view_options";
import { floorStep } from "./stage";

/** In the corners of the view: what an object is and where, and how wide the grid is. */
export function Readout() {
  return (
    <>
      <ObjectReadout />
      {grid.value && activeTake.value && (
        <p class="grid-readout">
          Grid {stepText(floorStep.value)} {unit.value}
        </p>
      )}
    </>
  );
}

function ObjectReadout() {
  const reference = hovered.value ?? lastSelected.value;
  const take = reference && takeByKey(reference.take);
  if (!reference || !take) return null;
  const { objects, millimetresPerUnit } = take.info;
  const point = pointAt(take.tracks.positions, objects.length, frameOf(take), reference.object);
  const meters = millimetresPerUnit / 1000;
  const numbers = point?.map((value) => lengthText(value * meters, unit.value));
  return (
    <p class="object-readout">
      <bdi class="name">{shown(objects[reference.object], 80)}</bdi>
      {areSeveral.value && <bdi class="of-take quiet">{labelOf(take, 60)}</bdi>}
      <span class="numbers">
        {numbers ? `${numbers.join("  ")} ${unit.value}` : "no position in this frame"}
      </span>
    </p>
  );
}
