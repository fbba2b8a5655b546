import type { ShownScene } from "../../worker/desk_protocol";
import type { TakeInfo, Tracks } from "../../worker/protocol";
import { counted } from "./counted";
import { emptyBox, enclose, isEmpty } from "./tracks";
import { rateText } from "./units";

/** The scene of the desk as the page shows takes: its nodes are the objects. */

function gapsOf(positions: Float32Array, objects: number, frames: number): Int32Array {
  const gaps: number[] = [];
  for (let object = 0; object < objects; ++object) {
    let first = -1;
    for (let frame = 0; frame <= frames; ++frame) {
      const isGap = frame < frames && Number.isNaN(positions[(frame * objects + object) * 3]);
      if (isGap && first < 0) first = frame;
      if (isGap || first < 0) continue;
      gaps.push(object, first, frame - 1);
      first = -1;
    }
  }
  return Int32Array.from(gaps);
}

function coverageOf(gaps: Int32Array, objects: number, frames: number): Float32Array {
  const coverage = new Float32Array(objects).fill(1);
  for (let at = 0; at < gaps.length; at += 3) {
    coverage[gaps[at]] -= (gaps[at + 2] - gaps[at + 1] + 1) / Math.max(frames, 1);
  }
  return coverage;
}

function boxOf(positions: Float32Array): Pick<TakeInfo, "boxMin" | "boxMax"> {
  const box = emptyBox();
  for (let at = 0; at + 2 < positions.length; at += 3) {
    enclose(box, positions[at], positions[at + 1], positions[at + 2]);
  }
  if (isEmpty(box)) return { boxMin: [0, 0, 0], boxMax: [0, 0, 0] };
  return { boxMin: box.min, boxMax: box.max };
}

/** Bones are joined to the bones above them; what hangs from a group is not. */
function parentsOf({ nodes }: ShownScene): number[] {
  const places = new Map(nodes.map(({ node }, index) => [node, index]));
  return nodes.map(({ parent }) => places.get(parent) ?? -1);
}

export function sceneInfo(scene: ShownScene): TakeInfo {
  const { nodes, frames, positions } = scene;
  const gaps = gapsOf(positions, nodes.length, frames);
  return {
    id: 0,
    kind: nodes.some(({ kind }) => kind === "bone") ? "motion" : "markers",
    name: "Scene",
    path: "",
    bytes: 0,
    objects: nodes.map(({ name }) => name),
    parents: parentsOf(scene),
    frames,
    firstFrame: scene.firstFrame,
    frameStep: scene.step,
    rate: scene.rate / scene.step,
    rateText: String(scene.rate),
    rateTaken: scene.rate / scene.step,
    unit: "mm",
    millimetresPerUnit: scene.millimetresPerUnit,
    upAxis: "z",
    coverage: coverageOf(gaps, nodes.length, frames),
    gaps,
    ...boxOf(positions),
  };
}

/** How much is in a scene, and over which time it plays. */
export function sceneText({ objects, rate, firstFrame, frameStep = 1, frames }: TakeInfo): string {
  const nodes = counted(objects.length, "node");
  if (frames < 1) return nodes;
  const last = firstFrame + (frames - 1) * frameStep;
  return `${nodes}, ${rateText(rate * frameStep)} fps, frames ${firstFrame} to ${last}`;
}

export function sceneTracks({ positions, ends, nodes }: ShownScene): Tracks {
  const hasBones = nodes.some(({ kind }) => kind === "bone");
  return hasBones ? { positions, ends } : { positions };
}

/** The values of one object, three of each frame. */
export function objectValues(tracks: Tracks, objects: number, object: number): Float64Array {
  const frames = objects > 0 ? tracks.positions.length / objects / 3 : 0;
  const values = new Float64Array(frames * 3);
  for (let frame = 0; frame < frames; ++frame) {
    const at = (frame * objects + object) * 3;
    values.set(tracks.positions.subarray(at, at + 3), frame * 3);
  }
  return values;
}
