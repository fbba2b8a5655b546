import { useEffect, useRef } from "preact/hooks";
import { markColumn } from "../logic/line_parts";
import { shown } from "../logic/names";

/** A line of a file, with the place in it that something was found at. */
export interface ShownLine {
  /** The page's number of the take. */
  readonly take: number;
  readonly number: number;
  readonly column: number;
  readonly text: string;
  /** The column of the first byte of the text. */
  readonly start: number;
}

const LONGEST_PART = 4000;

export function FileLine({ line, close }: { line: ShownLine; close: () => void }) {
  const mark = useRef<HTMLElement>(null);
  useEffect(() => mark.current?.scrollIntoView({ inline: "center", block: "nearest" }), [line]);
  const { before, marked, after } = markColumn(line.text, line.start, line.column);
  return (
    <div class="file-line" role="group" aria-label={`Line ${line.number} of the file`}>
      <h3>
        Line {line.number}, column {line.column}
        <button class="icon" aria-label="Put the line away" onClick={close}>
          ×
        </button>
      </h3>
      <pre tabIndex={0} aria-label="The line">
        <bdi>
          {line.start > 1 && "… "}
          {spaced(before)}
          <mark ref={mark}>{spaced(marked) || " "}</mark>
          {spaced(after)}
        </bdi>
      </pre>
    </div>
  );
}

/** Tabs part the cells of these files: an arrow and room say so. */
function spaced(text: string): string {
  return text
    .split("\t")
    .map((cell) => shown(cell, LONGEST_PART))
    .join(" → ");
}
