import { agreeToLose, waiting } from "../state/unsaved";
import { Veil, Window } from "./window";

/** Asks before a scene that was not saved is lost. */
export function UnsavedWindow() {
  if (!waiting.value) return null;
  const stay = (): void => void (waiting.value = null);
  return (
    <Veil>
      <Window title="The scene is not saved" close={stay} alert>
        <p class="message-text">
          {`It has changed since it was saved or begun, and nothing brings it back.\n"Save scene…" keeps it.`}
        </p>
        <div class="window-buttons">
          <button class="primary" onClick={stay}>
            Cancel
          </button>
          <button onClick={agreeToLose}>Go on without it</button>
        </div>
      </Window>
    </Veil>
  );
}
