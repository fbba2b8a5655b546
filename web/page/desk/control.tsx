import type { ControlState, ShownDialog } from "../../worker/desk_protocol";
import { captionOf, plainText, type Area, type PlacedControl } from "../logic/dialog_layout";
import { tell, type } from "../state/desk";

/** One control of a dialog of the plug-in. What it shows is what the plug-in says; what is done to it is told. */

interface ControlProperties {
  dialog: ShownDialog;
  placed: PlacedControl;
}

function em(value: number): string {
  return `${Number(value.toFixed(3))}em`;
}

function styleOf({ left, top, width, height }: Area): Record<string, string> {
  return { left: em(left), top: em(top), width: em(width), height: em(height) };
}

export function Control({ dialog, placed }: ControlProperties) {
  const control = dialog.controls[placed.index];
  switch (control.kind) {
    case "group-box":
      return <GroupBox dialog={dialog} placed={placed} />;
    case "label":
      return (
        <span class="control text" style={styleOf(placed.area)} aria-hidden={isForField(dialog, placed)}>
          {plainText(control.text)}
        </span>
      );
    case "push-button":
      return <PushButton dialog={dialog} placed={placed} />;
    case "radio-button":
    case "check-box":
      return <Mark dialog={dialog} placed={placed} />;
    case "image":
      return <span class="control image" style={styleOf(placed.area)} aria-hidden="true" />;
    default:
      return <Field dialog={dialog} placed={placed} />;
  }
}

/** The label before a field is what that is called, and is not read twice. */
function isForField({ controls }: ShownDialog, { index }: PlacedControl): boolean {
  const kind = controls[index + 1]?.kind;
  return kind === "edit" || kind === "other";
}

function Caption({ text }: { text: string }) {
  const { before, mnemonic, after } = captionOf(text);
  return (
    <span>
      {before}
      {mnemonic && <u>{mnemonic}</u>}
      {after}
    </span>
  );
}

function GroupBox({ dialog, placed }: ControlProperties) {
  const { text } = dialog.controls[placed.index];
  return (
    <fieldset class="control group-box" style={styleOf(placed.area)}>
      <legend>
        <Caption text={text} />
      </legend>
      {placed.inside.map((each) => (
        <Control key={each.index} dialog={dialog} placed={each} />
      ))}
    </fieldset>
  );
}

function use({ dialog }: ShownDialog, { id }: ControlState): void {
  tell({ did: "command", dialog, control: id });
}

function PushButton({ dialog, placed }: ControlProperties) {
  const control = dialog.controls[placed.index];
  return (
    <button
      class={control.isDefault ? "control primary" : "control"}
      style={styleOf(placed.area)}
      disabled={!control.enabled}
      aria-label={placed.name}
      data-control={control.id}
      onClick={() => use(dialog, control)}
    >
      <Caption text={control.text} />
    </button>
  );
}

/** It changes when the plug-in says so: radio buttons are selected by it, check boxes by the desk. */
function Mark({ dialog, placed }: ControlProperties) {
  const control = dialog.controls[placed.index];
  const isRadio = control.kind === "radio-button";
  return (
    <label class="control mark" style={styleOf(placed.area)}>
      <input
        type={isRadio ? "radio" : "checkbox"}
        name={isRadio ? `group-${dialog.dialog}-${placed.group}` : undefined}
        checked={control.checked}
        disabled={!control.enabled}
        data-control={control.id}
        onClick={(event) => {
          event.preventDefault();
          use(dialog, control);
        }}
      />
      <Caption text={control.text} />
    </label>
  );
}

function Field({ dialog, placed }: ControlProperties) {
  const control = dialog.controls[placed.index];
  return (
    <input
      class="control field"
      type="text"
      style={styleOf(placed.area)}
      value={control.text}
      disabled={!control.enabled}
      readOnly={control.readOnly}
      aria-label={placed.name}
      title={control.readOnly ? control.text : undefined}
      data-control={control.id}
      spellcheck={false}
      autocomplete="off"
      onInput={(event) =>
        type(dialog.dialog, placed.index, control.id, event.currentTarget.value)
      }
    />
  );
}
