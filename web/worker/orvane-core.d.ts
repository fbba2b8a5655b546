// What the generated script orvane-core.js offers, as far as it is used.
declare module "orvane-core" {
  export interface FileNode {
    contents: unknown;
    mode: number;
  }

  export interface FileSystem {
    streams: unknown[];
    mkdirTree(path: string): void;
    chdir(path: string): void;
    writeFile(path: string, bytes: Uint8Array, options: { canOwn: boolean }): void;
    readFile(path: string): Uint8Array<ArrayBuffer>;
    readdir(path: string): string[];
    lookupPath(path: string): { node: FileNode };
    isDir(mode: number): boolean;
    unlink(path: string): void;
    open(path: string, flags: string): unknown;
    close(stream: unknown): void;
  }

  export interface CoreModule {
    FS: FileSystem;
    HEAPU8: Uint8Array<ArrayBuffer>;
    /** Whether a call sleeps, and what promises its result. */
    Asyncify: { currData: number | null; whenDone(): Promise<number> };
    _malloc(size: number): number;
    _free(address: number): void;
    _orvane_kind(path: number): number;
    _orvane_open(id: number, path: number): number;
    _orvane_curve(id: number, object: number, what: number): number;
    _orvane_findings(id: number, action: number): number;
    _orvane_line(id: number, line: number, column: number): number;
    _orvane_close(id: number): void;
    _orvane_run(count: number, texts: number, pause: number): number;
    _orvane_desk_run(): void;
    _orvane_text(): number;
    _orvane_text_size(): number;
    _orvane_block(index: number): number;
    _orvane_block_size(index: number): number;
    _orvane_forget(): void;
  }

  export interface CoreOptions {
    instantiateWasm(
      imports: WebAssembly.Imports,
      take: (instance: WebAssembly.Instance, module: WebAssembly.Module) => void,
    ): object;
    showProgress?(what: string, percent: number): Promise<boolean>;
    endProgress?(): void;
    /** Of a desk. */
    addNumbers?(numbers: Float32Array<ArrayBuffer>): void;
    tell?(json: string): void;
    nextEvent?(awaited: boolean): Promise<string | null>;
  }

  export default function createCore(options: CoreOptions): Promise<CoreModule>;
}
