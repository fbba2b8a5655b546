/** Names come out of files: they are text of any kind and length, and never more than text on the page. */

const ELLIPSIS = "…";

/** Controls, marks of direction and other characters that show nothing or change what stands around them. */
const UNSEEN =
  /[\u0000-\u001f\u007f-\u009f\u00ad\u034f\u061c\u115f\u1160\u17b4\u17b5\u180b-\u180f\u200b-\u200f\u2028-\u202e\u2060-\u206f\u3164\ufe00-\ufe0f\ufeff\uffa0\ufff9-\ufffb\u{e0000}-\u{e0fff}]|\p{Surrogate}/gu;

function visible(character: string): string {
  const code = character.codePointAt(0) ?? 0;
  return `[U+${code.toString(16).toUpperCase().padStart(4, "0")}]`;
}

/** The first `length` characters of a text, no character torn, and an ellipsis where that is not all. */
export function cut(text: string, length: number): string {
  if (text.length <= length) return text;
  const last = text.charCodeAt(length - 1);
  const torn = last >= 0xd800 && last <= 0xdbff;
  return text.slice(0, torn ? length - 1 : length) + ELLIPSIS;
}

/** A text from a file as it may be shown: cut to `length` characters, what cannot be seen told by its code. */
export function shown(text: string, length = 200): string {
  return cut(text, length).replace(UNSEEN, visible);
}

/** The same of a name that several have, of which the second is told with a 2. */
export function numbered(name: string, number: number, length?: number): string {
  return shown(name, length) + (number > 1 ? ` (${number})` : "");
}

/** A text of several lines, each as it may be shown, without those at the ends that are empty. */
export function shownLines(text: string, length: number): string {
  const lines = cut(text.trim(), length).split(/\r?\n/);
  return lines.map((line) => shown(line, length)).join("\n");
}

/** The name of a file without its ending, safe as the name of a download. */
export function fileStem(name: string): string {
  const stem = name.replace(/\.[^.]*$/, "");
  const plain = stem.replace(UNSEEN, "_").replace(/[\\/:*?"<>|]/g, "_");
  return plain.slice(0, 100).trim() || "take";
}
