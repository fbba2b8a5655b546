import { batch, computed, signal } from "@preact/signals";
import type { Color, ShownScene } from "../../worker/desk_protocol";
import { indexGaps } from "../logic/gaps";
import { sceneInfo, sceneTracks } from "../logic/scene_take";
import { scene, SCENE_KEY, working, type Take } from "./takes";
import { FIRST_PLACE, forgetPlaceInScene, returnTo, timePlace } from "./time";

/** The scene of the desk, which is seen as takes are. */

function colorsOf({ nodes }: ShownScene): Float32Array {
  return Float32Array.from(nodes.flatMap(({ color }) => color.map((part) => part / 255)));
}

function takeOf(shown: ShownScene): Take {
  const info = sceneInfo(shown);
  return {
    key: SCENE_KEY,
    info,
    number: 1,
    tracks: sceneTracks(shown),
    gaps: indexGaps(info.gaps, info.objects.length),
    color: 0,
    offset: signal(0),
    shown: signal(true),
    file: new Blob(),
    nodes: shown.nodes,
    colors: signal(colorsOf(shown)),
  };
}

export const objectOfNode = computed(
  () => new Map(scene.value?.nodes?.map(({ node }, object) => [node, object])),
);

export function nodeOf(object: number): number {
  return scene.value?.nodes?.[object]?.node ?? 0;
}

/** Frames per second of the scene, of one without nodes, too; nothing before it is told. */
export const sceneRate = signal<number | null>(null);

/** Shows the scene, at the frame that is shown as far as it has that, and as closely while it is as long. */
export function showScene(shown: ShownScene | null): void {
  const isEmpty = !shown || shown.nodes.length === 0;
  const place = scene.value ? timePlace() : FIRST_PLACE;
  const framesBefore = scene.value?.info.frames;
  batch(() => {
    sceneRate.value = shown?.rate ?? null;
    scene.value = isEmpty ? null : takeOf(shown);
    if (isEmpty) forgetPlaceInScene();
    else if (working.value && shown.frames !== framesBefore) returnTo(place);
  });
}

export function paintScene(changed: readonly { node: number; color: Color }[]): void {
  const colors = scene.value?.colors;
  if (!colors) return;
  const next = colors.value.slice();
  for (const { node, color } of changed) {
    const object = objectOfNode.value.get(node);
    if (object !== undefined) next.set(color.map((part) => part / 255), object * 3);
  }
  colors.value = next;
}
