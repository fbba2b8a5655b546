import { signal } from "@preact/signals";
import { isNumberIn, oneOf, setting } from "./settings";

/** How the page is divided; sizes in pixels. */
export const leftWidth = setting("left-width", 240, isNumberIn(160, 600));
export const rightWidth = setting("right-width", 300, isNumberIn(180, 700));
export const bottomHeight = setting("bottom-height", 250, isNumberIn(110, 800));
export const namesWidth = setting("names-width", 130, isNumberIn(60, 400));
export type BottomTab = "tracks" | "curves";
export const bottomTab = setting<BottomTab>(
  "bottom-tab",
  "tracks",
  oneOf<BottomTab>("tracks", "curves"),
);
export const keysShown = signal(false);
export const settingsShown = signal(false);
export const workWidth = setting("work-width", 430, isNumberIn(300, 800));
