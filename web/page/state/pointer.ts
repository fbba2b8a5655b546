import { signal } from "@preact/signals";

/** Whether fingers point here, which want larger rows. */
const coarse = matchMedia("(pointer: coarse)");

export const coarsePointer = signal(coarse.matches);
coarse.addEventListener("change", () => (coarsePointer.value = coarse.matches));
