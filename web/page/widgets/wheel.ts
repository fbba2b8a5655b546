import type { RefObject } from "preact";
import { useEffect } from "preact/hooks";

/** Listens to the wheel in a way that may keep the page from scrolling. */
export function useWheel(
  element: RefObject<HTMLElement>,
  listener: (event: WheelEvent) => void,
): void {
  useEffect(() => {
    const { current } = element;
    current?.addEventListener("wheel", listener, { passive: false });
    return () => current?.removeEventListener("wheel", listener);
  }, []);
}
