// What the page and the core's worker say to each other.
//
// Objects are the segments of a motion or the markers of a marker file, in the file's order. Objects and
// frames count from 0; lines and columns of files from 1, columns in bytes. Positions are in the file's unit
// of length and its axes. Sentences are those of the plug-in and of the program, ready to be shown.

export type Kind = "motion" | "markers";

/** How the names of files end that hold the one or the other. */
export type Ending = "htr" | "trc";

export interface TakeInfo {
  id: number;
  kind: Kind;
  /** The file's name as it was given. */
  name: string;
  /** What the program's verbs call it: the name, with an ending that says what the file is, and with a folder before it where another has that name. */
  path: string;
  bytes: number;
  objects: string[];
  /** The index of each segment's parent; -1 for roots, and for all markers. */
  parents: number[];
  frames: number;
  /** The number that the file gives its first frame. */
  firstFrame: number;
  /** From the number of one frame to that of the next, where that is not 1: of scenes that are very long. */
  frameStep?: number;
  /** Frames per second as the file's text says; 0 when it says none that is positive. */
  rate: number;
  rateText: string;
  /** The rate that the plug-in takes: the whole part. */
  rateTaken: number;
  /** "mm", "cm", "dm", "m", "in" or "ft". */
  unit: string;
  millimetresPerUnit: number;
  /** The axis that seems to be up in the data; files are meant to have Y up. */
  upAxis: "y" | "z";
  /** Of motions: "ZYX". */
  eulerOrder?: string;
  /** Of each object the part of the frames that hold it, 0 to 1. */
  coverage: Float32Array;
  /** Three numbers for each gap: object, first and last frame; by object, then by frame. */
  gaps: Int32Array;
  /** Around all positions; zeros when there are none. */
  boxMin: [number, number, number];
  boxMax: [number, number, number];
}

/** Three numbers at [frame][object], one frame behind the other; NaN where a frame lacks the object. */
export interface Tracks {
  /** Where markers are, or the joints of segments in the world. */
  positions: Float32Array;
  /** Of motions: where the bones end. */
  ends?: Float32Array;
}

export interface Place {
  line: number;
  column: number;
  /** What stands there, as far as the line tells. */
  object?: number;
  frame?: number;
}

/** All that was found of one code, as `orvane check --for ACTION --json` tells it. */
export interface Finding {
  code: string;
  severity: "note" | "warning" | "error";
  count: number;
  /** What is so in the file, and what the action makes of it. */
  text: string;
  cause: string;
  consequence: string;
  /** Where the first ones stand, at most 20; none when they have no place in the file. */
  places: Place[];
  /** The first of them. */
  line?: number;
  column?: number;
  frame?: number;
  /** Those that the finding names, each once. */
  objects?: number[];
}

/** What is to be done with a file: "export" is for scenes, and refused here. */
export type Action = "import" | "apply" | "convert" | "export" | "rewrite";

export interface Findings {
  findings: Finding[];
  /** The program's own report, byte for byte. */
  json: string;
}

/** A file that is no take. */
export interface OtherFile {
  path: string;
  file: Blob;
}

export interface OutFile {
  name: string;
  bytes: Uint8Array<ArrayBuffer>;
}

/** What a run of the program leaves: its exit status, what it wrote on both streams, and its files. */
export interface RunResult {
  status: number;
  out: string;
  err: string;
  files: OutFile[];
}

/** "rotation": Euler angles about x, y and z in degrees, as the file has them. */
export type CurveOf = "position" | "localPosition" | "rotation";

export interface LineText {
  /** The line, or of a long one the part around the column that was asked for. */
  text: string;
  /** The column of the first byte of `text`. */
  start: number;
}

export interface Progress {
  /** Such as "Importing walk.htr". */
  what: string;
  /** 0 to 1. */
  fraction: number;
}

export interface Opened {
  info: TakeInfo;
  tracks: Tracks;
}

/** What promises are rejected with: a name of its own for what the page itself has stopped. */
export interface CoreFailure {
  name: "CoreError" | "Cancelled";
  message: string;
  code?: string;
  line?: number;
  column?: number;
}

export interface CoreApi {
  /**
   * Opens the file `name` as what its first lines show it to be, or else its name. Bytes are given away; a file of the page is read when it is needed. Calls may be
   * made at any time: they are answered one after the other.
   */
  open(name: string, bytes: ArrayBuffer | Blob): Promise<Opened>;
  /** Frames by three numbers, NaN in gaps. */
  curve(take: number, object: number, of: CurveOf): Promise<Float64Array>;
  findings(take: number, action: Action): Promise<Findings>;
  line(take: number, line: number, column?: number): Promise<LineText>;
  /**
   * Runs the program with these arguments over the files of `takes`, by their paths, and over `others`, with settings
   * that nobody has changed: ["import", "walk.htr", "-o", "walk.glb"].
   */
  run(verb: string[], takes: number[], others?: OtherFile[]): Promise<RunResult>;
  close(take: number): Promise<void>;
  onProgress(listener: (progress: Progress) => void): void;
  /**
   * Ends what is being done. While the plug-in shows its progress it is the plug-in's own Cancel, and the run
   * ends with what the program says then; else all calls that wait are rejected as "Cancelled", and takes
   * stay open.
   */
  cancel(): void;
}

/** What the worker is told: first of all the compiled core, and of each take its file. */
export type Order =
  | { do: "start"; module: WebAssembly.Module }
  | { do: "keep"; take: number; path: string; file: Blob }
  | { do: "cancel" };

/** What it is asked, one thing after the other. */
export type Question =
  | { do: "kind"; take: number }
  | { do: "open"; take: number }
  | { do: "curve"; take: number; object: number; of: CurveOf }
  | { do: "findings"; take: number; action: Action }
  | { do: "line"; take: number; line: number; column: number }
  | { do: "run"; verb: string[]; takes: number[]; others: OtherFile[] }
  | { do: "close"; take: number };

export type Request = Order | (Question & { call: number });

/** What the core tells of a take; the page's side knows the rest. */
export type Description = Omit<TakeInfo, "id" | "name" | "path" | "bytes">;

/** How many bytes of memory the core holds when a take is closed. */
export interface Closed {
  held: number;
}

/** What the worker answers, and what it tells while the plug-in shows a progress bar. */
export type Answer =
  | { call: number; value: unknown }
  | { call: number; failure: CoreFailure }
  | { progress: Progress }
  | { barOver: true; cancelTaken: boolean };
