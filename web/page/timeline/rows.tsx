import { effect, signal } from "@preact/signals";
import { useEffect, useRef } from "preact/hooks";
import { countedObjects } from "../logic/counted";
import { scrollToRow } from "../logic/timeline_geometry";
import { coarsePointer } from "../state/pointer";
import { foundObjects } from "../state/rows";
import { lastSelected, select } from "../state/selection";
import { activeTake, areSeveral, labelOf } from "../state/takes";
import { scrub, wheel } from "./area";
import { drawRows } from "./draw_rows";
import { useDrawing } from "../widgets/drawing";
import { useWheel } from "../widgets/wheel";

/** The rows of the timeline. One canvas holds what is in sight, however many there are. */

const scroll = signal(0);

function rowHeight(): number {
  return coarsePointer.value ? 28 : 19;
}

function choose(event: PointerEvent): void {
  const take = activeTake.value;
  if (!take) return;
  const element = event.currentTarget as HTMLElement;
  const y = event.clientY - element.getBoundingClientRect().top + scroll.value;
  const object = foundObjects.value[Math.floor(y / rowHeight())];
  if (object === undefined) return;
  select(take, object, event.ctrlKey || event.metaKey || event.shiftKey);
}

export function Rows() {
  const box = useRef<HTMLDivElement>(null);
  const canvas = useDrawing((context, width, height) =>
    drawRows(context, width, height, scroll.value, rowHeight()),
  );
  useWheel(canvas, wheel);
  useEffect(() => effect(() => reveal(box.current)), []);
  const total = foundObjects.value.length * rowHeight();
  const take = activeTake.value;
  const rows = countedObjects(foundObjects.value.length, take?.info.kind ?? "markers");
  const whose = take && areSeveral.value ? ` of ${labelOf(take, 80)}` : "";
  return (
    <div
      class="timeline-rows"
      ref={box}
      tabIndex={0}
      role="region"
      aria-label="Rows of the timeline"
      onScroll={(event) => (scroll.value = event.currentTarget.scrollTop)}
    >
      <div class="rows-all" style={{ height: `${total}px` }}>
        <canvas
          ref={canvas}
          class="rows-canvas"
          role="img"
          aria-label={`Frames that hold the ${rows}${whose}`}
          onPointerDown={(event) => {
            choose(event);
            scrub(event);
          }}
        />
      </div>
    </div>
  );
}

function reveal(box: HTMLDivElement | null): void {
  const chosen = lastSelected.value;
  if (!box || !chosen || chosen.take !== activeTake.value?.key) return;
  const row = foundObjects.value.indexOf(chosen.object);
  if (row >= 0) box.scrollTop = scrollToRow(row, box.scrollTop, box.clientHeight, rowHeight());
}
