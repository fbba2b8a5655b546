import { fileNameFor } from "../../worker/file_paths";
import { baseName } from "./handed_out";
import { fileStem } from "./names";

/** Names of files in choices, as the system's dialogs treat them. */

/** Whether a name fits a pattern such as "*.trc"; capital letters do not matter. */
export function fitsPattern(name: string, pattern: string): boolean {
  const source = pattern
    .split("*")
    .map((part) => part.replace(/[\\^$.*+?()[\]{}|]/g, "\\$&"))
    .join(".*");
  return new RegExp(`^${source}$`, "i").test(name);
}

/** A name that was typed, as that of a file of the desk's own folder: with the extension that it lacks. */
export function nameToWrite(typed: string, extension: string): string {
  const name = fileNameFor(baseName(typed.trim()));
  return extension === "" || /\.[^.]+$/.test(name) ? name : `${name}.${extension}`;
}

/** What a file is called that is made of another one, or of nothing that has a name. */
export function nameOfMade(source: string, extension: string): string {
  const stem = source === "" ? "mapping" : fileStem(baseName(source));
  return extension === "" ? stem : `${stem}.${extension}`;
}
