// Takes that the tests make.

import { readFileSync } from "node:fs";
import path from "node:path";
import { EXAMPLES } from "./workbench.mjs";

export const WALK_HTR = readFileSync(path.join(EXAMPLES, "walk.htr"), "latin1");
export const WALK_TRC = readFileSync(path.join(EXAMPLES, "walk.trc"), "latin1");

export function asFile(name, text) {
  return { name, mimeType: "text/plain", buffer: Buffer.from(text) };
}

/** A marker file with these markers, whose points are those that `pointOf(frame, marker)` gives. */
export function markerFile(markers, frames, pointOf) {
  const lines = [
    "PathFileType\t4\t(X/Y/Z)\ttake.trc",
    "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame\tOrigNumFrames",
    `120\t120\t${frames}\t${markers.length}\tmm\t120\t1\t${frames}`,
    `Frame#\tTime\t${markers.join("\t\t\t")}\t\t`,
    `\t\t${markers.map((_, at) => `X${at + 1}\tY${at + 1}\tZ${at + 1}`).join("\t")}`,
    "",
  ];
  for (let frame = 0; frame < frames; ++frame) {
    const points = markers.map((_, marker) => pointOf(frame, marker).join("\t"));
    lines.push(`${frame + 1}\t${(frame / 120).toFixed(4)}\t${points.join("\t")}`);
  }
  return `${lines.join("\n")}\n`;
}

/** A marker file of about `bytes` bytes: sixty markers on a slow circle. */
export function largeMarkerFile(bytes) {
  const markers = Array.from({ length: 60 }, (_, at) => `Marker${at + 1}`);
  const bytesOfFrame = 2050;
  return markerFile(markers, Math.ceil(bytes / bytesOfFrame), (frame, marker) =>
    [
      1000 * Math.cos(frame / 600) + 100 * (marker % 10),
      200 + 150 * Math.floor(marker / 10),
      1000 * Math.sin(frame / 600) + 60 * (marker % 7),
    ].map((value) => (value + 1e-6 * (marker + 1)).toFixed(6).padStart(10, " ").trim()),
  );
}
