import { COMMANDS } from "./commands";
import { commandOf } from "./logic/key_map";

/** Keys work wherever the focus is, but where they have a meaning of their own. */

function typesText(target: EventTarget | null): boolean {
  return (
    target instanceof HTMLTextAreaElement ||
    target instanceof HTMLSelectElement ||
    (target instanceof HTMLInputElement && target.type !== "checkbox")
  );
}

function pressesTarget(event: KeyboardEvent): boolean {
  const { target } = event;
  if (event.key !== " " && event.key !== "Enter") return false;
  return target instanceof Element && target.closest("button, summary, input, a") !== null;
}

/** What Enter agrees to, it agrees to once. */
function isHeld({ key, repeat }: KeyboardEvent): boolean {
  return repeat && key === "Enter";
}

/** Buttons that are clicked do not keep the focus, so that Space plays after a click as before it. */
function keepFocus(): void {
  addEventListener("mousedown", (event) => {
    const { target } = event;
    if (target instanceof Element && target.closest("button, summary, input[type=checkbox]")) {
      event.preventDefault();
    }
  });
}

export function listenToKeys(): void {
  keepFocus();
  addEventListener("keydown", (event) => {
    if (event.defaultPrevented || document.querySelector("dialog[open], [aria-modal=true]")) return;
    if (typesText(event.target)) {
      if (event.key === "Escape") (event.target as HTMLElement).blur();
      return;
    }
    if (pressesTarget(event)) return;
    const command = commandOf(event);
    if (!command) return;
    event.preventDefault();
    if (!isHeld(event)) COMMANDS[command]();
  });
}
