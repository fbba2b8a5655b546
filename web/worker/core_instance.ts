// One instance of the core: a process of the program, with files in memory.

import createCore, { type CoreModule } from "orvane-core";
import type {
  Action,
  CurveOf,
  Description,
  Ending,
  Findings,
  LineText,
  RunResult,
  Tracks,
} from "./protocol";
import { WorkFolder, type InFile } from "./work_folder";

/** The page's side of the plug-in's progress bar. */
export interface BarWatcher {
  /** Promises whether the user has cancelled. */
  show(what: string, percent: number): Promise<boolean>;
  end(): void;
}

/** Why the core could not do something. */
export class CoreError extends Error {
  override readonly name = "CoreError";
  readonly code?: string;
  readonly line?: number;
  readonly column?: number;

  constructor(failure: { message: string; code?: string; line?: number; column?: number }) {
    super(failure.message);
    Object.assign(this, failure);
  }
}

const CURVES: CurveOf[] = ["position", "localPosition", "rotation"];
const NO_BAR: BarWatcher = { show: () => Promise.resolve(false), end: () => {} };

export class CoreInstance {
  private readonly folder: WorkFolder;

  private constructor(private readonly module: CoreModule) {
    this.folder = new WorkFolder(module);
  }

  static async make(compiled: WebAssembly.Module, bar: BarWatcher = NO_BAR): Promise<CoreInstance> {
    const module = await createCore({
      instantiateWasm(imports, take) {
        void WebAssembly.instantiate(compiled, imports).then((instance) => take(instance, compiled));
        return {};
      },
      showProgress: (what, percent) => bar.show(what, percent),
      endProgress: () => bar.end(),
    });
    return new CoreInstance(module);
  }

  /** Bytes of memory, but for files. */
  get held(): number {
    return this.module.HEAPU8.length;
  }

  put(file: InFile): void {
    this.folder.put(file);
  }

  remove(path: string): void {
    this.folder.remove(path);
  }

  /** What the file is by its first lines, or else by its name. */
  kindOf(path: string): Ending {
    this.withTexts([path], (first) => this.require(this.module._orvane_kind(first)));
    return this.text() as Ending;
  }

  open(id: number, path: string): { info: Description; tracks: Tracks } {
    this.withTexts([path], (first) => this.require(this.module._orvane_open(id, first)));
    const told = JSON.parse(this.text()) as Omit<Description, "coverage" | "gaps">;
    const info = {
      ...told,
      coverage: new Float32Array(this.block(0)),
      gaps: new Int32Array(this.block(1)),
    };
    const tracks: Tracks = { positions: new Float32Array(this.block(2)) };
    if (told.kind === "motion") tracks.ends = new Float32Array(this.block(3));
    this.forget();
    return { info, tracks };
  }

  close(id: number): void {
    this.module._orvane_close(id);
  }

  curve(id: number, object: number, of: CurveOf): Float64Array<ArrayBuffer> {
    this.require(this.module._orvane_curve(id, object, CURVES.indexOf(of)));
    const curve = new Float64Array(this.block(0));
    this.forget();
    return curve;
  }

  findings(id: number, action: Action): Findings {
    this.withTexts([action], (first) => this.require(this.module._orvane_findings(id, first)));
    const told = JSON.parse(this.text()) as Findings;
    this.forget();
    for (const finding of told.findings) {
      const frame = finding.places[0]?.frame;
      if (frame !== undefined) finding.frame = frame;
    }
    return told;
  }

  line(id: number, line: number, column: number): LineText {
    this.require(this.module._orvane_line(id, line, column));
    return JSON.parse(this.text()) as LineText;
  }

  /**
   * Runs the program once; an instance has settings that nobody has changed only before that. The bar is shown
   * after every `pause`, in milliseconds.
   */
  async run(verb: string[], files: InFile[], pause = 50): Promise<RunResult> {
    for (const file of files) this.put(file);
    this.redirect();
    const { address } = this.listOf(verb);
    this.require(await this.sleeping(() => this.module._orvane_run(verb.length, address, pause)));
    this.module._free(address);
    return {
      status: Number(this.text()),
      out: this.stream("/out"),
      err: this.stream("/err"),
      files: this.folder.takeMade(),
    };
  }

  // What the program writes goes to files, in one piece, and it reads nothing.
  private redirect(): void {
    const { FS } = this.module;
    FS.writeFile("/in", new Uint8Array(), { canOwn: true });
    for (const [stream, [path, flags]] of [["/in", "r"], ["/out", "w"], ["/err", "w"]].entries()) {
      FS.close(FS.streams[stream]);
      FS.open(path as string, flags as string);
    }
  }

  private stream(path: string): string {
    return new TextDecoder().decode(this.module.FS.readFile(path));
  }

  private require(result: number): void {
    if (result !== 1) throw new CoreError(JSON.parse(this.text()) as { message: string });
  }

  // Emscripten's own ccall would take any call for the one that sleeps.
  private async sleeping(call: () => number): Promise<number> {
    const { Asyncify } = this.module;
    const slept = Asyncify.currData;
    const result = call();
    return Asyncify.currData && !slept ? Asyncify.whenDone() : result;
  }

  private text(): string {
    const begin = this.module._orvane_text() >>> 0;
    const end = begin + (this.module._orvane_text_size() >>> 0);
    return new TextDecoder().decode(this.module.HEAPU8.subarray(begin, end));
  }

  // A copy: the memory is the core's.
  private block(index: number): ArrayBuffer {
    const begin = this.module._orvane_block(index) >>> 0;
    const end = begin + (this.module._orvane_block_size(index) >>> 0);
    return this.module.HEAPU8.slice(begin, end).buffer;
  }

  private forget(): void {
    this.module._orvane_forget();
  }

  // Calls `use` with the addresses of the texts, which are gone behind it.
  private withTexts(texts: string[], use: (...addresses: number[]) => void): void {
    const { address, pointers } = this.listOf(texts);
    try {
      use(...pointers);
    } finally {
      this.module._free(address);
    }
  }

  // The texts as a list of pointers, to be freed.
  private listOf(texts: string[]): { address: number; pointers: number[] } {
    const encoded = texts.map((text) => new TextEncoder().encode(`${text}\0`));
    const size = encoded.reduce((sum, { length }) => sum + length, 4 * texts.length);
    const address = this.module._malloc(size) >>> 0;
    const memory = this.module.HEAPU8;
    const list = new DataView(memory.buffer, address);
    let at = address + 4 * texts.length;
    const pointers = encoded.map((bytes, index) => {
      list.setUint32(4 * index, at, true);
      memory.set(bytes, at);
      at += bytes.length;
      return at - bytes.length;
    });
    return { address, pointers };
  }
}
