import { signal } from "@preact/signals";
import type { Action, Finding, Place } from "../../worker/protocol";
import { counted } from "../logic/counted";
import { countBySeverity, distinctPlaces, placeText, worstFirst } from "../logic/finding_groups";
import { shown } from "../logic/names";
import { askLine } from "../state/core";
import { action, actionsOf, report, retry, type Report } from "../state/findings";
import { notifyFailure } from "../state/notices";
import { select } from "../state/selection";
import { activeTake, areSeveral, labelOf, type Take } from "../state/takes";
import { jumpTo } from "../state/time";
import { Choice } from "../widgets/choice";
import { FileLine, type ShownLine } from "./file_line";

/** What is odd in the take that is worked on, and what that means to what is to be done. */

const ACTIONS: Readonly<Record<Action, string>> = {
  import: "import as a new scene",
  apply: "apply to a scene",
  convert: "convert to BVK",
  rewrite: "rewrite",
  export: "export",
};

const SIGNS = { error: "Error", warning: "Warning", note: "Note" } as const;

const shownLine = signal<ShownLine | null>(null);

export function FindingsPanel() {
  const take = activeTake.value;
  if (!take) return null;
  const made = report.value;
  return (
    <section class="panel grow findings" aria-label="Findings">
      <h2>
        Findings <span class="quiet">{made ? countText(made.findings) : "…"}</span>
        {areSeveral.value && <bdi class="of-take quiet small">{labelOf(take)}</bdi>}
      </h2>
      <Choice<Action>
        label="For"
        value={action.value}
        options={actionsOf(take).map((key) => [key, ACTIONS[key]])}
        set={(value) => (action.value = value)}
      />
      <div class="findings-list" tabIndex={0} role="group" aria-label="All findings">
        {made && <ReportBody made={made} />}
      </div>
      {shownLine.value?.take === take.key && <FileLine line={shownLine.value} close={closeLine} />}
    </section>
  );
}

function closeLine(): void {
  shownLine.value = null;
}

function countText(findings: readonly Finding[]): string {
  const counts = countBySeverity(findings);
  const parts = (["error", "warning", "note"] as const)
    .filter((severity) => counts[severity] > 0)
    .map((severity) => counted(counts[severity], severity));
  return parts.join(", ") || "none";
}

function ReportBody({ made }: { made: Report }) {
  if (made.failure !== null) {
    return (
      <p>
        {made.failure} <button onClick={() => retry(made)}>Look again</button>
      </p>
    );
  }
  if (made.findings.length === 0) return <p class="quiet">Nothing is odd in this file.</p>;
  return (
    <>
      {worstFirst(made.findings).map((finding) => (
        <FindingGroup key={finding.code} take={made.take} finding={finding} />
      ))}
    </>
  );
}

function FindingGroup({ take, finding }: { take: Take; finding: Finding }) {
  const { code, severity, count, cause, consequence, places } = finding;
  return (
    <article class={`finding ${severity}`} data-code={code}>
      <h3>
        <span class="severity">{SIGNS[severity]}</span> <code>{code}</code>
        {count > 1 && <span class="quiet"> {count}×</span>}
      </h3>
      <p>{shown(cause, 2000)}.</p>
      <p class="quiet">{shown(consequence, 2000)}</p>
      <ul class="places">
        {distinctPlaces(places).map((place, index) => (
          <li key={index}>
            <button onClick={() => void goToPlace(take, place)}>{wordsOfPlace(take, place)}</button>
          </li>
        ))}
        {places.every((place) => place.object === undefined) && (
          <ObjectLinks take={take} objects={finding.objects ?? []} />
        )}
      </ul>
    </article>
  );
}

function ObjectLinks({ take, objects }: { take: Take; objects: readonly number[] }) {
  return (
    <>
      {objects.map((object) => (
        <li key={object}>
          <button onClick={() => select(take, object, false)}>
            <bdi>{shown(take.info.objects[object], 60)}</bdi>
          </button>
        </li>
      ))}
    </>
  );
}

function wordsOfPlace(take: Take, place: Place): string {
  const { objects, firstFrame } = take.info;
  const name = place.object === undefined ? undefined : shown(objects[place.object], 60);
  return placeText(place, firstFrame, name);
}

async function goToPlace(take: Take, place: Place): Promise<void> {
  if (place.object !== undefined) select(take, place.object, false);
  if (place.frame !== undefined) jumpTo(place.frame);
  try {
    const { text, start } = await askLine(take, place.line, place.column);
    shownLine.value = { take: take.key, number: place.line, column: place.column, text, start };
  } catch (reason) {
    notifyFailure(`Line ${place.line} is not shown`, reason);
  }
}
