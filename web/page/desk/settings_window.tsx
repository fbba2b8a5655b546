import { useState } from "preact/hooks";
import { valueText } from "../logic/kept_settings";
import { shown } from "../logic/names";
import { beginAnew } from "../state/desk";
import { forgetSettings, keep, stored } from "../state/kept_settings";
import { settingsShown } from "../state/layout";
import { clearKept, keptKeys } from "../state/settings";
import { Veil, Window } from "./window";

/** What is kept in this browser, and the plug-in's settings as they are now. */
export function SettingsWindow() {
  const [, lookAgain] = useState(0);
  if (!settingsShown.value) return null;
  const clear = (): void => {
    forgetSettings();
    clearKept();
    lookAgain((count) => count + 1);
    void beginAnew();
  };
  return (
    <Veil>
      <Window title="Settings" close={() => (settingsShown.value = false)}>
        <div class="settings">
          <label class="keep">
            <input
              type="checkbox"
              checked={keep.value}
              onChange={(event) => (keep.value = event.currentTarget.checked)}
            />
            Keep the plug-in's settings in this browser
          </label>
          <p class="quiet">
            Without it each visit begins with fresh ones. Files and folders are never kept.
          </p>
          <h3>The plug-in's settings</h3>
          <StoredValues />
          <h3>What this browser keeps of this page</h3>
          <KeptValues />
        </div>
        <div class="window-buttons">
          <button onClick={clear} title="Forgets all of it, and begins with an empty scene">
            Clear all, with the scene
          </button>
          <span class="spring" />
          <button class="primary" onClick={() => (settingsShown.value = false)}>
            Done
          </button>
        </div>
      </Window>
    </Veil>
  );
}

function StoredValues() {
  if (stored.value.length === 0) return <p class="quiet">None: all are as they come.</p>;
  return (
    <dl class="values">
      {stored.value.map((value) => (
        <div key={`${value.key}\\${value.name}`}>
          <dt>
            {value.key.replace(/^.*\\/, "")} {value.name}
          </dt>
          <dd>{shown(valueText(value), 100) || "empty"}</dd>
        </div>
      ))}
    </dl>
  );
}

function KeptValues() {
  const kept = keptKeys();
  if (kept.length === 0) return <p class="quiet">Nothing.</p>;
  return (
    <dl class="values">
      {kept.map(({ name, text }) => (
        <div key={name}>
          <dt>{name}</dt>
          <dd>{shown(text, 100)}</dd>
        </div>
      ))}
    </dl>
  );
}
