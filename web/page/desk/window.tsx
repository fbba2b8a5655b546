import type { ComponentChildren } from "preact";
import { useId, useLayoutEffect, useRef } from "preact/hooks";
import { keepFocus, keepWithin, stopsIn } from "./stops";

/** A modal window over the page: it keeps the focus, and Esc and its cross say that somebody wants to leave it. */

interface WindowProperties {
  title: string;
  close: () => void;
  /** Whether it has a cross; Esc closes without one, too. */
  cross?: boolean;
  /** Whether its text is to be read at once. */
  alert?: boolean;
  /** What is told beside it, and belongs to it. */
  beside?: ComponentChildren;
  /** What further keys do, wherever in it the focus is. */
  press?: (event: KeyboardEvent) => void;
  children: ComponentChildren;
}

/** The first control, but not the cross. */
function focusFirst(root: HTMLElement): void {
  const body = root.querySelector<HTMLElement>(".window-body") ?? root;
  (stopsIn(body)[0] ?? root).focus();
}

/** What had the focus has it again, if nothing else does. */
function focusAgain(before: Element | null): void {
  if (document.activeElement === document.body && before instanceof HTMLElement) before.focus();
}

/** Lies over the page, beneath a window of the page itself. */
export function Veil({ children }: { children: ComponentChildren }) {
  return (
    <div class="modal-layer shown" onMouseDown={keepFocus}>
      {children}
    </div>
  );
}

export function Window(properties: WindowProperties) {
  const { title, close, cross = true, alert = false, beside, children } = properties;
  const text = useId();
  const root = useRef<HTMLDivElement>(null);
  useLayoutEffect(() => {
    const before = document.activeElement;
    focusFirst(root.current!);
    return () => void setTimeout(() => focusAgain(before));
  }, []);
  return (
    <div class="window-place" onKeyDown={(event) => press(event, properties)}>
      <div
        class="window"
        role={alert ? "alertdialog" : "dialog"}
        aria-describedby={alert ? text : undefined}
        aria-modal="true"
        aria-label={title}
        tabIndex={-1}
        ref={root}
      >
        <div class="window-title">
          <h2>{title}</h2>
          {cross && (
            <button class="icon" aria-label="Close" onClick={close}>
              ×
            </button>
          )}
        </div>
        <div class="window-body" id={text}>
          {children}
        </div>
      </div>
      {beside}
    </div>
  );
}

function press(
  event: KeyboardEvent & { currentTarget: HTMLElement },
  { close, press: further }: WindowProperties,
): void {
  if (event.key === "Tab") {
    keepWithin(event, event.currentTarget);
  } else if (event.key === "Escape") {
    close();
    event.preventDefault();
    event.stopPropagation();
  } else {
    further?.(event);
  }
}
