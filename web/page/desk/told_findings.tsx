import type { ToldFinding } from "../../worker/desk_protocol";
import { shown } from "../logic/names";

/** What the desk has found, a paragraph each. */

const LONGEST = 1000;

export function ToldFindings({ findings }: { findings: readonly ToldFinding[] }) {
  return (
    <>
      {findings.map(({ code, severity, text }) => (
        <p key={code} class={`finding ${severity}`} data-finding={code}>
          <span class="severity">{severity}</span> {shown(text, LONGEST)}
        </p>
      ))}
    </>
  );
}
