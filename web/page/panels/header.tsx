import { chooseFiles } from "../data/files";
import { openFiles } from "../state/core";
import { keysShown } from "../state/layout";
import { toggleTheme } from "../state/theme";
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
      <OutMenu />
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
