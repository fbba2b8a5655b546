import type { Command } from "./logic/key_map";
import { neighborGap } from "./logic/gaps";
import { openChosen } from "./panels/header";
import { SEARCH_ID } from "./panels/objects_panel";
import { keysShown } from "./state/layout";
import { deselect, lastSelected } from "./state/selection";
import { activeTake } from "./state/takes";
import * as time from "./state/time";
import { takeSuggestion } from "./state/work";
import { follow, labels, nextTrails, toggleProjection } from "./state/view_options";
import { stage } from "./viewport/current_stage";

/** What the keys do. */

const ORBIT_DEGREES = 15;

function goToGap(direction: 1 | -1): void {
  const take = activeTake.value;
  const object = lastSelected.value;
  if (!take || object?.take !== take.key) return;
  const there = neighborGap(take.gaps, object.object, time.frame.value, direction);
  if (there !== null) time.jumpTo(there);
}

export const COMMANDS: Readonly<Record<Command, () => void>> = {
  "toggle-play": time.togglePlay,
  "play-backward": () => time.shuttleTo(-1),
  stop: time.stop,
  "play-forward": () => time.shuttleTo(1),
  "previous-frame": () => time.jumpTo(time.frame.value - 1),
  "next-frame": () => time.jumpTo(time.frame.value + 1),
  "back-ten": () => time.jumpTo(time.frame.value - 10),
  "forward-ten": () => time.jumpTo(time.frame.value + 10),
  "first-frame": time.goToStart,
  "last-frame": time.goToEnd,
  "set-in": time.setIn,
  "set-out": time.setOut,
  "clear-span": time.clearSpan,
  "toggle-loop": () => (time.loop.value = !time.loop.value),
  "previous-gap": () => goToGap(-1),
  "next-gap": () => goToGap(1),
  "zoom-in": () => time.zoomTimeline(1.5),
  "zoom-out": () => time.zoomTimeline(1 / 1.5),
  fit: () => stage.value?.fit(),
  follow: () => (follow.value = !follow.value),
  projection: toggleProjection,
  labels: () => (labels.value = !labels.value),
  trails: nextTrails,
  "view-front": () => stage.value?.eye.lookFrom("front"),
  "view-side": () => stage.value?.eye.lookFrom("side"),
  "view-top": () => stage.value?.eye.lookFrom("top"),
  "orbit-left": () => stage.value?.eye.orbit(-ORBIT_DEGREES, 0),
  "orbit-right": () => stage.value?.eye.orbit(ORBIT_DEGREES, 0),
  "orbit-up": () => stage.value?.eye.orbit(0, ORBIT_DEGREES),
  "orbit-down": () => stage.value?.eye.orbit(0, -ORBIT_DEGREES),
  "view-closer": () => stage.value?.eye.zoom(1.25),
  "view-wider": () => stage.value?.eye.zoom(1 / 1.25),
  deselect,
  "take-suggestion": takeSuggestion,
  search: () => document.getElementById(SEARCH_ID)?.focus(),
  open: openChosen,
  keys: () => (keysShown.value = true),
};
