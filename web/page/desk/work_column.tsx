import { useState } from "preact/hooks";
import { CREATOR, PANEL, lacksFolder, modelessDialog } from "../logic/desk_things";
import { sceneText } from "../logic/scene_take";
import { chooseFiles } from "../data/files";
import {
  beginAnew,
  giveTask,
  deskProgress,
  failure,
  idle,
  outcome,
  putFile,
  report,
  tell,
  things,
} from "../state/desk";
import { notifyFailure } from "../state/notices";
import { scene } from "../state/takes";
import { exportScene, free, saveScene } from "../state/work";
import { settingsShown } from "../state/layout";
import { replaceScene } from "../state/unsaved";
import { DialogBody } from "./dialog_window";
import { FolderNeed } from "./folder_need";
import { MappingPanel } from "./mapping_panel";
import { NameWindow } from "./choice_window";
import { ToldFindings } from "./told_findings";
import { UnsavedWindow } from "./unsaved_window";
import { Veil } from "./window";

/** What is done with the scene, and the plug-in's panel. */
export function WorkColumn() {
  if (failure.value !== null) return <Failed words={failure.value} />;
  return (
    <>
      <SceneTasks />
      <MappingPanel />
      <UtilityPanel />
    </>
  );
}

function Failed({ words }: { words: string }) {
  return (
    <section class="panel" aria-label="The desk has ended" role="alert">
      <h2>The desk has ended</h2>
      <p>{words}</p>
      <p>The files that are open stay open; the scene is lost.</p>
      <p>
        <button class="primary" onClick={() => void beginAnew()}>
          Start again
        </button>
      </p>
    </section>
  );
}

function SceneTasks() {
  const [naming, setNaming] = useState<"export" | "save" | null>(null);
  const hasScene = scene.value !== null;
  const ready = free.value;
  return (
    <section class="panel scene-tasks" aria-label="Scene">
      <h2>
        Scene <span class="quiet">{idle.value ? countText() : "…"}</span>
      </h2>
      <div class="task-buttons">
        <button disabled={!ready} onClick={() => replaceScene(openScene)}>
          Open scene…
        </button>
        <button disabled={!ready || !hasScene} onClick={() => setNaming("save")}>
          Save scene…
        </button>
        <button disabled={!ready || !hasScene} onClick={() => replaceScene(() => giveTask({ did: "new-scene" }))}>
          New scene
        </button>
        <button
          disabled={!ready || !hasScene}
          title="The skeleton whose root bone is selected, as HTR"
          onClick={() => setNaming("export")}
        >
          Export HTR…
        </button>
        <PanelButton />
        <button disabled={!ready} onClick={() => giveTask({ did: "about" })}>
          About…
        </button>
        <button onClick={() => (settingsShown.value = true)}>Settings…</button>
      </div>
      {ready && !hasScene && (
        <p class="quiet">
          The scene is empty. Import… beside a file brings it in; the utility panel converts files
          without a scene.
        </p>
      )}
      {naming && <Naming what={naming} close={() => setNaming(null)} />}
      <UnsavedWindow />
      <DeskProgress />
      {outcome.value && (
        <p class="quiet outcome" role="status">
          {outcome.value}
        </p>
      )}
      <Report />
    </section>
  );
}

function countText(): string {
  return scene.value ? sceneText(scene.value.info) : "empty";
}

function openScene(): void {
  chooseFiles((files) => {
    for (const file of files) void putAndOpen(file);
  }, false);
}

async function putAndOpen(file: { name: string; content(): Promise<ArrayBuffer | Blob> }) {
  try {
    const content = await file.content();
    const path = putFile(file.name, content instanceof Blob ? content : new Blob([content]));
    giveTask({ did: "open-scene", path });
  } catch (reason) {
    notifyFailure("The scene was not opened", reason);
  }
}

const NAMINGS = {
  export: {
    title: "Export the selected skeleton",
    hint: "In and out points of the timeline become the range.",
    first: "export.htr",
  },
  save: { title: "Save the scene", hint: "A scene file that any glTF viewer plays.", first: "scene.glb" },
} as const;

function Naming({ what, close }: { what: "export" | "save"; close: () => void }) {
  const { title, hint, first } = NAMINGS[what];
  const accept = (name: string): void => {
    close();
    if (what === "export") exportScene(name);
    else saveScene(name);
  };
  return (
    <Veil>
      <NameWindow
        title={title}
        hint={hint}
        label="Name of the file"
        first={first}
        accept={accept}
        cancel={close}
      />
    </Veil>
  );
}

function DeskProgress() {
  const progress = deskProgress.value;
  if (!progress) return null;
  return (
    <div class="desk-progress" role="status">
      <p>{progress.what}</p>
      <progress aria-label={progress.what} value={progress.percent} max={100} />
      <button onClick={() => tell({ did: "cancel" })}>Cancel</button>
    </div>
  );
}

/** What the plug-in was told to do with a file, and what that came to; while a mapping is made, that has the room. */
function Report() {
  const isMapping = modelessDialog(things.value, CREATOR) !== null;
  if (report.value.length === 0 || isMapping) return null;
  return (
    <div class="import-report" role="group" aria-label="What the import made of the file" tabIndex={0}>
      <ToldFindings findings={report.value} />
    </div>
  );
}

function PanelButton() {
  const isOpen = modelessDialog(things.value, PANEL) !== null;
  const toggle = (): void => tell({ did: isOpen ? "close-panel" : "open-panel" });
  return (
    <button aria-pressed={isOpen} disabled={!isOpen && !free.value} onClick={toggle}>
      Utility panel
    </button>
  );
}

function UtilityPanel() {
  const dialog = modelessDialog(things.value, PANEL);
  if (!dialog) return null;
  return (
    <section class="panel utility" aria-label={dialog.title}>
      <h2>
        {dialog.title}
        <button
          class="icon"
          aria-label="Close the panel"
          onClick={() => tell({ did: "close-panel" })}
        >
          ×
        </button>
      </h2>
      <DialogBody dialog={dialog} />
      {lacksFolder(things.value) && <FolderNeed />}
    </section>
  );
}
