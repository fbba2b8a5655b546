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

/** A name that was typed, with the extension that it is to have. */
export function withExtension(name: string, extension: string): string {
  const trimmed = name.trim();
  return trimmed === "" || extension === "" || /\.[^./\\]+$/.test(trimmed)
    ? trimmed
    : `${trimmed}.${extension}`;
}

/** What a file is called that is made of another one, or of nothing that has a name. */
export function nameOfMade(source: string, extension: string): string {
  const stem = source === "" ? "mapping" : fileStem(baseName(source));
  return extension === "" ? stem : `${stem}.${extension}`;
}
