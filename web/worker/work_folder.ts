// The folder in an instance of the core that files are put into, and found in again.

import type { CoreModule, FileSystem } from "orvane-core";
import type { OutFile } from "./protocol";

const FOLDER = "/files";

/** A file in an instance: its bytes are not copied, and nobody changes them. */
export interface InFile {
  path: string;
  bytes: Uint8Array<ArrayBuffer>;
}

/** A text in which files are called as they were put, and not by where they lie. */
export function withoutFolder(text: string): string {
  return text.replaceAll(`${FOLDER}/`, "");
}

export class WorkFolder {
  private readonly FS: FileSystem;
  /** What lies in the files that are known. */
  private readonly known = new Map<string, unknown>();

  constructor(module: CoreModule) {
    this.FS = module.FS;
    this.FS.mkdirTree(FOLDER);
    this.FS.chdir(FOLDER);
  }

  put({ path, bytes }: InFile): void {
    const folder = path.lastIndexOf("/");
    if (folder > 0) this.FS.mkdirTree(`${FOLDER}/${path.slice(0, folder)}`);
    this.FS.writeFile(`${FOLDER}/${path}`, bytes, { canOwn: true });
    this.known.set(path, this.contentsOf(path));
  }

  /** Takes away what was put or made, if it is there. */
  remove(path: string): void {
    if (this.known.delete(path)) this.FS.unlink(`${FOLDER}/${path}`);
  }

  /** All files that were made or replaced since the last time; they are known from now on. */
  takeMade(): OutFile[] {
    const found: OutFile[] = [];
    this.look("", found);
    return found;
  }

  private look(folder: string, found: OutFile[]): void {
    for (const entry of this.FS.readdir(`${FOLDER}/${folder}`)) {
      if (entry === "." || entry === "..") continue;
      const name = folder + entry;
      const { node } = this.FS.lookupPath(`${FOLDER}/${name}`);
      if (this.FS.isDir(node.mode)) this.look(`${name}/`, found);
      else if (this.known.get(name) !== node.contents) {
        this.known.set(name, node.contents);
        found.push({ name, bytes: this.FS.readFile(`${FOLDER}/${name}`) });
      }
    }
  }

  private contentsOf(path: string): unknown {
    return this.FS.lookupPath(`${FOLDER}/${path}`).node.contents;
  }
}
