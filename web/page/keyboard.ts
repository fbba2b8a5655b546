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

export function listenToKeys(): void {
  addEventListener("keydown", (event) => {
    if (event.defaultPrevented || document.querySelector("dialog[open]")) return;
    if (typesText(event.target)) {
      if (event.key === "Escape") (event.target as HTMLElement).blur();
      return;
    }
    if (pressesTarget(event)) return;
    const command = commandOf(event);
    if (!command) return;
    event.preventDefault();
    COMMANDS[command]();
  });
}
