import { render } from "preact";
import { embeddedTakes, openPart } from "../build/parts";
import type { StoredValue } from "../worker/desk_protocol";
import { Core } from "../worker/client";
import { Desk } from "../worker/desk_client";
import { App } from "./app";
import { handOutFiles } from "./data/archive";
import { listenToDrops } from "./drop";
import { listenToKeys } from "./keyboard";
import { connect, openFiles } from "./state/core";
import { useDesks, type DeskApi } from "./state/desk";
import { notify, wordsOf } from "./state/notices";
import { startPlayer } from "./state/player";
import { guardLeaving } from "./state/unsaved";
import "./style.css";
import "./desk/desk.css";

interface Program {
  worker: string;
  module: WebAssembly.Module;
}

async function openProgram(): Promise<Program> {
  const [script, core] = await Promise.all([openPart("worker-gzip"), openPart("core-gzip")]);
  const worker = URL.createObjectURL(new Blob([script], { type: "text/javascript" }));
  return { worker, module: await WebAssembly.compile(core) };
}

async function startCore(program: Promise<Program>): Promise<Core> {
  const { worker, module } = await program;
  return new Core(worker, module);
}

async function startDesk(program: Promise<Program>, settings: StoredValue[]): Promise<DeskApi> {
  const { worker, module } = await program;
  return new Desk(worker, module, settings);
}

async function start(): Promise<void> {
  try {
    const program = openProgram();
    useDesks((settings) => startDesk(program, settings), handOutFiles);
    await connect(startCore(program));
    const takes = await embeddedTakes();
    await openFiles(takes.map(({ name, bytes }) => ({ name, content: async () => bytes })));
  } catch (reason) {
    notify("error", "The page did not start", wordsOf(reason));
  }
}

render(<App />, document.getElementById("app")!);
listenToKeys();
listenToDrops();
startPlayer();
guardLeaving(globalThis);
void start();
