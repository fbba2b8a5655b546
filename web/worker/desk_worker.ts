// The worker that is a desk: it brings files and what the person does, one after the other.

import { DeskInstance } from "./desk_instance";
import type { DeskAnswer, DeskOrder, Told } from "./desk_protocol";

/** What takes the worker's orders, when the first one begins a desk. */
export function beginDesk(post: (answer: DeskAnswer, transfer: ArrayBuffer[]) => void): (order: DeskOrder) => void {
  const tell = (told: Told, transfer: ArrayBuffer[] = []): void => post({ told }, transfer);
  const fail = (error: unknown): void =>
    tell({ tell: "failed", words: error instanceof Error ? error.message : String(error) });
  // What the core throws behind a sleep has nobody else who catches it.
  globalThis.addEventListener?.("unhandledrejection", ({ reason }) => fail(reason));
  let desk: DeskInstance | undefined;
  // Files may have changed or gone since the page was given them.
  const put = async (path: string, file: Blob): Promise<void> => {
    let bytes: ArrayBuffer;
    try {
      bytes = await file.arrayBuffer();
    } catch {
      return tell({ tell: "unread", path });
    }
    desk?.put(path, new Uint8Array(bytes));
  };
  const carryOut = async (order: DeskOrder): Promise<void> => {
    if (order.do === "start-desk") desk = await DeskInstance.begin(order.module, order.settings, tell);
    else if (order.do === "put") await put(order.path, order.file);
    else if (order.do === "remove") desk?.remove(order.path);
    else desk?.do(order.did);
  };
  let turn = Promise.resolve();
  return (order) => {
    turn = turn.then(() => carryOut(order)).catch(fail);
  };
}
