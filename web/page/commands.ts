import type { Command } from "./logic/key_map";
import { openChosen } from "./panels/header";
import { SEARCH_ID } from "./panels/objects_panel";
import { keysShown } from "./state/layout";
import { goToFinding, goToGap } from "./state/places";
import { deselect } from "./state/selection";
import * as time from "./state/time";
import { takeSuggestion } from "./state/work";
import { follow, labels, nextTrails, toggleProjection } from "./state/view_options";
import { stage } from "./viewport/current_stage";

/** What the keys do. */

const ORBIT_DEGREES = 15;

/** How much of what is seen, of its height or its frames, goes out of sight. */
const VIEW_STEP = 0.1;
const TIMELINE_STEP = 0.25;

function panTimeline(steps: number): void {
  const { first, end } = time.timelineView.value;
  time.panTimeline(steps * TIMELINE_STEP * (end - first));
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
  "previous-finding": () => goToFinding(-1),
  "next-finding": () => goToFinding(1),
  "zoom-in": () => time.zoomTimeline(1.5),
  "zoom-out": () => time.zoomTimeline(1 / 1.5),
  "timeline-back": () => panTimeline(-1),
  "timeline-on": () => panTimeline(1),
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
  "shift-left": () => stage.value?.eye.pan(-VIEW_STEP, 0),
  "shift-right": () => stage.value?.eye.pan(VIEW_STEP, 0),
  "shift-up": () => stage.value?.eye.pan(0, VIEW_STEP),
  "shift-down": () => stage.value?.eye.pan(0, -VIEW_STEP),
  deselect,
  "take-suggestion": takeSuggestion,
  search: () => document.getElementById(SEARCH_ID)?.focus(),
  open: openChosen,
  keys: () => (keysShown.value = true),
};
