// The page's side of the desk.

import type { DeskAnswer, DeskOrder, Did, StoredValue, Told } from "./desk_protocol";

export class Desk {
  private readonly worker: Worker;
  private readonly listeners: ((told: Told) => void)[] = [];

  /** `workerUrl` is the worker's script, `module` the core; the plug-in finds `settings`. */
  constructor(workerUrl: string, module: WebAssembly.Module, settings: StoredValue[] = []) {
    this.worker = new Worker(workerUrl);
    this.worker.onmessage = ({ data }: MessageEvent<DeskAnswer>) => this.tell(data.told);
    this.worker.onerror = (event) => this.tell({ tell: "failed", words: event.message });
    this.post({ do: "start-desk", module, settings });
  }

  /** Puts a file on the desk, under a name that is told in what is done from then on. */
  put(path: string, file: Blob): void {
    this.post({ do: "put", path, file });
  }

  /** Takes a file off the desk, if it is there. */
  remove(path: string): void {
    this.post({ do: "remove", path });
  }

  /** What the person does; it is done after what was done before. */
  do(did: Did): void {
    this.post({ do: "did", did });
  }

  onTold(listener: (told: Told) => void): void {
    this.listeners.push(listener);
  }

  /** Ends the desk for good, with all that is on it. */
  end(): void {
    this.worker.terminate();
  }

  private post(order: DeskOrder): void {
    this.worker.postMessage(order);
  }

  private tell(told: Told): void {
    for (const listener of this.listeners) listener(told);
  }
}
