import { effect } from "@preact/signals";
import { passTime, playing } from "./time";

/** Lets time pass with the pictures of the screen while it plays. */

const LONGEST_STEP_SECONDS = 0.5;

export function startPlayer(): void {
  let request = 0;
  let before = 0;
  const tick = (now: number): void => {
    passTime(Math.min((now - before) / 1000, LONGEST_STEP_SECONDS));
    before = now;
    if (playing.value) request = requestAnimationFrame(tick);
  };
  effect(() => {
    cancelAnimationFrame(request);
    if (!playing.value) return;
    before = performance.now();
    request = requestAnimationFrame(tick);
  });
}
