import { useLayoutEffect, useMemo, useRef } from "preact/hooks";
import type { ShownDialog } from "../../worker/desk_protocol";
import {
  CLOSE_CONTROL,
  controlOfMnemonic,
  defaultControl,
  placeControls,
  sizeOf,
} from "../logic/dialog_layout";
import { tell } from "../state/desk";
import { Control } from "./control";
import { LossReport } from "./loss_report";
import { passFocusOn } from "./stops";
import { Window } from "./window";

/** A dialog of the plug-in. Nothing but the plug-in closes it. */

interface DialogProperties {
  dialog: ShownDialog;
}

export function DialogWindow({ dialog }: DialogProperties) {
  return (
    <Window
      title={dialog.title}
      cross={dialog.closeBox}
      close={() => useControl(dialog, CLOSE_CONTROL)}
      press={(event) => press(event, dialog)}
      beside={<LossReport dialog={dialog} />}
    >
      <DialogBody dialog={dialog} />
    </Window>
  );
}

export function useControl({ dialog }: ShownDialog, control: number | null): void {
  if (control !== null) tell({ did: "command", dialog, control });
}

export function DialogBody({ dialog }: DialogProperties) {
  const { controls, width, height } = dialog;
  const placed = useMemo(() => placeControls(controls), [controls]);
  const size = sizeOf(width, height);
  const body = useRef<HTMLDivElement>(null);
  useLayoutEffect(() => passFocusOn(body.current!));
  return (
    <div
      class="desk-dialog"
      ref={body}
      style={{ width: `${size.width}em`, height: `${size.height}em` }}
      data-dialog={dialog.template}
      onKeyDown={(event) => press(event, dialog)}
    >
      {placed.map((each) => (
        <Control key={each.index} dialog={dialog} placed={each} />
      ))}
    </div>
  );
}

// Keyboards with AltGr tell that as Ctrl and Alt, and type with it.
function controlFor(event: KeyboardEvent, dialog: ShownDialog): number | null {
  if (event.altKey && !event.ctrlKey && event.key.length === 1) {
    return controlOfMnemonic(dialog.controls, event.key);
  }
  if (event.key === "Escape" && dialog.closeBox) return CLOSE_CONTROL;
  const isOnButton = event.target instanceof HTMLButtonElement;
  return event.key === "Enter" && !isOnButton ? defaultControl(dialog.controls) : null;
}

function press(event: KeyboardEvent, dialog: ShownDialog): void {
  const control = controlFor(event, dialog);
  if (control === null) return;
  useControl(dialog, control);
  event.preventDefault();
  event.stopPropagation();
}
