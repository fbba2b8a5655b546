// What the page and the desk say to each other. The desk is a worker in which a process of the host stands: the
// plug-in, one scene and its settings. A person does one thing after the other; the desk tells what is to be
// seen, in the plug-in's own words.
//
// Dialogs, boxes and choices have numbers of their own, which are never used again. What closes them is the
// plug-in: the page takes away what is told to be gone, and nothing else. Nodes are told by their handles in the
// scene, which are above 0. Frames of the scene are whole numbers, and may be negative.

export type ControlKind =
  | "push-button"
  | "check-box"
  | "radio-button"
  | "group-box"
  | "edit"
  | "label"
  | "image"
  | "other";

export interface ControlState {
  /** -1 for controls that nobody asks for, such as labels. */
  id: number;
  kind: ControlKind;
  /** An ampersand stands before the mnemonic. */
  text: string;
  /** In dialog units, from the dialog's upper left corner. */
  x: number;
  y: number;
  width: number;
  height: number;
  enabled: boolean;
  checked: boolean;
  readOnly: boolean;
  /** The button that Enter presses. */
  isDefault: boolean;
  tabStop: boolean;
  /** Begins a group: of radio buttons one has the tab stop, and the arrow keys go through them. */
  groupStart: boolean;
}

/** `index` is the place in the dialog's controls, which stand in tab order. */
export type ControlChange = { index: number } & Partial<Pick<ControlState, "text" | "enabled" | "checked">>;

export interface ShownDialog {
  dialog: number;
  /** The number of its template in the module: 107 ImportHTR, 108 ImportTRC, 126 ExportHTR, 114 About, 116 the panel, 117 the mapping creator. */
  template: number;
  title: string;
  /** In dialog units. */
  width: number;
  height: number;
  /** Whether nothing else on the desk can be used while it is open. */
  modal: boolean;
  /** Whether its frame has a cross. */
  closeBox: boolean;
  controls: ControlState[];
}

export interface SceneNode {
  node: number;
  name: string;
  /** 0 for a node beneath the scene's root. */
  parent: number;
  kind: "bone" | "marker" | "group";
  color: Color;
  /** How large the object is, in the scene's units: a bone's length, a marker's radius; 0 for a group. */
  size: number;
}

/** Red, green and blue, 0 to 255. */
export type Color = [number, number, number];

/** Positions are in the scene's units and axes: Z is up. */
export interface ShownScene {
  nodes: SceneNode[];
  firstFrame: number;
  /** From one frame that is told to the next: 1, unless the scene has too many to tell all. */
  step: number;
  /** Those that are told. */
  frames: number;
  /** All frames in a second. */
  rate: number;
  millimetresPerUnit: number;
  /** Three numbers at [frame][node], one frame behind the other. */
  positions: Float32Array<ArrayBuffer>;
  /** Where bones end; NaN for all other nodes, and empty without bones. */
  ends: Float32Array<ArrayBuffer>;
}

export interface MappingEntry {
  /** The standard marker's name. */
  standard: string;
  marker: string;
  /** That it was picked from; 0 for an entry of a file that a conversion has read. */
  node: number;
}

export interface Suggestion {
  standard: string;
  node: number;
  /** How the name says so; or that it is where the node sits on the body, of which no name says anything. */
  reason: "same" | "subject" | "case" | "synonym" | "geometry";
  /** Where that is, in words; empty when the name says so. */
  place: string;
}

export interface ToldFinding {
  code: string;
  severity: "note" | "warning" | "error";
  text: string;
}

/** A value of the plug-in's settings; bytes as the plug-in has written them. */
export interface StoredValue {
  key: string;
  name: string;
  type: "text" | "binary" | "int32" | "int64";
  bytes: number[];
}

