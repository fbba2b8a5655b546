// A person in front of a desk: knows what is to be seen, and uses it.

import assert from "node:assert/strict";
import { compiledCore, workerModule } from "./built_core.mjs";

const { DeskInstance } = await workerModule("desk_instance.ts");
const { CoreInstance } = await workerModule("core_instance.ts");

// Milliseconds: the program never stops to show its progress.
const NEVER = 1e9;

/** The bytes of the files that the program makes of the files, by their names. */
export async function programFiles(verb, files) {
  const instance = await CoreInstance.make(await compiledCore());
  const result = await instance.run(verb, files, NEVER);
  assert.equal(result.status, 0, result.err);
  return new Map(result.files.map(({ name, bytes }) => [name, bytes]));
}

/** What it writes to standard output as JSON, however that ends. */
export async function programJson(verb, files) {
  const instance = await CoreInstance.make(await compiledCore());
  return JSON.parse((await instance.run([...verb, "--json"], files, NEVER)).out);
}

/** The bytes of the one file that it makes. */
export async function programFile(verb, files) {
  return [...(await programFiles(verb, files)).values()][0];
}

// A desk that does not go on fails the test that waits for it.
process.on("unhandledRejection", (error) => {
  throw error;
});

/** The controls of the plug-in's dialogs that the tests use, by their numbers in its resources. */
export const CONTROL = {
  ok: 1097,
  cancel: 1098,
  esc: 2,
  size: 1104,
  apply: 1086,
  range: 1068,
  from: 1065,
  to: 1066,
  offset: 1089,
  scale: 1088,
  frameRate: 1140,
  endEffectors: 1019,
  basePosition: 1017,
  animation: 1063,
  rootNode: 1144,
  point: 1142,
  currentPose: 1107,
  tcb: 1052,
  skelderSpace: 1125,
  exportAnimation: 1105,
  createMapping: 1203,
  browseMapping: 1132,
  browseOutput: 1134,
  convert: 1200,
  batch: 1201,
  trcName: 1202,
  offsetEnabled: 1205,
  offsetX: 1206,
  description: 1151,
  back: 1152,
  skip: 1153,
  abort: 1154,
};
export const DIALOG = { importHtr: 107, importTrc: 108, about: 114, panel: 116, creator: 117, exportHtr: 126 };

export class Person {
  /** All that was told, and what of it has not been looked at yet. */
  told = [];
  unread = [];
  /** What is to be seen now: dialogs by their templates; the scene with its colors as they are. */
  dialogs = new Map();
  message;
  choice;
  scene;
  colors = new Map();
  selection = [];
  mapping = { entries: [], asked: "" };
  pickMode = { on: false, pickable: [] };
  files = new Map();
  wake;
  /** What is done at once when something of that name is told for the first time. */
  replies = new Map();

  static async sit(settings = []) {
    const person = new Person();
    person.desk = await DeskInstance.begin(await compiledCore(), settings, (told) => person.see(told));
    await person.until("idle");
    return person;
  }

  see(told) {
    this.told.push(told);
    this.unread.push(told);
    this.takeOver(told);
    const reply = this.replies.get(told.tell);
    if (this.replies.delete(told.tell)) this.desk.do(reply);
    this.wake?.();
  }

  takeOver(told) {
    switch (told.tell) {
      case "dialog":
        this.dialogs.set(told.shown.template, told.shown);
        break;
      case "controls":
        for (const { index, ...change } of told.changed) Object.assign(this.byNumber(told.dialog).controls[index], change);
        break;
      case "dialog-gone":
        this.dialogs.delete(this.byNumber(told.dialog).template);
        break;
      case "message":
        this.message = told;
        break;
      case "message-gone":
        assert.equal(this.message.box, told.box);
        this.message = undefined;
        break;
      case "choose-files":
      case "choose-folder":
        this.choice = told;
        break;
      case "choice-gone":
        this.choice = undefined;
        break;
      case "scene":
        this.scene = told.scene;
        this.colors = new Map(told.scene.nodes.map(({ node, color }) => [node, color]));
        break;
      case "colors":
        for (const { node, color } of told.changed) this.colors.set(node, color);
        break;
      case "selection":
        this.selection = told.nodes;
        break;
      case "mapping":
        this.mapping = told;
        break;
      case "pick-mode":
        this.pickMode = told;
        break;
      case "file":
        this.files.set(told.name, told.bytes);
        break;
    }
  }

  byNumber(dialog) {
    return [...this.dialogs.values()].find((shown) => shown.dialog === dialog);
  }

  /** Waits until something of that name is told, and passes over what was told before it. */
  async until(tell) {
    for (;;) {
      const at = this.unread.findIndex((told) => told.tell === tell);
      if (at >= 0) return this.unread.splice(0, at + 1).at(-1);
      await new Promise((resolve) => (this.wake = resolve));
    }
  }

  do(did) {
    this.unread = [];
    this.desk.do(did);
  }

  /** Does it, and promises what was told of it until the desk waits again. */
  async step(did) {
    this.do(did);
    this.desk.do({ did: "ask-lint" });
    for (;;) {
      const at = this.unread.findIndex(({ tell }) => tell === "lint");
      if (at >= 0) return this.unread.splice(0, at + 1).slice(0, -1);
      await new Promise((resolve) => (this.wake = resolve));
    }
  }

  click(template, control) {
    return this.step({ did: "command", dialog: this.dialogs.get(template).dialog, control });
  }

  async doUntil(did, tell) {
    this.do(did);
    return this.until(tell);
  }

  put(path, bytes) {
    this.desk.put(path, bytes);
  }

  control(template, id) {
    return this.dialogs.get(template).controls.find((control) => control.id === id);
  }

  press(template, control, tell) {
    return this.doUntil({ did: "command", dialog: this.dialogs.get(template).dialog, control }, tell);
  }

  type(template, control, text) {
    this.do({ did: "text", dialog: this.dialogs.get(template).dialog, control, text });
  }

  answer(button, tell) {
    return this.doUntil({ did: "answer", box: this.message.box, button }, tell);
  }

  choose(paths, tell) {
    return this.doUntil({ did: "chosen", choice: this.choice.choice, paths }, tell);
  }

  node(name) {
    return this.scene.nodes.find((node) => node.name === name).node;
  }

  /** Saves the scene, and promises its bytes. */
  async save(path) {
    await this.doUntil({ did: "save-scene", path }, "idle");
    return this.files.get(path);
  }

  /** Imports the file as its dialog stands, or as `use` leaves it. */
  async import(path, bytes, use = () => {}) {
    if (bytes) this.put(path, bytes);
    const { shown } = await this.doUntil({ did: "import", path }, "dialog");
    await use(shown.template);
    const done = await this.press(shown.template, CONTROL.ok, "done");
    await this.until("idle");
    return done;
  }
}
