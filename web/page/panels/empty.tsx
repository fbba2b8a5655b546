import { exampleTakes } from "../../build/parts";
import { openFiles, ready, type SourceFile } from "../state/core";
import { openChosen } from "./header";

/** What to do when there is nothing to see yet. */
export function Empty() {
  return (
    <div class="empty">
      <h2>Drop motion-capture files here</h2>
      <p>HTR skeletons and TRC markers, one or several. They stay on this machine.</p>
      <p>
        <button class="primary" onClick={openChosen} disabled={!ready.value}>
          Open files…
        </button>
      </p>
      <p class="quiet">or look at an example</p>
      <p class="examples">
        <ExampleButton name="walk.htr" what="a skeleton that walks" />
        <ExampleButton name="walk.trc" what="the markers of the same walk" />
      </p>
    </div>
  );
}

function ExampleButton({ name, what }: { name: string; what: string }) {
  return (
    <button disabled={!ready.value} onClick={() => void openFiles([example(name)])}>
      <b>{name}</b> <span class="quiet">{what}</span>
    </button>
  );
}

function example(name: string): SourceFile {
  return {
    name,
    content: async () => {
      const found = (await exampleTakes()).find((take) => take.name === name);
      if (!found) throw new Error(`This page holds no ${name}.`);
      return found.bytes;
    },
  };
}
