/** Calls `moved` for each move of the pointer that was pressed on `element`, until it is let go. */
export function followPointer(
  element: HTMLElement,
  pressed: PointerEvent,
  moved: (event: PointerEvent) => void,
): void {
  element.setPointerCapture(pressed.pointerId);
  element.addEventListener("pointermove", moved);
  element.addEventListener(
    "lostpointercapture",
    () => element.removeEventListener("pointermove", moved),
    { once: true },
  );
}
