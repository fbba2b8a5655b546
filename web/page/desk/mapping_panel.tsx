import { useEffect, useRef } from "preact/hooks";
import { counted } from "../logic/counted";
import { canSkip, CREATOR, modelessDialog } from "../logic/desk_things";
import { CLOSE_CONTROL } from "../logic/dialog_layout";
import { reasonText } from "../logic/mapping";
import { shown } from "../logic/names";
import { asked, isMappingLeft, lint, mapping, pickMode, things } from "../state/desk";
import { scene } from "../state/takes";
import { suggestion, takeSuggestion } from "../state/work";
import { BodyPicture } from "./body_picture";
import { DialogBody, useControl } from "./dialog_window";
import { ToldFindings } from "./told_findings";

/** Making a mapping: what is asked for, where it sits, what is suggested, and what there is so far. */
export function MappingPanel() {
  const dialog = modelessDialog(things.value, CREATOR);
  const isMaking = dialog !== null || mapping.value.length > 0;
  if (!isMaking) return null;
  const picked = mapping.value.filter(({ node }) => node !== 0);
  const found = new Set(picked.map(({ standard }) => standard));
  return (
    <section class="panel mapping" aria-label={dialog?.title ?? "Mapping"}>
      <h2>
        {dialog?.title ?? "Mapping"}
        {dialog?.closeBox && (
          <button
            class="icon"
            aria-label="Close the mapping"
            onClick={() => useControl(dialog, CLOSE_CONTROL)}
          >
            ×
          </button>
        )}
      </h2>
      {dialog && <DialogBody dialog={dialog} />}
      {dialog && pickMode.value.on && <StepHint canSkip={canSkip(dialog)} />}
      {isMappingLeft.value && <LeftUnsaved />}
      {dialog && <BodyPicture asked={asked.value} found={found} />}
      <MappingTable />
      <LintList />
    </section>
  );
}

function StepHint({ canSkip }: { canSkip: boolean }) {
  const suggested = suggestion.value;
  const name = scene.value?.nodes?.find(({ node }) => node === suggested?.node)?.name;
  return (
    <div class="step-hint">
      <p>
        Click the marker in the view, or choose it in Nodes and press <kbd>Enter</kbd>. A right click
        asks for the same one again.
      </p>
      {!canSkip && (
        <p class="quiet">
          {asked.value} cannot be skipped. Where the recording has no such marker: Abort, and convert
          without "Use MNM Filter File".
        </p>
      )}
      {suggested && name !== undefined ? (
        <p class="suggestion" data-suggested={name} data-reason={suggested.reason}>
          <button onClick={takeSuggestion} title={reasonText(suggested)}>
            <bdi class="name">{shown(name, 60)}</bdi>
          </button>{" "}
          {reasonText(suggested)}; <kbd>Enter</kbd> takes it
        </p>
      ) : (
        <p class="quiet">No suggestion for {asked.value}.</p>
      )}
    </div>
  );
}

function LeftUnsaved() {
  return (
    <p class="finding warning" role="status">
      <span class="severity">warning</span> Nothing was saved. "Create" on the utility panel begins a
      new mapping.
    </p>
  );
}

function MappingTable() {
  const rows = mapping.value;
  const box = useRef<HTMLDivElement>(null);
  useEffect(() => {
    if (box.current) box.current.scrollTop = box.current.scrollHeight;
  }, [rows.length]);
  return (
    <div class="mapping-table" ref={box} tabIndex={0} role="group" aria-label="The mapping so far">
      <table>
        <caption>
          {counted(rows.length, "marker")} so far
        </caption>
        <thead>
          <tr>
            <th scope="col">Standard</th>
            <th scope="col">Marker</th>
          </tr>
        </thead>
        <tbody>
          {rows.map(({ standard, marker }, index) => (
            <tr key={index} data-standard={standard}>
              <td>{shown(standard, 60)}</td>
              <td>
                <bdi class="name">{shown(marker, 60)}</bdi>
              </td>
            </tr>
          ))}
        </tbody>
      </table>
    </div>
  );
}

function LintList() {
  const found = lint.value;
  return (
    <div class="lint" role="status" aria-label="What is odd in the mapping">
      {found.length === 0 ? (
        <p class="quiet">{mapping.value.length > 0 ? "Nothing is odd in it." : ""}</p>
      ) : (
        <ToldFindings findings={found} />
      )}
    </div>
  );
}
