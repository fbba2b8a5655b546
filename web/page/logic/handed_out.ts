/** Files that the desk has written, as they are handed out: one as it is, several as one archive. */

export interface WrittenFile {
  name: string;
  bytes: Uint8Array<ArrayBuffer>;
}

/** The name of a file without its folders. */
export function baseName(path: string): string {
  return path.replace(/^.*[/\\]/, "");
}

function partsOf(path: string): string[] {
  return path.split(/[/\\]/).filter((part) => !["", ".", ".."].includes(part));
}

/** The newest of each name, so that what was written twice is there once. */
export function newestOfEach(files: readonly WrittenFile[]): WrittenFile[] {
  return [...new Map(files.map((file) => [file.name, file])).values()];
}

/** What an archive of them is called: by the folder that all lie in, or plainly. */
export function archiveName(files: readonly WrittenFile[]): string {
  const folders = new Set(files.map(({ name }) => partsOf(name).at(-2) ?? ""));
  const [folder] = folders;
  return folders.size === 1 && folder ? `${folder}.zip` : "converted.zip";
}

/** The paths within an archive: without the folders that all of them share, and never leading out of it. */
export function archivePaths(files: readonly WrittenFile[]): string[] {
  const parts = files.map(({ name }) => partsOf(name));
  const first = parts[0] ?? [];
  let shared = 0;
  while (parts.every((part) => part.length > shared + 1 && part[shared] === first[shared])) {
    shared += 1;
  }
  return parts.map((part) => part.slice(shared).join("/"));
}
