// The page's side of the core: questions go to the worker, which is begun anew when that is the way to end
// something, or to have its memory back.

import { pathFor } from "./file_paths";
import type {
  Action,
  Answer,
  Closed,
  CoreApi,
  CoreFailure,
  CurveOf,
  Description,
  Ending,
  Findings,
  LineText,
  Opened,
  OtherFile,
  Progress,
  Question,
  Request,
  RunResult,
  Tracks,
} from "./protocol";
import { requireRoom } from "./size_limit";

/** Memory that is not worth a new worker, in bytes; and how many times the files' size is too much. */
const HELD_GLADLY = 256e6;
const MOST_TIMES = 8;

interface Call {
  resolve(value: unknown): void;
  reject(failure: Error & CoreFailure): void;
}

interface File {
  path: string;
  file: Blob;
}

function errorFor(failure: CoreFailure): Error & CoreFailure {
  return Object.assign(new Error(failure.message), failure);
}

/** The name, with what tells the program and the plug-in what the file is. */
function nameWithEnding(name: string, ending: Ending): string {
  return name.toLowerCase().endsWith(`.${ending}`) ? name : `${name}.${ending}`;
}

export class Core implements CoreApi {
  private worker: Worker;
  private readonly calls = new Map<number, Call>();
  private readonly files = new Map<number, File>();
  private readonly listeners: ((progress: Progress) => void)[] = [];
  private lastCall = 0;
  private lastTake = 0;
  private isBarShown = false;
  private isCancelAsked = false;

  /** `workerUrl` is the worker's script, `module` the core. */
  constructor(
    private readonly workerUrl: string,
    private readonly module: WebAssembly.Module,
  ) {
    this.worker = this.begin();
    this.start();
  }

  async open(name: string, bytes: ArrayBuffer | Blob): Promise<Opened> {
    const file = bytes instanceof Blob ? bytes : new Blob([bytes]);
    requireRoom(file.size);
    const id = ++this.lastTake;
    this.keep(id, name, file);
    try {
      const ending = (await this.ask({ do: "kind", take: id })) as Ending;
      const path = this.keep(id, nameWithEnding(name, ending), file);
      const asked = await this.ask({ do: "open", take: id });
      const { info, tracks } = asked as { info: Description; tracks: Tracks };
      return { info: { ...info, id, name, path, bytes: file.size }, tracks };
    } catch (failure) {
      this.close(id).catch(() => {});
      throw failure;
    }
  }

  async curve(take: number, object: number, of: CurveOf): Promise<Float64Array> {
    return (await this.ask({ do: "curve", take, object, of })) as Float64Array;
  }

  async findings(take: number, action: Action): Promise<Findings> {
    return (await this.ask({ do: "findings", take, action })) as Findings;
  }

  async line(take: number, line: number, column = 1): Promise<LineText> {
    return (await this.ask({ do: "line", take, line, column })) as LineText;
  }

  async run(verb: string[], takes: number[], others: OtherFile[] = []): Promise<RunResult> {
    return (await this.ask({ do: "run", verb, takes, others })) as RunResult;
  }

  async close(take: number): Promise<void> {
    if (!this.files.delete(take)) return;
    const { held } = (await this.ask({ do: "close", take })) as Closed;
    const needed = [...this.files.values()].reduce((sum, { file }) => sum + file.size, 0);
    const isTooMuch = held > HELD_GLADLY && held > MOST_TIMES * needed;
    if (this.calls.size === 0 && (this.files.size === 0 || isTooMuch)) this.restart();
  }

  onProgress(listener: (progress: Progress) => void): void {
    this.listeners.push(listener);
  }

  cancel(): void {
    if (this.calls.size === 0) return;
    if (!this.isBarShown) {
      this.stop();
    } else if (!this.isCancelAsked) {
      this.isCancelAsked = true;
      this.post({ do: "cancel" });
    }
  }

  /** Ends the worker for good. */
  end(): void {
    this.worker.terminate();
    this.rejectAll();
  }

  /** Has the worker know a take's file by this name, or a path that ends with it. */
  private keep(take: number, name: string, file: Blob): string {
    const others = [...this.files].filter(([id]) => id !== take);
    const path = pathFor(name, others.map(([, other]) => other.path));
    this.files.set(take, { path, file });
    this.post({ do: "keep", take, path, file });
    return path;
  }

  private begin(): Worker {
    const worker = new Worker(this.workerUrl);
    worker.onmessage = ({ data }: MessageEvent<Answer>) => this.take(data);
    worker.onerror = (event) => this.fail(event.message);
    return worker;
  }

  private start(): void {
    this.isBarShown = this.isCancelAsked = false;
    this.post({ do: "start", module: this.module });
    for (const [take, { path, file }] of this.files) this.post({ do: "keep", take, path, file });
  }

  private restart(): void {
    this.worker.terminate();
    this.worker = this.begin();
    this.start();
  }

  private stop(): void {
    this.restart();
    this.rejectAll();
  }

  private rejectAll(): void {
    const calls = [...this.calls.values()];
    this.calls.clear();
    for (const call of calls) call.reject(errorFor({ name: "Cancelled", message: "Cancelled" }));
  }

  // What no answer could tell: the worker is in no state to go on.
  private fail(message: string): void {
    const calls = [...this.calls.values()];
    this.calls.clear();
    this.restart();
    for (const call of calls) call.reject(errorFor({ name: "CoreError", message }));
  }

  private post(request: Request): void {
    this.worker.postMessage(request);
  }

  private ask(question: Question): Promise<unknown> {
    const call = ++this.lastCall;
    return new Promise((resolve, reject) => {
      this.calls.set(call, { resolve, reject });
      this.post({ ...question, call });
    });
  }

  private take(answer: Answer): void {
    if ("progress" in answer) {
      this.isBarShown = true;
      for (const listener of this.listeners) listener(answer.progress);
    } else if ("barOver" in answer) {
      this.isBarShown = false;
      if (this.isCancelAsked && !answer.cancelTaken) this.stop();
      this.isCancelAsked = false;
    } else {
      const call = this.calls.get(answer.call);
      this.calls.delete(answer.call);
      if ("failure" in answer) call?.reject(errorFor(answer.failure));
      else call?.resolve(answer.value);
    }
  }
}
