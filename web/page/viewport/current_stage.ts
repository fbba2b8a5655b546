import { signal } from "@preact/signals";
import type { Stage } from "./stage";

/** The stage, while the page shows one. */
export const stage = signal<Stage | null>(null);
