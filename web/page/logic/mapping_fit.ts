import type { ToldFinding } from "../../worker/desk_protocol";
import { counted } from "./counted";
import { pageWords } from "./page_words";

/** Whether a mapping fits the markers of a file, by the program's report on both. */

interface FileReport {
  readonly file_type: string;
  readonly totals: Readonly<Record<string, number>>;
  readonly findings: readonly { code: string; found?: string; effect?: string }[];
}

const NOTHING = "mnm-fits-nothing";
const UNMAPPED = "mnm-marker-unmapped";

function reportOnMarkers(json: string): FileReport | undefined {
  const report = json === "" ? { files: [] } : (JSON.parse(json) as { files: FileReport[] });
  return report.files.find(({ file_type }) => file_type === "TRC");
}

export function fitFindings(json: string): ToldFinding[] {
  const report = reportOnMarkers(json);
  const nothing = report?.findings.find(({ code }) => code === NOTHING);
  if (nothing) {
    const text = pageWords(`The mapping has ${nothing.found}. ${nothing.effect}`);
    return [{ code: NOTHING, severity: "error", text }];
  }
  const unmapped = report?.totals[UNMAPPED] ?? 0;
  if (unmapped === 0) return [];
  const text = `The mapping has no entry for ${counted(unmapped, "marker")} of the file: dropped.`;
  return [{ code: UNMAPPED, severity: "warning", text }];
}

/** The file that the panel shows the path of, of those that are on the desk. */
export function mappingFile(path: string, files: ReadonlyMap<string, Blob>): Blob | undefined {
  for (const [name, file] of files) if (path === name || path.endsWith(`/${name}`)) return file;
  return undefined;
}
