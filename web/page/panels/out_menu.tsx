import type { RefObject } from "preact";
import { useEffect, useRef } from "preact/hooks";
import { download } from "../data/download";
import { fileStem, shown } from "../logic/names";
import { linesOfRun } from "../logic/page_words";
import { OUTPUTS, outputName, outputVerb, type Output } from "../logic/outputs";
import { askFindings, runVerb } from "../state/core";
import { action } from "../state/findings";
import { notify, notifyFailure } from "../state/notices";
import { activeTake, labelOf, type Take } from "../state/takes";
import { palette } from "../state/theme";
import { stage } from "../viewport/current_stage";

/** What can be had of the take that is worked on. */
export function OutMenu() {
  const menu = useRef<HTMLDetailsElement>(null);
  const take = activeTake.value;
  useEffect(() => closeOnPressElsewhere(menu), []);
  const run = (work: (from: Take) => Promise<void>): void => {
    if (menu.current) menu.current.open = false;
    if (take) void guarded(take, work);
  };
  if (!take) return null;
  return (
    <details class="menu" ref={menu} onKeyDown={(event) => closeOnEscape(event, menu.current)}>
      <summary title="Files of this take">Save…</summary>
      <div class="menu-items">
        {OUTPUTS.filter((output) => output.of.includes(take.info.kind)).map((output) => (
          <button key={output.label} onClick={() => run((from) => makeOutput(output, from))}>
            <b>{output.label}</b> <span class="quiet">{output.what}</span>
          </button>
        ))}
        <button onClick={() => run(saveReport)}>
          <b>Report</b> <span class="quiet">findings as JSON</span>
        </button>
        <button onClick={() => run(savePicture)}>
          <b>Picture</b> <span class="quiet">the view as PNG</span>
        </button>
      </div>
    </details>
  );
}

function closeOnPressElsewhere(menu: RefObject<HTMLDetailsElement>): () => void {
  const close = (event: Event): void => {
    const { current } = menu;
    if (current && !current.contains(event.target as Node)) current.open = false;
  };
  addEventListener("pointerdown", close);
  return () => removeEventListener("pointerdown", close);
}

function closeOnEscape(event: KeyboardEvent, menu: HTMLDetailsElement | null): void {
  if (event.key !== "Escape" || !menu?.open) return;
  menu.open = false;
  menu.querySelector("summary")?.focus();
  event.stopPropagation();
}

async function guarded(take: Take, work: (from: Take) => Promise<void>): Promise<void> {
  try {
    await work(take);
  } catch (reason) {
    notifyFailure(`Nothing was saved of ${labelOf(take, 80)}`, reason);
  }
}

async function makeOutput(output: Output, take: Take): Promise<void> {
  const name = outputName(output, take.info);
  const result = await runVerb(`Making ${shown(name, 80)}`, outputVerb(output, take.info), take);
  for (const file of result.files) {
    const content = new Blob([file.bytes as Uint8Array<ArrayBuffer>]);
    download(file.name.replace(/^.*\//, ""), content);
  }
  const told = linesOfRun(result.err, take.info.path, labelOf(take));
  const words = told.split("\n").map((line) => shown(line, 1000)).join("\n");
  if (result.files.length === 0) notify("error", `${shown(name, 80)} was not made`, words);
  else if (result.status !== 0) notify("note", `${shown(name, 80)} was saved, with doubts`, words);
}

async function saveReport(take: Take): Promise<void> {
  const { json } = await askFindings(take, action.value);
  const content = new Blob([json], { type: "application/json" });
  download(`${fileStem(take.info.name)}-${action.value}.json`, content);
}

async function savePicture(take: Take): Promise<void> {
  const picture = await stage.value?.picture(palette.value.viewTop);
  if (picture) download(`${fileStem(take.info.name)}.png`, picture);
}
