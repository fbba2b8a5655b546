/** Where the keyboard's focus goes in a dialog or a window: from stop to stop, and never out of what is modal. */

const FOCUSABLE =
  'input:not(:disabled), select:not(:disabled), button:not(:disabled), [tabindex="0"]';

function isRadio(element: Element | null): element is HTMLInputElement {
  return element instanceof HTMLInputElement && element.type === "radio";
}

function areOfOneGroup(one: Element | null, other: Element | null): boolean {
  return isRadio(one) && isRadio(other) && one.name === other.name;
}

/** What Tab stops at: of radio buttons of one group at the checked one, if there is one. */
export function stopsIn(root: HTMLElement): HTMLElement[] {
  const all = [...root.querySelectorAll<HTMLElement>(FOCUSABLE)];
  const seen = all.filter((element) => element.offsetParent !== null);
  const checked = seen.filter((element) => isRadio(element) && element.checked);
  return seen.filter(
    (element) =>
      checked.includes(element) || !checked.some((other) => areOfOneGroup(element, other)),
  );
}

/** After the last stop comes the first, and the other way around. */
export function keepWithin(event: KeyboardEvent, root: HTMLElement): void {
  const stops = stopsIn(root);
  const active = document.activeElement;
  const at = stops.findIndex((stop) => stop === active || areOfOneGroup(stop, active));
  const [from, to] = event.shiftKey ? [0, stops.length - 1] : [stops.length - 1, 0];
  if (at !== from && at !== -1) return;
  stops[to]?.focus();
  event.preventDefault();
}

/** A press on what takes no focus leaves it where it is. */
export function keepFocus(event: MouseEvent): void {
  const { target } = event;
  if (target instanceof Element && !target.closest(FOCUSABLE)) event.preventDefault();
}

/** A control that cannot be used any more hands the focus to the next one that can. */
export function passFocusOn(root: HTMLElement): void {
  const active = document.activeElement;
  if (!active?.matches(":disabled") || !root.contains(active)) return;
  const stops = stopsIn(root);
  const follows = (stop: Node): boolean =>
    (active.compareDocumentPosition(stop) & Node.DOCUMENT_POSITION_FOLLOWING) !== 0;
  (stops.find(follows) ?? stops[0])?.focus();
}
