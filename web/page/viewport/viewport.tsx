import { computed } from "@preact/signals";
import { useEffect, useRef } from "preact/hooks";
import { counted, countedObjects } from "../logic/counted";
import { notify, wordsOf } from "../state/notices";
import { asked, picking, pickMode, pickNode, tell } from "../state/desk";
import { nodeOf } from "../state/scene";
import { deselect, hovered, isSame, select, type ObjectReference } from "../state/selection";
import { activeTake, areSeveral, scene, seenTakes, takeByKey, working } from "../state/takes";
import { activate, frame } from "../state/time";
import { stage } from "./current_stage";
import { drawnCount, Stage } from "./stage";
import { Readout } from "./readout";
import { ViewBar } from "./view_bar";

/** The view of the scene, with what is laid over it. */

const STILL_PIXELS = 5;

/** Keys are for the view once it is there, which nobody asked to be told by a frame around it. */
const QUIETLY: FocusOptions & { focusVisible: boolean } = {
  preventScroll: true,
  focusVisible: false,
};

function begin(canvas: HTMLCanvasElement, overlay: HTMLCanvasElement): Stage | null {
  try {
    return new Stage(canvas, overlay);
  } catch (reason) {
    notify("error", "This browser does not show the view", `It needs WebGL 2. ${wordsOf(reason)}`);
    return null;
  }
}

function placeIn(canvas: HTMLElement, event: PointerEvent): [number, number] {
  const box = canvas.getBoundingClientRect();
  return [event.clientX - box.left, event.clientY - box.top];
}

function isPickable({ object }: ObjectReference): boolean {
  return pickMode.value.pickable.has(nodeOf(object));
}

function choose(canvas: HTMLElement, event: PointerEvent): void {
  const picked = stage.value?.pick(...placeIn(canvas, event)) ?? null;
  if (picking.value) {
    pickNode(picked ? nodeOf(picked.object) : 0);
    return;
  }
  const extend = event.ctrlKey || event.metaKey || event.shiftKey;
  if (!picked) {
    if (!extend) deselect();
    return;
  }
  const take = takeByKey(picked.take);
  if (!take) return;
  activate(take);
  select(take, picked.object, extend);
}

/** Tells clicks from drags, and what lies under the pointer. */
function watchPointer(canvas: HTMLElement): () => void {
  let down: { x: number; y: number; button: number } | null = null;
  const onDown = (event: PointerEvent): void => {
    const { clientX: x, clientY: y, button } = event;
    down = event.isPrimary && (button === 0 || button === 2) ? { x, y, button } : null;
  };
  const onUp = (event: PointerEvent): void => {
    const moved = down ? Math.hypot(event.clientX - down.x, event.clientY - down.y) : Infinity;
    if (moved < STILL_PIXELS && down?.button === 0) choose(canvas, event);
    if (moved < STILL_PIXELS && down?.button === 2 && picking.value) {
      tell({ did: "right-click" });
    }
    down = null;
  };
  const onMove = (event: PointerEvent): void => {
    if (event.pointerType !== "mouse" || event.buttons !== 0) return;
    const over = stage.value?.pick(...placeIn(canvas, event)) ?? null;
    if (!isSame(over, hovered.value)) hovered.value = over;
    canvas.dataset.over = over ? String(over.object) : "";
    canvas.classList.toggle("over", over !== null && (!picking.value || isPickable(over)));
  };
  const onLeave = (): void => void (hovered.value = null);
  const stop = new AbortController();
  const { signal: ended } = stop;
  canvas.addEventListener("pointerdown", onDown, { signal: ended });
  canvas.addEventListener("pointerup", onUp, { signal: ended });
  canvas.addEventListener("pointermove", onMove, { signal: ended });
  canvas.addEventListener("pointerleave", onLeave, { signal: ended });
  return () => stop.abort();
}

export function Viewport() {
  const frameElement = useRef<HTMLDivElement>(null);
  const canvas = useRef<HTMLCanvasElement>(null);
  const overlay = useRef<HTMLCanvasElement>(null);
  useEffect(() => {
    const started = begin(canvas.current!, overlay.current!);
    if (!started) return undefined;
    stage.value = started;
    canvas.current!.focus(QUIETLY);
    const unwatch = watchPointer(canvas.current!);
    const observer = new ResizeObserver(([entry]) =>
      started.resize(entry.contentRect.width, entry.contentRect.height),
    );
    observer.observe(frameElement.current!);
    return () => {
      observer.disconnect();
      unwatch();
      stage.value = null;
      started.dispose();
    };
  }, []);
  return (
    <section class="viewport" aria-label="View">
      <ViewBar />
      <div class="view-frame" ref={frameElement} {...handles()}>
        <canvas
          ref={canvas}
          class={picking.value ? "view-scene picking" : "view-scene"}
          tabIndex={0}
          role="img"
          aria-label={summary()}
        />
        <canvas ref={overlay} class="view-overlay" aria-hidden="true" />
        <Readout />
      </div>
    </section>
  );
}

function handles(): Record<string, string | number | undefined> {
  const objects = seenTakes.value.reduce((sum, take) => sum + take.info.objects.length, 0);
  return {
    "data-view": "",
    "data-frame": frame.value,
    "data-objects": objects,
    "data-drawn": drawnCount.value,
    "data-colors": colorsText.value,
    "data-picking": picking.value ? asked.value : undefined,
  };
}

/** The colors of the nodes, as style sheets write them. */
const colorsText = computed<string | undefined>(() => {
  const colors = scene.value?.colors?.value;
  if (!colors || !working.value) return undefined;
  const parts = Array.from(colors, (part) => Math.round(part * 255));
  const texts = Array.from({ length: parts.length / 3 }, (_, index) =>
    parts.slice(index * 3, index * 3 + 3).join(", "),
  );
  return texts.map((text) => `rgb(${text})`).join(";");
});

function summary(): string {
  const take = activeTake.value;
  if (!take) return "The view: no take is open";
  if (take.nodes) return `The view: ${counted(drawnCount.value, "node")} of the scene seen`;
  const count = drawnCount.value;
  const seen = areSeveral.value ? counted(count, "object") : countedObjects(count, take.info.kind);
  return `The view: ${counted(seenTakes.value.length, "take")} open, ${seen} seen`;
}
