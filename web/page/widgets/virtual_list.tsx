import type { ComponentChild, RefObject } from "preact";
import { useEffect, useRef, useState } from "preact/hooks";
import { scrollToRow, visibleRows } from "../logic/timeline_geometry";

interface VirtualListProperties {
  label: string;
  count: number;
  rowHeight: number;
  /** The row that the arrows move, always in sight; -1: none. */
  current: number;
  move: (row: number, extend: boolean) => void;
  /** What Enter does with the current row, where it does anything. */
  enter?: (row: number) => void;
  row: (index: number, id: string) => ComponentChild;
  id: string;
}

/** A list of any length, of which the rows in sight alone are there. */
export function VirtualList(properties: VirtualListProperties) {
  const { label, count, rowHeight, current, row, id } = properties;
  const box = useRef<HTMLDivElement>(null);
  const [scroll, setScroll] = useState(0);
  const height = useHeight(box);
  useEffect(() => {
    if (current >= 0 && box.current && height > 0) {
      box.current.scrollTop = scrollToRow(current, box.current.scrollTop, height, rowHeight);
    }
  }, [current, count, rowHeight, height > 0]);
  const { first, end } = visibleRows(scroll, height, rowHeight, count);
  const rows = Array.from({ length: end - first }, (_, index) => first + index);
  const inSight = current >= first && current < end;
  return (
    <div
      class="virtual-list"
      role="listbox"
      aria-label={label}
      aria-multiselectable="true"
      aria-activedescendant={inSight ? `${id}-${current}` : undefined}
      tabIndex={0}
      ref={box}
      onScroll={(event) => setScroll(event.currentTarget.scrollTop)}
      onKeyDown={(event) => press(event, properties)}
    >
      <div class="virtual-rows" role="presentation" style={{ height: `${count * rowHeight}px` }}>
        {rows.map((index) => (
          <div
            key={index}
            role="presentation"
            class="virtual-row"
            style={{ top: `${index * rowHeight}px`, height: `${rowHeight}px` }}
          >
            {row(index, `${id}-${index}`)}
          </div>
        ))}
      </div>
    </div>
  );
}

function useHeight(box: RefObject<HTMLElement>): number {
  const [height, setHeight] = useState(0);
  useEffect(() => {
    const observer = new ResizeObserver(([entry]) => setHeight(entry.contentRect.height));
    observer.observe(box.current!);
    return () => observer.disconnect();
  }, []);
  return height;
}

function press(event: KeyboardEvent, properties: VirtualListProperties): void {
  const { count, current, move, enter } = properties;
  if (event.key === "Enter" && enter && current >= 0) {
    if (!event.repeat) enter(current);
    event.preventDefault();
    event.stopPropagation();
  }
  const page = 10;
  const steps: Readonly<Record<string, number>> = {
    ArrowUp: -1,
    ArrowDown: 1,
    PageUp: -page,
    PageDown: page,
  };
  const step = steps[event.key];
  if (step === undefined || count === 0) return;
  const next = current < 0 ? 0 : Math.min(Math.max(current + step, 0), count - 1);
  move(next, event.shiftKey);
  event.preventDefault();
  event.stopPropagation();
}
