import * as desk from "../../page/state/desk";
import { keep, stored } from "../../page/state/kept_settings";
import { notices } from "../../page/state/notices";
import { activeKey, addTake, takes } from "../../page/state/takes";
import * as time from "../../page/state/time";
import * as work from "../../page/state/work";
import type { Did, SceneNode, ShownScene, StoredValue, Told } from "../../worker/desk_protocol";
import type { TakeInfo } from "../../worker/protocol";

/** A desk that does nothing: it is told what to tell. */
export class StandIn implements desk.DeskApi {
  readonly done: Did[] = [];
  readonly files: string[] = [];
  readonly removed: string[] = [];
  ended = false;
  private listener: (told: Told) => void = () => {};

  constructor(readonly settings: StoredValue[]) {}

  put(path: string): void {
    this.files.push(path);
  }

  remove(path: string): void {
    this.removed.push(path);
  }

  do(did: Did): void {
    this.done.push(did);
  }

  onTold(listener: (told: Told) => void): void {
    this.listener = listener;
  }

  end(): void {
    this.ended = true;
  }

  tell(...tellings: Told[]): void {
    for (const told of tellings) this.listener(told);
  }

  last<Kind extends Did["did"]>(kind: Kind): Extract<Did, { did: Kind }> | undefined {
    return this.done.filter(({ did }) => did === kind).pop() as never;
  }
}

export let stands: StandIn[] = [];
/** What was handed out, the names of each time. */
export const handedOut: string[][] = [];

export const current = (): StandIn => stands[stands.length - 1];

/** Begins to work at a new desk, with nothing open. */
export async function sitDown(): Promise<void> {
  stands = [];
  handedOut.length = 0;
  notices.value = [];
  takes.value = [];
  activeKey.value = 0;
  work.setWorking(false);
  time.clearSpan();
  keep.value = false;
  stored.value = [];
  desk.useDesks(
    async (settings) => {
      stands.push(new StandIn(settings));
      return current();
    },
    (files) => void handedOut.push(files.map(({ name }) => name)),
  );
  await desk.beginAnew();
  work.setWorking(true);
  current().tell({ tell: "idle" });
}

export function node(number: number, name: string): SceneNode {
  return { node: number, name, parent: 0, kind: "marker", color: [204, 51, 51], size: 1 };
}

export function sceneOf(...nodes: SceneNode[]): ShownScene {
  const numbers = () => new Float32Array(nodes.length * 3 * 10);
  const rest = { firstFrame: 0, step: 1, frames: 10, rate: 60, millimetresPerUnit: 1 };
  return { nodes, positions: numbers(), ends: numbers(), ...rest };
}

export function openFile(name: string, frames = 100, path = name) {
  const info = { name, path, frames, firstFrame: 1, rate: 60, objects: ["a"] };
  const take = addTake(
    { ...info, gaps: new Int32Array() } as unknown as TakeInfo,
    { positions: new Float32Array() },
    new Blob([name]),
  );
  return take;
}
