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

export function LossReport({ dialog }: { dialog: ShownDialog }) {
  const take = importedTake.value;
  if (dialog.template === EXPORT) {
    return <DeskLosses title="What the motion file will not hold" none="Nothing of the skeleton is lost." />;
  }
  if (!take || !IMPORTS.includes(dialog.template)) return null;
  return (
    <DeskLosses
      title={`What becomes of ${labelOf(take, 60)}`}
      none="Nothing is odd in this file, for what is chosen here."
      note={rateNote(dialog, take.info.rateTaken, sceneRate.value)}
    />
  );
}

interface DeskLossesProperties {
  title: string;
  /** What is said when nothing is lost. */
  none: string;
  /** What the page itself knows of it. */
  note?: ToldFinding | null;
}

/** By what the dialog shows, as the desk tells it. */
function DeskLosses({ title, none, note }: DeskLossesProperties) {
  const told = losses.value;
  const isRateTold = told?.findings.some(({ code }) => code === "apply-rate-differs");
  const notes = note && !isRateTold ? [note] : [];
  return (
    <section class="losses" aria-label={title} aria-live="polite" tabIndex={0}>
      <h2>{title}</h2>
      {told === null && <p class="quiet">Looking…</p>}
      {told?.refusal && (
        <p class="finding error">
          <span class="severity">error</span> {shown(told.refusal, 2000)}
        </p>
      )}
      {told?.refusal === "" && told.findings.length + notes.length === 0 && <p>{none}</p>}
      {told && <ToldFindings findings={[...notes, ...told.findings]} />}
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
}

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

function Losses({ take, action, mapping }: LossesProperties) {
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
      {fit && <ToldFindings findings={fit} />}
      {findings?.length === 0 && fit?.length === 0 && <p>Nothing is odd in this file, and nothing of it is lost.</p>}
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
