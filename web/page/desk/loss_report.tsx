import { useEffect, useState } from "preact/hooks";
import type { ShownDialog, ToldFinding } from "../../worker/desk_protocol";
import type { Action, Finding } from "../../worker/protocol";
import { EXPORT, IMPORTS, mappingPath } from "../logic/desk_things";
import { worstFirst } from "../logic/finding_groups";
import { mappingFile } from "../logic/mapping_fit";
import { shown } from "../logic/names";
import { rateNote } from "../logic/rate_note";
import { askFindings, askFit } from "../state/core";
import { deskFiles, losses, things } from "../state/desk";
import { notifyFailure } from "../state/notices";
import { importedTake } from "../state/work";
import { sceneRate } from "../state/scene";
import { labelOf, takes, type Take } from "../state/takes";
import { ToldFindings } from "./told_findings";

/** What becomes of what is odd in a file, or of a skeleton, beside the dialog that asks how. */

const NOTHING_BUT_NAMES =
  "Nothing is odd in the file itself. What of it fits nothing that is selected is left out, and told when it is done.";

/** The radio button of both. */
const APPLY = 1086;

export function LossReport({ dialog }: { dialog: ShownDialog }) {
  const take = importedTake.value;
  if (dialog.template === EXPORT) return <ExportLosses />;
  if (!take || !IMPORTS.includes(dialog.template)) return null;
  const applies = dialog.controls.some(({ id, checked }) => id === APPLY && checked);
  return (
    <Losses
      take={take}
      action={applies ? "apply" : "import"}
      none={applies ? NOTHING_BUT_NAMES : "Nothing is odd in this file."}
      note={rateNote(dialog, take.info.rateTaken, sceneRate.value)}
    />
  );
}

function ExportLosses() {
  const told = losses.value;
  return (
    <section class="losses" aria-label="What the motion file will not hold" aria-live="polite" tabIndex={0}>
      <h2>What the motion file will not hold</h2>
      {told === null && <p class="quiet">Looking…</p>}
      {told?.refusal && (
        <p class="finding error">
          <span class="severity">error</span> {shown(told.refusal, 2000)}
        </p>
      )}
      {told?.refusal === "" && told.findings.length === 0 && (
        <p>Nothing of the skeleton is lost.</p>
      )}
      {told && <ToldFindings findings={told.findings} />}
    </section>
  );
}

const MOST_REPORTS = 8;

/** What becomes of the files that are chosen for a conversion. */
export function ConversionLosses({ files }: { files: readonly Blob[] }) {
  const chosen = takes.value.filter((take) => files.includes(take.file));
  const mapping = mappingFile(mappingPath(things.value), deskFiles.value);
  const unread = chosen.length - MOST_REPORTS;
  return (
    <>
      {chosen.slice(0, MOST_REPORTS).map((take) => (
        <Losses key={take.key} take={take} action="convert" mapping={mapping} />
      ))}
      {unread > 0 && <p class="quiet">{unread} more: see the findings of each.</p>}
    </>
  );
}

interface LossesProperties {
  take: Take;
  action: Action;
  /** The mapping that says which of its markers are taken. */
  mapping?: Blob;
  /** What is said of a file in which nothing is odd. */
  none?: string;
  /** What the scene makes of it. */
  note?: ToldFinding | null;
}

const NOTHING_LOST = "Nothing is odd in this file, and nothing of it is lost.";

/** What becomes of the markers by the mapping; nothing while that is being found out. */
function useFit(take: Take, mapping: Blob | undefined): readonly ToldFinding[] | null {
  const [fit, setFit] = useState<readonly ToldFinding[] | null>(null);
  useEffect(() => {
    setFit(mapping ? null : []);
    if (!mapping) return;
    askFit(take, mapping).then(setFit, (reason) => notifyFailure("There is no report", reason));
  }, [take, mapping]);
  return fit;
}

function Losses({ take, action, mapping, none = NOTHING_LOST, note }: LossesProperties) {
  const fit = useFit(take, mapping);
  const [findings, setFindings] = useState<readonly Finding[] | null>(null);
  useEffect(() => {
    let isOver = false;
    setFindings(null);
    askFindings(take, action).then(
      (found) => isOver || setFindings(found.findings),
      (reason) => notifyFailure("There is no report", reason),
    );
    return () => void (isOver = true);
  }, [take, action]);
  const title = `What becomes of ${labelOf(take, 60)}`;
  return (
    <section class="losses" aria-label={title} tabIndex={0}>
      <h2>{title}</h2>
      {(findings === null || fit === null) && <p class="quiet">Looking…</p>}
      {note && <ToldFindings findings={[note]} />}
      {fit && <ToldFindings findings={fit} />}
      {findings?.length === 0 && fit?.length === 0 && <p>{none}</p>}
      {findings && worstFirst(findings).map((finding) => <Loss key={finding.code} {...finding} />)}
    </section>
  );
}

function Loss({ code, severity, cause, consequence }: Finding) {
  return (
    <article class={`finding ${severity}`}>
      <h3>
        <span class="severity">{severity}</span> <code>{code}</code>
      </h3>
      <p>{shown(cause, 2000)}.</p>
      <p class="quiet">{shown(consequence, 2000)}</p>
    </article>
  );
}
