import { useState } from "preact/hooks";
import { chooseFiles } from "../data/files";
import { lacksFolder, type FileChoice, type FolderChoice } from "../logic/desk_things";
import { fitsPattern, nameOfMade, nameToWrite } from "../logic/file_pattern";
import { shown } from "../logic/names";
import { choiceRefusal, choose, chosenLast, deskFiles, putFile, things } from "../state/desk";
import { notifyFailure } from "../state/notices";
import { FolderNeed } from "./folder_need";
import { ConversionLosses } from "./loss_report";
import { Window } from "./window";

/** Choices of files and folders: among those that are open here, or from this machine. */

/** Why what was chosen is not accepted. */
function Refusal() {
  const words = choiceRefusal.value;
  return words === "" ? null : (
    <p class="refusal" role="alert">
      {shown(words, 1000)}
    </p>
  );
}

/** The plug-in asks for marker files to convert them. */
function isOfMarkers({ pattern }: FileChoice): boolean {
  return pattern.toLowerCase() === "*.trc";
}

export function OpenWindow({ choice }: { choice: FileChoice }) {
  const [chosen, setChosen] = useState<readonly string[]>([]);
  const offered = [...deskFiles.value.keys()].filter((path) => fitsPattern(path, choice.pattern));
  const toggle = (path: string): void => {
    if (!choice.many) setChosen([path]);
    else if (chosen.includes(path)) setChosen(chosen.filter((other) => other !== path));
    else setChosen([...chosen, path]);
  };
  const add = (paths: readonly string[]): void =>
    setChosen(choice.many ? [...new Set([...chosen, ...paths])] : paths.slice(-1));
  return (
    <Window title={choice.title} close={() => choose(choice.choice, [])}>
      <p class="quiet">{choice.filter}</p>
      <ul class="choice-files" aria-label="Files">
        {offered.map((path) => (
          <li key={path}>
            <label>
              <input
                type={choice.many ? "checkbox" : "radio"}
                name={`choice-${choice.choice}`}
                checked={chosen.includes(path)}
                onChange={() => toggle(path)}
              />
              <bdi class="name">{shown(path, 120)}</bdi>
            </label>
          </li>
        ))}
        {offered.length === 0 && <li class="quiet">No such file is open here.</li>}
      </ul>
      {choice.many && lacksFolder(things.value) && <FolderNeed />}
      {isOfMarkers(choice) && (
        <div class="choice-losses">
          <ConversionLosses files={chosen.flatMap((path) => deskFiles.value.get(path) ?? [])} />
        </div>
      )}
      <Refusal />
      <div class="window-buttons">
        <button onClick={() => void fetchFiles(choice.many, add)}>From this machine…</button>
        <span class="spring" />
        {choice.many && <button onClick={() => setChosen(offered)}>All</button>}
        <button
          class="primary"
          disabled={chosen.length === 0}
          onClick={() => choose(choice.choice, [...chosen])}
        >
          Choose
        </button>
        <button onClick={() => choose(choice.choice, [])}>Cancel</button>
      </div>
    </Window>
  );
}

async function fetchFiles(many: boolean, add: (paths: readonly string[]) => void): Promise<void> {
  chooseFiles((files) => void putAll(files, add), many);
}

async function putAll(
  files: readonly { name: string; content(): Promise<ArrayBuffer | Blob> }[],
  add: (paths: readonly string[]) => void,
): Promise<void> {
  try {
    const contents = await Promise.all(files.map((file) => file.content()));
    add(files.map((file, index) => putFile(file.name, new Blob([contents[index]]))));
  } catch (reason) {
    notifyFailure("The files were not taken", reason);
  }
}

/** Under which name a file is handed out. */
export function SaveWindow({ choice }: { choice: FileChoice }) {
  const { title, filter, extension } = choice;
  const accept = (name: string): void =>
    choose(choice.choice, [nameToWrite(name, extension)]);
  return (
    <NameWindow
      title={title}
      hint={filter}
      label="Name of the file"
      first={nameOfMade(chosenLast.value, extension)}
      accept={accept}
      cancel={() => choose(choice.choice, [])}
    />
  );
}

/** A browser hands out archives in place of folders. */
export function FolderWindow({ choice }: { choice: FolderChoice }) {
  return (
    <NameWindow
      title={choice.title}
      hint="Several files are handed out as one zip archive of this name."
      label="Name of the folder"
      first="converted"
      accept={(name) => choose(choice.choice, [nameToWrite(name, "")])}
      cancel={() => choose(choice.choice, [])}
    />
  );
}

interface NameProperties {
  title: string;
  hint: string;
  label: string;
  first: string;
  accept: (name: string) => void;
  cancel: () => void;
}

export function NameWindow({ title, hint, label, first, accept, cancel }: NameProperties) {
  const [name, setName] = useState(first);
  return (
    <Window title={title} close={cancel}>
      <form
        class="name-form"
        onSubmit={(event) => {
          event.preventDefault();
          if (name.trim()) accept(name.trim());
        }}
      >
        <label>
          {label}
          <input
            type="text"
            value={name}
            spellcheck={false}
            onInput={(event) => setName(event.currentTarget.value)}
          />
        </label>
        <p class="quiet">{hint}</p>
        <Refusal />
        <div class="window-buttons">
          <button class="primary" disabled={!name.trim()}>
            {"OK"}
          </button>
          <button type="button" onClick={cancel}>
            Cancel
          </button>
        </div>
      </form>
    </Window>
  );
}
