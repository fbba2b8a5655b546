/** A line of a file around a column, as it is shown with that column marked. */
export interface LineParts {
  before: string;
  marked: string;
  after: string;
}

const ENCODER = new TextEncoder();

/** The index in a text of the byte that lies `bytes` behind its beginning in UTF-8. */
function indexOfByte(text: string, bytes: number): number {
  let index = 0;
  let passed = 0;
  for (const character of text) {
    if (passed >= bytes) break;
    passed += ENCODER.encode(character).length;
    index += character.length;
  }
  return index;
}

/**
 * A line in three: what stands before a column, the word there, and the rest.
 * @param start the column, in bytes from 1, of the first character of the text
 */
export function markColumn(text: string, start: number, column: number): LineParts {
  if (column < start) return { before: "", marked: "", after: text };
  const at = indexOfByte(text, column - start);
  let end = at;
  while (end < text.length && !/\s/.test(text[end])) end += 1;
  end = Math.max(end, Math.min(at + 1, text.length));
  return { before: text.slice(0, at), marked: text.slice(at, end), after: text.slice(end) };
}
