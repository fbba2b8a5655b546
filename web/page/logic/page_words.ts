/** Sentences of the program as the page tells them: where they name a flag or a verb, it names its own controls. */

/** Which the page leaves out beside a dialog that has these controls itself. */
const WHERE = " in the import's dialog";

const RANGE = `"Range"${WHERE}`;
const RATE = `"Set Frame Rate"${WHERE}`;
const NODES = `the list "Nodes" under "Work"`;
const MAPPING = `"Create" on the utility panel`;

const CONTROLS: ReadonlyMap<string, string> = new Map([
  ["--range FROM:TO", RANGE],
  ["--range", RANGE],
  ["--scale", `"Scale"${WHERE}`],
  ["--size", `"Size"`],
  ["--segment-size", `"Segment Size"`],
  ["--create", `"Create"${WHERE}`],
  ["--apply", `"Apply"`],
  ["--animation", `"Animation"`],
  ["--base-position", `"Base Position"`],
  ["--offset", `"Offset"${WHERE}`],
  ["--frame-rate file", RATE],
  ["unless --frame-rate keep is given", `unless ${RATE} is off`],
  ["--into SCENE --select NAME", NODES],
  ["--select NAME", NODES],
  [`"orvane scene SCENE"`, NODES],
  [`"orvane scene"`, `"Open scene…" under "Work"`],
  [`"orvane export"`, `"Export HTR…" under "Work"`],
  [`"orvane convert"`, `"BVK" under "Save…"`],
  [`"orvane convert --mapping"`, `"MNM Mapping File" on the utility panel`],
  [`"orvane map lint" checks it, and `, ""],
  [`"orvane map create"`, MAPPING],
  [`"orvane map suggest"`, MAPPING],
]);

function escaped(text: string): string {
  return text.replace(/[\\^$.*+?()[\]{}|]/g, "\\$&");
}

const LONGEST_FIRST = [...CONTROLS.keys()].sort((one, other) => other.length - one.length);

/** Behind them all other flags and verbs; what else stands between quotation marks is of a file. */
const NAMED = new RegExp(
  `(?:${LONGEST_FIRST.map(escaped).join("|")})(?![a-z-])|"orvane [^"]*"|"[^"]*"|--[a-z][a-z-]*`,
  "g",
);

/** In the place of what the page has no control for. */
const NOT_HERE = "\0";

function controlOf(name: string, where: string): string {
  const isOfFile = name.startsWith('"') && !name.startsWith('"orvane ');
  return CONTROLS.get(name)?.replace(WHERE, where) ?? (isOfFile ? name : NOT_HERE);
}

/** A sentence without the parts that help nobody here. */
function helpful(sentence: string): string {
  if (!sentence.includes(NOT_HERE)) return sentence;
  const parts = sentence.split("; ").filter((part) => !part.includes(NOT_HERE));
  return parts.length > 0 ? `${parts.join("; ").replace(/[.?]$/, "")}.` : "";
}

function capital(sentence: string): string {
  return sentence.charAt(0).toUpperCase() + sentence.slice(1);
}

export function pageWords(text: string, where = WHERE): string {
  const named = text.replaceAll(NOT_HERE, "�").replace(NAMED, (name) => controlOf(name, where));
  if (named === text) return text;
  return named.split(/(?<=[.?]) /).map(helpful).filter(Boolean).map(capital).join(" ");
}

/** The same beside the dialog that it is about. */
export function dialogWords(text: string): string {
  return pageWords(text, "");
}

/** What a run has written on lines of its own: of a file, which it knows by its path, and what can be done. */
export function linesOfRun(text: string, path: string, name: string): string {
  const lines = text.trim().split("\n").map((line) => line.trim().replace(/^orvane: /, ""));
  const start = `${path}: `;
  const told = lines.map((line) =>
    line.startsWith(start) ? `${name}: ${pageWords(line.slice(start.length))}` : pageWords(line),
  );
  return told.filter(Boolean).join("\n");
}