export type Told =
  /** The desk stands at the top: no dialog is asked, and the next task can be given. */
  | { tell: "idle" }
  /** What was done then goes on, and waits for the person or shows how far it is; behind its end comes `idle`. */
  | { tell: "busy" }
  | { tell: "dialog"; shown: ShownDialog }
  | { tell: "controls"; dialog: number; changed: ControlChange[] }
  | { tell: "dialog-gone"; dialog: number }
  | { tell: "message"; box: number; text: string; caption: string; buttons: ("ok" | "yes" | "no")[] }
  | { tell: "message-gone"; box: number }
  | {
      tell: "choose-files";
      choice: number;
      title: string;
      /** As the person reads it: "Orvane TRC Files (*.TRC)". */
      filter: string;
      /** "*.trc" */
      pattern: string;
      extension: string;
      many: boolean;
      /** Whether a file is to be written under the name that is chosen. */
      save: boolean;
    }
  | { tell: "choose-folder"; choice: number; title: string }
  | { tell: "choice-gone"; choice: number }
  | { tell: "pick-mode"; on: boolean; pickable: number[] }
  | { tell: "mapping"; entries: MappingEntry[]; asked: string }
  | { tell: "suggestions"; suggested: Suggestion[] }
  /** What is odd in the mapping so far. */
  | { tell: "lint"; findings: ToldFinding[] }
  /** The same of an import, when the person has agreed to it. */
  | { tell: "report"; findings: ToldFinding[] }
  /**
   * What the import will make of its file, or what the motion file will not hold of the skeleton that is selected, by
   * what the dialog shows that asks how: when it is opened and whenever a choice has changed. `refusal` is why the
   * program would not do it so, or empty.
   */
  | { tell: "losses"; findings: ToldFinding[]; refusal: string }
  /** What is told next is another one. */
  | { tell: "scene-gone" }
  | { tell: "scene"; scene: ShownScene }
  | { tell: "colors"; changed: { node: number; color: Color }[] }
  /** Whenever it has changed, and after each `select`: its number is that of the last one that was done, or 0. */
  | { tell: "selection"; nodes: number[]; number: number }
  | { tell: "progress"; what: string; percent: number }
  | { tell: "progress-gone" }
  /** How a task ended: whether the plug-in carried it out. */
  | { tell: "done"; task: Task["did"]; completed: boolean }
  /** A file that was written on the desk; behind it comes the end of what has written it. */
  | { tell: "file"; name: string; bytes: Uint8Array<ArrayBuffer> }
  /** A file that was put but could not be read any more: it is not on the desk. */
  | { tell: "unread"; path: string }
  /** All values that are stored, whenever one has changed. */
  | { tell: "settings"; values: StoredValue[] }
  /** What cannot be done now, or at all; nothing has changed. */
  | { tell: "refused"; did: Did["did"]; words: string }
  /** The desk is in no state to go on: a new one is to be begun. */
  | { tell: "failed"; words: string };

/** What the desk does from its top, one after the other; refused while something is open or at work. */
export type Task =
  /** `range` is typed into the dialog as its first and last frame. What the plug-in applies goes to the selection. */
  | { did: "import"; path: string; range?: [number, number] }
  | { did: "export"; path: string; range?: [number, number] }
  | { did: "about" }
  | { did: "open-scene"; path: string }
  | { did: "new-scene" }
  | { did: "save-scene"; path: string };

export type Did =
  | Task
  /** The panel may be closed while a marker is asked for, too: what it has begun ends then. */
  | { did: "open-panel" }
  | { did: "close-panel" }
  /** Uses a control: a button, a radio button, a check box, which changes its state. Control 2 is Esc and the frame's cross. */
  | { did: "command"; dialog: number; control: number }
  | { did: "text"; dialog: number; control: number; text: string }
  | { did: "answer"; box: number; button: "ok" | "yes" | "no" }
  /** Names of files that were put on the desk, or of the one to write; none cancels. Of a folder one name. */
  | { did: "chosen"; choice: number; paths: string[] }
  /** Null clicks where nothing is. Passed over when `standard` is asked for no more: a second click came too late. */
  | { did: "pick"; node: number | null; standard: string }
  | { did: "right-click" }
  /** Each has a number above those before it. */
  | { did: "select"; nodes: number[]; number: number }
  | { did: "time"; frame: number }
  /** The plug-in's own Cancel, while progress is shown. */
  | { did: "cancel" }
  /** What is odd in the mapping so far, which is answered at any time. */
  | { did: "ask-lint" };

/** The worker's orders: first of all the compiled core, with the settings that the plug-in is to find. */
export type DeskOrder =
  | { do: "start-desk"; module: WebAssembly.Module; settings: StoredValue[] }
  | { do: "put"; path: string; file: Blob }
  | { do: "remove"; path: string }
  | { do: "did"; did: Did };

/** What the worker answers. */
export interface DeskAnswer {
  told: Told;
}
