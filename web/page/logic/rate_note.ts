import type { ShownDialog, ToldFinding } from "../../worker/desk_protocol";
import { rateText } from "./units";

/** What is said of a file that the scene would play at another speed. */

const ANIMATION = 1063;
const SET_FRAME_RATE = 1140;

/** The host holds rates as whole ticks a frame. */
const TICKS_PER_SECOND = 4800;

function isSameRate(one: number, other: number): boolean {
  return Math.abs(TICKS_PER_SECOND / one - TICKS_PER_SECOND / other) < 1;
}

function speedText(speed: number): string {
  if (speed === 0.5) return "half speed";
  if (speed === 2) return "double speed";
  return `${rateText(speed)} times its speed`;
}

/** Nothing where the dialog gives the scene the rate of the file, or imports no motion. */
export function rateNote(
  { controls }: ShownDialog,
  fileRate: number,
  sceneRate: number | null,
): ToldFinding | null {
  const isOff = (control: number): boolean =>
    controls.some(({ id, checked }) => id === control && !checked);
  const isKept = isOff(SET_FRAME_RATE) && !isOff(ANIMATION);
  if (!isKept || sceneRate === null || !(fileRate > 0) || isSameRate(fileRate, sceneRate)) return null;
  const text =
    `The file has ${rateText(fileRate)} frames a second, the scene ${rateText(sceneRate)}: ` +
    `it plays at ${speedText(sceneRate / fileRate)} unless "Set Frame Rate" is on.`;
  return { code: "scene-rate-kept", severity: "warning", text };
}
