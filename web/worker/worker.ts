// The worker that owns the core: it answers one question after the other, and listens for a Cancel meanwhile.

import { CoreError, CoreInstance, type BarWatcher } from "./core_instance";
import type { DeskAnswer, DeskOrder } from "./desk_protocol";
import { beginDesk } from "./desk_worker";
import type { Answer, CoreFailure, OtherFile, Question, Request } from "./protocol";
import { failureForSize } from "./size_limit";
import type { InFile } from "./work_folder";

declare const self: {
  onmessage: ((event: MessageEvent<Request | DeskOrder>) => void) | null;
  postMessage(answer: Answer | DeskAnswer, transfer: ArrayBuffer[]): void;
};

interface Kept {
  path: string;
  file: Blob;
  bytes?: Uint8Array<ArrayBuffer>;
}

interface Reply {
  value: unknown;
  transfer: ArrayBuffer[];
}

let compiled: WebAssembly.Module;
let core: CoreInstance | undefined;
const takes = new Map<number, Kept>();
const opened = new Set<number>();

let cancelAsked = false;
let cancelTaken = false;

const bar: BarWatcher = {
  async show(what, percent) {
    const fraction = Math.min(Math.max(percent / 100, 0), 1);
    self.postMessage({ progress: { what, fraction } }, []);
    await new Promise((resolve) => setTimeout(resolve, 0));
    if (cancelAsked) cancelTaken = true;
    return cancelAsked;
  },
  end() {
    self.postMessage({ barOver: true, cancelTaken }, []);
  },
};

function keptOf(take: number): Kept {
  const kept = takes.get(take);
  if (!kept) throw new CoreError({ message: "No such take is open" });
  return kept;
}

async function fileOf(take: number): Promise<InFile> {
  const kept = keptOf(take);
  kept.bytes ??= new Uint8Array(await kept.file.arrayBuffer());
  return { path: kept.path, bytes: kept.bytes };
}

// The instance that takes are open in; each run has one of its own.
async function theCore(): Promise<CoreInstance> {
  return (core ??= await CoreInstance.make(compiled));
}

async function kindOf(take: number): Promise<Reply> {
  const { path, bytes } = await fileOf(take);
  const instance = await theCore();
  instance.put({ path, bytes });
  try {
    return { value: instance.kindOf(path), transfer: [] };
  } finally {
    instance.remove(path);
  }
}

async function open(take: number): Promise<Reply> {
  const file = await fileOf(take);
  const instance = await theCore();
  instance.put(file);
  const { info, tracks } = instance.open(take, file.path);
  opened.add(take);
  const arrays = [info.coverage, info.gaps, tracks.positions, ...(tracks.ends ? [tracks.ends] : [])];
  return { value: { info, tracks }, transfer: arrays.map(({ buffer }) => buffer as ArrayBuffer) };
}

/** What takes more memory than there is, is told with the size of the file. */
async function sized(take: number, reading: Promise<Reply>): Promise<Reply> {
  try {
    return await reading;
  } catch (error) {
    throw failureForSize(error, keptOf(take).file.size);
  }
}

// Takes of a worker that was begun anew are opened when they are asked about.
async function coreWith(take: number): Promise<CoreInstance> {
  keptOf(take);
  if (!opened.has(take)) await sized(take, open(take));
  return theCore();
}

async function close(take: number): Promise<Reply> {
  const kept = keptOf(take);
  if (opened.delete(take) && core) {
    core.close(take);
    core.remove(kept.path);
  }
  takes.delete(take);
  return { value: { held: core?.held ?? 0 }, transfer: [] };
}

async function contentOf({ path, file }: OtherFile): Promise<InFile> {
  return { path, bytes: new Uint8Array(await file.arrayBuffer()) };
}

async function run(verb: string[], inputs: number[], others: OtherFile[]): Promise<Reply> {
  cancelAsked = cancelTaken = false;
  const files = await Promise.all([...inputs.map(fileOf), ...others.map(contentOf)]);
  const instance = await CoreInstance.make(compiled, bar);
  const result = await instance.run(verb, files);
  return { value: result, transfer: result.files.map(({ bytes }) => bytes.buffer) };
}

async function answer(question: Question): Promise<Reply> {
  switch (question.do) {
    case "kind":
      return sized(question.take, kindOf(question.take));
    case "open":
      return sized(question.take, open(question.take));
    case "curve": {
      const { take, object, of } = question;
      const curve = (await coreWith(take)).curve(take, object, of);
      return { value: curve, transfer: [curve.buffer] };
    }
    case "findings":
      return {
        value: (await coreWith(question.take)).findings(question.take, question.action),
        transfer: [],
      };
    case "line":
      return {
        value: (await coreWith(question.take)).line(question.take, question.line, question.column),
        transfer: [],
      };
    case "run":
      return run(question.verb, question.takes, question.others);
    case "close":
      return close(question.take);
  }
}

function failureOf(error: unknown): CoreFailure {
  if (error instanceof CoreError) {
    const { message, code, line, column } = error;
    return { name: "CoreError", message, code, line, column };
  }
  return { name: "CoreError", message: error instanceof Error ? error.message : String(error) };
}

async function reply(request: Question & { call: number }): Promise<void> {
  try {
    const { value, transfer } = await answer(request);
    self.postMessage({ call: request.call, value }, transfer);
  } catch (error) {
    self.postMessage({ call: request.call, failure: failureOf(error) }, []);
  }
}

let turn = Promise.resolve();

function take(request: Request): void {
  if ("call" in request) {
    turn = turn.then(() => reply(request));
  } else if (request.do === "start") {
    compiled = request.module;
  } else if (request.do === "keep") {
    takes.set(request.take, { ...takes.get(request.take), path: request.path, file: request.file });
  } else {
    cancelAsked = true;
  }
}

// The first order says what this worker is.
let takeForDesk: ((order: DeskOrder) => void) | undefined;

self.onmessage = ({ data }) => {
  if (!takeForDesk && "do" in data && data.do === "start-desk") {
    takeForDesk = beginDesk((answer, transfer) => self.postMessage(answer, transfer));
  }
  if (takeForDesk) takeForDesk(data as DeskOrder);
  else take(data as Request);
};
