import type { MessageBox } from "../logic/desk_things";
import { shownLines } from "../logic/names";
import { tell } from "../state/desk";
import { Window } from "./window";

/** A message box of the plug-in. */

const LABELS = { ok: "OK", yes: "Yes", no: "No" } as const;
const LONGEST = 4000;

export function MessageWindow({ message }: { message: MessageBox }) {
  const answer = (button: keyof typeof LABELS): void =>
    tell({ did: "answer", box: message.box, button });
  // A question with Yes and No alone cannot be left without an answer.
  const leave = (): void => {
    if (message.buttons.length === 1) answer(message.buttons[0]);
  };
  return (
    <Window title={message.caption} close={leave} alert cross={message.buttons.length === 1}>
      <p class="message-text">{shownLines(message.text, LONGEST)}</p>
      <div class="window-buttons">
        {message.buttons.map((button, index) => (
          <button key={button} class={index === 0 ? "primary" : ""} onClick={() => answer(button)}>
            {LABELS[button]}
          </button>
        ))}
      </div>
    </Window>
  );
}
