import type { Signal } from "@preact/signals";
import { followPointer } from "./drag";

interface SplitterProperties {
  label: string;
  size: Signal<number>;
  least: number;
  most: number;
  /** "columns": dragged sideways. */
  between: "columns" | "rows";
  /** Whether the panel whose size it is lies before the splitter. */
  before: boolean;
}

const KEY_STEP = 16;

/** The line between two panels, dragged or moved by arrows. */
export function Splitter({ label, size, least, most, between, before }: SplitterProperties) {
  const sign = before ? 1 : -1;
  const resize = (from: number, by: number): void => {
    size.value = Math.min(Math.max(from + by * sign, least), most);
  };
  const along = (event: PointerEvent): number =>
    between === "columns" ? event.clientX : event.clientY;
  const drag = (event: PointerEvent): void => {
    const begin = along(event);
    const sizeThen = size.value;
    followPointer(event.currentTarget as HTMLElement, event, (moved) =>
      resize(sizeThen, along(moved) - begin),
    );
    event.preventDefault();
  };
  const press = (event: KeyboardEvent): void => {
    const keys = between === "columns" ? ["ArrowLeft", "ArrowRight"] : ["ArrowUp", "ArrowDown"];
    const direction = keys.indexOf(event.key);
    if (direction < 0) return;
    resize(size.value, direction === 0 ? -KEY_STEP : KEY_STEP);
    event.preventDefault();
    event.stopPropagation();
  };
  return (
    <div
      class={`splitter ${between}`}
      role="separator"
      tabIndex={0}
      aria-label={label}
      aria-orientation={between === "columns" ? "vertical" : "horizontal"}
      aria-valuenow={Math.round(size.value)}
      aria-valuemin={least}
      aria-valuemax={most}
      onPointerDown={drag}
      onKeyDown={press}
    />
  );
}
