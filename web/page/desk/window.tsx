import type { ComponentChildren } from "preact";
import { useId, useLayoutEffect, useRef } from "preact/hooks";

/** A modal window over the page: it keeps the focus, and Esc and its cross say that somebody wants to leave it. */

interface WindowProperties {
  title: string;
  close: () => void;
  /** Whether it has a cross; Esc closes without one, too. */
  cross?: boolean;
  /** Whether its text is to be read at once. */
  alert?: boolean;
  children: ComponentChildren;
}

const FOCUSABLE = "input:not(:disabled):not([readonly]), select:not(:disabled), button:not(:disabled)";

function focusables(root: HTMLElement): HTMLElement[] {
  const all = [...root.querySelectorAll<HTMLElement>(FOCUSABLE)];
  return all.filter((element) => element.offsetParent !== null);
}

/** The first control, but not the cross. */
function focusFirst(root: HTMLElement): void {
  const body = root.querySelector<HTMLElement>(".window-body") ?? root;
  const [first] = focusables(body);
  const checked = body.querySelector<HTMLElement>("input[type=radio]:checked:not(:disabled)");
  const target = first?.matches("input[type=radio]") ? (checked ?? first) : first;
  (target ?? root).focus();
}

/** What had the focus has it again, if nothing else does. */
function focusAgain(before: Element | null): void {
  if (document.activeElement === document.body && before instanceof HTMLElement) before.focus();
}

/** A press beside a window leaves the focus in it. */
export function keepFocus(event: MouseEvent): void {
  const { target } = event;
  if (target instanceof Element && !target.closest(".window, .losses")) event.preventDefault();
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
  const { title, close, cross = true, alert = false, children } = properties;
  const text = useId();
  const root = useRef<HTMLDivElement>(null);
  useLayoutEffect(() => {
    const before = document.activeElement;
    focusFirst(root.current!);
    return () => void setTimeout(() => focusAgain(before));
  }, []);
  return (
    <div
      class="window"
      role={alert ? "alertdialog" : "dialog"}
      aria-describedby={alert ? text : undefined}
      aria-modal="true"
      aria-label={title}
      tabIndex={-1}
      ref={root}
      onKeyDown={(event) => press(event, event.currentTarget, close)}
    >
      <div class="window-title">
        <h2>{title}</h2>
        {cross && (
          <button class="icon" aria-label="Close" onClick={close}>
            ×
          </button>
        )}
      </div>
      <div class="window-body" id={text}>{children}</div>
    </div>
  );
}

function press(event: KeyboardEvent, root: HTMLElement, close: () => void): void {
  if (event.key === "Tab") {
    keepWithin(event, root);
  } else if (event.key === "Escape") {
    close();
    event.preventDefault();
    event.stopPropagation();
  }
}

/** After the last control comes the first. */
function keepWithin(event: KeyboardEvent, root: HTMLElement): void {
  const all = focusables(root);
  const [from, to] = event.shiftKey ? [all[0], all[all.length - 1]] : [all[all.length - 1], all[0]];
  if (document.activeElement !== from) return;
  to?.focus();
  event.preventDefault();
}
