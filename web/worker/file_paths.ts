// What files are called in the core: any name may come from the page, and each has to be a name there.

const LONGEST = 200;

/** `name` as a file's name: without separators, and not too long; what shows its kind stays. */
export function fileNameFor(name: string): string {
  const plain = name.replace(/[/\\\0]/g, "_");
  const named = plain === "" || plain === "." || plain === ".." ? `_${plain}` : plain;
  const characters = [...named];
  if (new TextEncoder().encode(named).length <= LONGEST) return named;
  const end = characters.slice(-4).join("");
  let start = characters.slice(0, LONGEST);
  while (new TextEncoder().encode(start.join("") + end).length > LONGEST) {
    start = start.slice(0, -Math.ceil(start.length / 16));
  }
  return start.join("") + end;
}

/** The name, or with a folder before it where that is taken. */
export function pathFor(name: string, taken: Iterable<string>): string {
  const file = fileNameFor(name);
  const paths = new Set(taken);
  let path = file;
  for (let number = 2; paths.has(path); ++number) path = `${number}/${file}`;
  return path;
}

/**
 * The name, or with a number behind its stem where that is taken in any case of its letters: files that are made of
 * files of one folder are called like these, and may go where cases are the same.
 */
export function ownNameFor(name: string, taken: Iterable<string>): string {
  const file = fileNameFor(name);
  const names = new Set([...taken].map((other) => other.toLowerCase()));
  const [stem, ending] = file.split(/(\.[^.]*)$/);
  let own = file;
  for (let number = 2; names.has(own.toLowerCase()); ++number) own = `${stem}-${number}${ending ?? ""}`;
  return own;
}
