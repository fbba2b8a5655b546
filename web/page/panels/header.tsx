import { chooseFiles } from "../data/files";
import { openFiles, ready } from "../state/core";
import { keysShown } from "../state/layout";
import { working } from "../state/takes";
import { toggleTheme } from "../state/theme";
import { setWorking } from "../state/work";
import { OutMenu } from "./out_menu";

export function openChosen(): void {
  chooseFiles((files) => void openFiles(files));
}

export function Header() {
  return (
    <header class="bar header">
      <h1>Orvane workbench</h1>
      <button class="primary" onClick={openChosen} title="Open HTR and TRC files (Ctrl O)">
        Open…
      </button>
      {!working.value && <OutMenu />}
      <button
        aria-pressed={working.value}
        disabled={!ready.value}
        title="Work on a scene with the plug-in"
        onClick={() => setWorking(!working.value)}
      >
        Work
      </button>
      <span class="spring" />
      <span class="quiet local">Nothing leaves this machine</span>
      <button onClick={toggleTheme} title="Dark or light">
        Dark / light
      </button>
      <button onClick={() => (keysShown.value = true)} title="Keys (?)" aria-label="Keys">
        ?
      </button>
    </header>
  );
}
