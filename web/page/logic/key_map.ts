/** Which key does what; the list that `?` shows is made of the same table. */

export type Command =
  | "toggle-play"
  | "play-backward"
  | "stop"
  | "play-forward"
  | "previous-frame"
  | "next-frame"
  | "back-ten"
  | "forward-ten"
  | "first-frame"
  | "last-frame"
  | "set-in"
  | "set-out"
  | "clear-span"
  | "toggle-loop"
  | "previous-gap"
  | "next-gap"
  | "previous-finding"
  | "next-finding"
  | "timeline-back"
  | "timeline-on"
  | "fit"
  | "follow"
  | "projection"
  | "labels"
  | "trails"
  | "zoom-in"
  | "zoom-out"
  | "view-front"
  | "view-side"
  | "view-top"
  | "orbit-left"
  | "orbit-right"
  | "orbit-up"
  | "orbit-down"
  | "view-closer"
  | "view-wider"
  | "shift-left"
  | "shift-right"
  | "shift-up"
  | "shift-down"
  | "deselect"
  | "search"
  | "take-suggestion"
  | "open"
  | "keys";

export interface KeyPress {
  key: string;
  shiftKey: boolean;
  ctrlKey: boolean;
  metaKey: boolean;
  altKey: boolean;
}

export interface Binding {
  command: Command;
  /** As `KeyboardEvent.key` gives it, letters small; with `Shift+` or `Ctrl+` before. */
  keys: readonly string[];
  what: string;
}

export interface Section {
  title: string;
  bindings: readonly Binding[];
}

export const SECTIONS: readonly Section[] = [
  {
    title: "Time",
    bindings: [
      { command: "toggle-play", keys: [" "], what: "Play or stop" },
      { command: "play-backward", keys: ["j"], what: "Play backward; again: faster" },
      { command: "stop", keys: ["k"], what: "Stop" },
      { command: "play-forward", keys: ["l"], what: "Play forward; again: faster" },
      { command: "previous-frame", keys: ["ArrowLeft", ","], what: "One frame back" },
      { command: "next-frame", keys: ["ArrowRight", "."], what: "One frame on" },
      { command: "back-ten", keys: ["Shift+ArrowLeft"], what: "Ten frames back" },
      { command: "forward-ten", keys: ["Shift+ArrowRight"], what: "Ten frames on" },
      { command: "first-frame", keys: ["Home"], what: "To the first frame, or the in point" },
      { command: "last-frame", keys: ["End"], what: "To the last frame, or the out point" },
      { command: "set-in", keys: ["i"], what: "In point here" },
      { command: "set-out", keys: ["o"], what: "Out point here" },
      { command: "clear-span", keys: ["x"], what: "No in and out points" },
      { command: "toggle-loop", keys: ["r"], what: "Loop or play once" },
      { command: "previous-gap", keys: ["["], what: "To the gap before, of what is selected or of all" },
      { command: "next-gap", keys: ["]"], what: "To the next gap, of what is selected or of all" },
      { command: "previous-finding", keys: ["q"], what: "To the finding before" },
      { command: "next-finding", keys: ["e"], what: "To the next finding" },
      { command: "zoom-in", keys: ["+", "="], what: "Timeline closer" },
      { command: "zoom-out", keys: ["-"], what: "Timeline wider" },
      { command: "timeline-back", keys: ["Ctrl+ArrowLeft"], what: "Timeline back" },
      { command: "timeline-on", keys: ["Ctrl+ArrowRight"], what: "Timeline on" },
    ],
  },
  {
    title: "View",
    bindings: [
      { command: "fit", keys: ["f"], what: "Fit the view to what is selected, or to all" },
      { command: "follow", keys: ["t"], what: "Follow what is selected, or all" },
      { command: "projection", keys: ["p"], what: "Perspective or orthogonal" },
      { command: "labels", keys: ["n"], what: "Show names" },
      { command: "trails", keys: ["m"], what: "Trails: none, of what is selected, of all" },
      { command: "view-front", keys: ["1"], what: "From the front" },
      { command: "view-side", keys: ["3"], what: "From the side" },
      { command: "view-top", keys: ["7"], what: "From above" },
      { command: "orbit-left", keys: ["4"], what: "Around to the left" },
      { command: "orbit-right", keys: ["6"], what: "Around to the right" },
      { command: "orbit-up", keys: ["8"], what: "Around, higher" },
      { command: "orbit-down", keys: ["2"], what: "Around, lower" },
      { command: "view-closer", keys: ["PageUp"], what: "Closer" },
      { command: "view-wider", keys: ["PageDown"], what: "Farther away" },
      { command: "shift-left", keys: ["a"], what: "Shift to the left" },
      { command: "shift-right", keys: ["d"], what: "Shift to the right" },
      { command: "shift-up", keys: ["w"], what: "Shift up" },
      { command: "shift-down", keys: ["s"], what: "Shift down" },
    ],
  },
  {
    title: "Page",
    bindings: [
      { command: "open", keys: ["Ctrl+o"], what: "Open files" },
      { command: "search", keys: ["/"], what: "Search for a name" },
      { command: "take-suggestion", keys: ["Enter"], what: "Pick the marker that is suggested, or in the list" },
      { command: "deselect", keys: ["Escape"], what: "Select nothing" },
      { command: "keys", keys: ["?"], what: "Show these keys" },
    ],
  },
];

function pressed(press: KeyPress): string {
  const key = press.key.length === 1 ? press.key.toLowerCase() : press.key;
  const shift = press.shiftKey && press.key.length > 1 ? "Shift+" : "";
  return `${press.ctrlKey || press.metaKey ? "Ctrl+" : ""}${shift}${key}`;
}

const COMMANDS = new Map(
  SECTIONS.flatMap((section) =>
    section.bindings.flatMap((binding) =>
      binding.keys.map((key) => [key, binding.command] as const),
    ),
  ),
);

export function commandOf(press: KeyPress): Command | null {
  // Brackets are written with Option, or with AltGr, which is Ctrl and Alt, on many keyboards.
  if (press.altKey && !["[", "]"].includes(press.key)) return null;
  if (press.altKey) return COMMANDS.get(press.key) ?? null;
  return COMMANDS.get(pressed(press)) ?? null;
}

const SHOWN: Readonly<Record<string, string>> = {
  " ": "Space",
  ArrowLeft: "←",
  ArrowRight: "→",
  Escape: "Esc",
};

export function keyText(key: string): string {
  const [, held = "", last] = /^(?:(.+)\+)?(.+)$/.exec(key) ?? ["", "", key];
  const text = SHOWN[last] ?? (last.length === 1 ? last.toUpperCase() : last);
  return held ? `${held} ${text}` : text;
}

/** What a command does and its key, as buttons tell it. */
export function titleOf(command: Command): string {
  const binding = SECTIONS.flatMap(({ bindings }) => bindings).find((each) => each.command === command);
  return binding ? `${binding.what} (${keyText(binding.keys[0])})` : "";
}
