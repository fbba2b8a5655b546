import { render } from "preact";
import { embeddedTakes, openPart } from "../build/parts";
import { Core } from "../worker/client";
import { App } from "./app";
import { listenToDrops } from "./drop";
import { listenToKeys } from "./keyboard";
import { connect, openFiles } from "./state/core";
import { notify, wordsOf } from "./state/notices";
import { startPlayer } from "./state/player";
import "./style.css";

async function startCore(): Promise<Core> {
  const [script, core] = await Promise.all([openPart("worker-gzip"), openPart("core-gzip")]);
  const worker = URL.createObjectURL(new Blob([script], { type: "text/javascript" }));
  return new Core(worker, await WebAssembly.compile(core));
}

async function start(): Promise<void> {
  try {
    await connect(startCore());
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
void start();
