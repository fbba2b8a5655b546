import { counted } from "./counted";
import { baseName, type WrittenFile } from "./handed_out";
import { shown } from "./names";

/** What a task has come to, in a line. */

const MOST_FILES = 3;
const START = 4000;

/** The first lines of a file, which say how much is in it. */
function startOf({ bytes }: WrittenFile): string {
  return new TextDecoder("latin1").decode(bytes.subarray(0, START));
}

function countIn(text: string, field: RegExp): number | null {
  const found = field.exec(text);
  return found ? Number(found[1]) : null;
}

function contentOf(file: WrittenFile): string {
  const text = startOf(file);
  const counts: [number | null, string][] = [
    [countIn(text, /^NumSegments[ \t]+(\d+)/m), "segment"],
    [countIn(text, /^\$NumMarkers[ \t]+(\d+)/m), "marker"],
    [countIn(text, /^\$?NumFrames[ \t]+(\d+)/m), "frame"],
  ];
  const told = counts.flatMap(([count, noun]) => (count === null ? [] : counted(count, noun)));
  return told.length > 0 ? `: ${told.join(", ")}` : "";
}

/** Which files were written, and how much the first ones hold. */
export function writtenText(files: readonly WrittenFile[]): string {
  if (files.length === 0) return "";
  const told = files.slice(0, MOST_FILES).map((file) => shown(baseName(file.name), 60) + contentOf(file));
  const more = files.length - told.length;
  return `Written: ${told.join("; ")}${more > 0 ? `; ${more} more` : ""}.`;
}

/** What an import has brought into a scene of so many nodes. */
export function importedText(name: string, before: number, after: number): string {
  const file = shown(name, 60);
  if (after <= before) return `${file} is applied to the scene.`;
  return `${file} is in the scene: ${counted(after - before, "new node")}.`;
}
